#pragma once

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

#include "tests/cli/scratch_folder.h"
#include "tests/support/as_nobody.h"
#include "tests/support/reference_case.h"

namespace veyruna::tests {

inline const std::string before = "what was there before";
inline const std::string shorter = "short";
inline const std::string longer(200'000, 'n');

inline unsigned modeOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777U;
}

/// A folder with nothing in it, and the name of a file there.
class Files : public testing::Test {
 protected:
  const ScratchFolder folder;
  const std::string file = folder / "file.txt";
};

}  // namespace veyruna::tests
