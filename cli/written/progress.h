#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>

namespace veyruna::cli {

/// Shows how far long work is, as a bar and in figures, on standard error, after its first second.
/// Silent where standard error is no terminal, or where what is made scrolls through it.
class Progress {
 public:
  /// `total` of `unit`, such as "rows"; `showsDocument` says that what is made goes to standard
  /// output.
  Progress(std::int64_t total, std::string_view unit, bool showsDocument);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();  ///< clears the line

  /// One more is done.
  void advance();

  /// So many are done; more than all are all.
  void reach(std::int64_t done);

 private:
  using Clock = std::chrono::steady_clock;

  void showIfDue();

  std::int64_t total_;
  std::string_view unit_;
  std::int64_t done_ = 0;
  bool isWanted_;
  bool isShown_ = false;
  Clock::time_point nextUpdate_;
};

}  // namespace veyruna::cli
