#include "cli/written/progress.h"

#include <cstdio>
#include <unistd.h>

namespace veyruna::cli {

namespace {

/// Of work that goes on one by one: the clock would cost more than it.
constexpr std::int64_t advancesBetweenLooks = 256;

}  // namespace

Progress::Progress(std::int64_t total, std::string_view unit, bool showsDocument)
    : total_(total),
      unit_(unit),
      isWanted_(isatty(STDERR_FILENO) == 1 && !(showsDocument && isatty(STDOUT_FILENO) == 1)),
      nextUpdate_(Clock::now() + std::chrono::seconds(1)) {}

Progress::~Progress() {
  if (isShown_) {
    std::fputs("\r\x1b[K", stderr);
  }
}

void Progress::advance() {
  ++done_;
  if (done_ % advancesBetweenLooks == 0) {
    showIfDue();
  }
}

void Progress::reach(std::int64_t done) {
  done_ = done;
  showIfDue();
}

void Progress::showIfDue() {
  if (!isWanted_ || Clock::now() < nextUpdate_) {
    return;
  }
  isShown_ = true;
  nextUpdate_ = Clock::now() + std::chrono::milliseconds(200);
  std::fprintf(stderr, "\r%lld of %lld %.*s, %lld %%\x1b[K", static_cast<long long>(done_),
               static_cast<long long>(total_), static_cast<int>(unit_.size()), unit_.data(),
               static_cast<long long>(done_ * 100 / total_));
  std::fflush(stderr);
}

}  // namespace veyruna::cli
