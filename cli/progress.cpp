#include "cli/progress.h"

#include <cstdio>
#include <unistd.h>

namespace veyruna::cli {

namespace {

constexpr std::int64_t rowsBetweenLooks = 256;

}  // namespace

Progress::Progress(std::int64_t total, bool showsDocument)
    : total_(total),
      isWanted_(isatty(STDERR_FILENO) == 1 && !(showsDocument && isatty(STDOUT_FILENO) == 1)),
      nextUpdate_(Clock::now() + std::chrono::seconds(1)) {}

Progress::~Progress() {
  if (isShown_) {
    std::fputs("\r\x1b[K", stderr);
  }
}

void Progress::advance() {
  ++done_;
  if (!isWanted_ || done_ % rowsBetweenLooks != 0 || Clock::now() < nextUpdate_) {
    return;
  }
  isShown_ = true;
  nextUpdate_ = Clock::now() + std::chrono::milliseconds(200);
  std::fprintf(stderr, "\r%lld of %lld rows, %lld %%\x1b[K", static_cast<long long>(done_),
               static_cast<long long>(total_), static_cast<long long>(done_ * 100 / total_));
  std::fflush(stderr);
}

}  // namespace veyruna::cli
