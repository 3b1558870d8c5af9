#pragma once

#include <chrono>
#include <cstdint>

namespace veyruna::cli {

/// Shows how far a long table is, on standard error, after its first second. Silent where standard
/// error is no terminal, or where the table itself scrolls through it.
class Progress {
 public:
  /// `total` rows; `showsDocument` says that the document goes to standard output.
  Progress(std::int64_t total, bool showsDocument);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();  ///< clears the line

  /// One more row is done.
  void advance();

 private:
  using Clock = std::chrono::steady_clock;

  std::int64_t total_;
  std::int64_t done_ = 0;
  bool isWanted_;
  bool isShown_ = false;
  Clock::time_point nextUpdate_;
};

}  // namespace veyruna::cli
