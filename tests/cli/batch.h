#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/cli/process.h"
#include "tests/cli/scratch_folder.h"

namespace veyruna::tests {

/// Tables of people, and the folder their documents go to.
class Batch : public testing::Test {
 protected:
  const ScratchFolder scratch;
  const std::string table = scratch / "people.csv";
  const std::string out = scratch / "out";

  /// One run over that table; by default of the quickest document, the moment.
  [[nodiscard]] Outcome batch(const std::string& content,
                              const std::vector<std::string>& options = {"--documents",
                                                                         "moment"}) const {
    writeFile(table, content);
    return run({.arguments = argumentsWith(options)});
  }

  [[nodiscard]] std::vector<std::string> argumentsWith(
      const std::vector<std::string>& options) const {
    std::vector<std::string> arguments = {"batch", table, "--out", out};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
  }

  /// The names of what was written; none where there is no folder.
  [[nodiscard]] std::vector<std::string> written() const {
    return std::filesystem::exists(out) ? namesIn(out) : std::vector<std::string>();
  }

  void expectAllWritten(const Outcome& outcome) const {
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
  }
};

/// Whether a text holds another.
inline bool has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace veyruna::tests
