#include "cli/written/progress.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <unistd.h>

namespace veyruna::cli {

namespace {

/// Of work that goes on one by one: the clock would cost more than it.
constexpr std::int64_t advancesBetweenLooks = 256;

constexpr std::size_t barWidth = 20;

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
  done_ = std::min(done, total_);
  showIfDue();
}

void Progress::showIfDue() {
  if (!isWanted_ || Clock::now() < nextUpdate_) {
    return;
  }
  isShown_ = true;
  nextUpdate_ = Clock::now() + std::chrono::milliseconds(200);
  std::string bar(barWidth, '.');
  std::fill_n(bar.begin(), done_ * static_cast<std::int64_t>(barWidth) / total_, '#');
  std::fprintf(stderr, "\r[%s] %lld of %lld %.*s, %lld %%\x1b[K", bar.c_str(),
               static_cast<long long>(done_), static_cast<long long>(total_),
               static_cast<int>(unit_.size()), unit_.data(),
               static_cast<long long>(done_ * 100 / total_));
  std::fflush(stderr);
}

}  // namespace veyruna::cli
