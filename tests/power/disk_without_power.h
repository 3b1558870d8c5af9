#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/power/recording.h"

namespace veyruna::tests {

/// A disk that was written to, and what may be found on it when the power goes at that moment. What
/// was synced is there. Of what was not: names are there up to any one of their changes, in the
/// order in which they were made, as on every file system with a journal; bytes are all there, or
/// none, or half of them, or there is room for them that holds zeros, whatever became of the names.
class DiskWithoutPower {
 public:
  /// All of these are on disk; they have the numbers of a Recording.
  explicit DiskWithoutPower(const Files& before);

  void apply(const Change& change);

  [[nodiscard]] std::vector<Files> mayBeFound() const;

  /// What is there while the power is.
  [[nodiscard]] Files whole() const;

 private:
  struct Content {
    std::string onDisk;
    std::string written;
  };
  using Names = std::map<std::string, int>;

  static void change(Names& names, const Change& change);
  [[nodiscard]] Files under(const Names& names, std::string (*left)(const Content&)) const;

  std::map<int, Content> contents_;
  Names onDisk_;
  std::vector<Change> waiting_;  ///< changes of names since
};

}  // namespace veyruna::tests
