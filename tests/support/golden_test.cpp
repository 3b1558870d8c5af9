// How a golden file is compared, and how another text is accepted in its place.
#include "tests/support/golden.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

#include "tests/cli/scratch_folder.h"
#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"

namespace veyruna::tests {
namespace {

class Golden : public testing::Test {
 protected:
  Golden() {
    std::filesystem::copy_file(sourcePath("tests/accept"), root / "accept");
    std::filesystem::create_directory(root / "moon");
    writeFile(golden, "full\nnew\n");
  }

  [[nodiscard]] bool isGoldenText(const std::string& text) const {
    return static_cast<bool>(isGolden(root.path(), "moon/phases.txt", text));
  }

  /// The exit status of the script, run from somewhere else.
  [[nodiscard]] int accept(const std::string& name) const {
    const std::string command = "cd / && '" + root / "accept" + "' " + name + " >/dev/null 2>&1";
    return WEXITSTATUS(std::system(command.c_str()));
  }

  const ScratchFolder root;
  const std::string golden = root / "moon/phases.txt";
  const std::string received = golden + ".received";
};

TEST_F(Golden, TheSameTextLeavesNothingBehind) {
  EXPECT_TRUE(isGoldenText("full\nnew\n"));
  EXPECT_FALSE(std::filesystem::exists(received));
}

TEST_F(Golden, AnotherTextIsKeptAndTheFailureSaysHowItIsAccepted) {
  const auto result = isGolden(root.path(), "moon/phases.txt", "full\nhalf\n");
  ASSERT_FALSE(result);
  EXPECT_EQ(fileContent(received), "full\nhalf\n");
  EXPECT_EQ(
      result.message(),
      "moon/phases.txt is not what is written now. Line 2\n  golden:   new\n  received: half\n"
      "To accept what is written now: " +
          root.path() + "/accept moon/phases.txt");
}

TEST_F(Golden, EveryDifferenceIsOne) {
  EXPECT_FALSE(isGoldenText("full\nnew"));
  EXPECT_FALSE(isGoldenText("full\n"));
  EXPECT_FALSE(isGoldenText("full\nnew\nfull\n"));
  EXPECT_FALSE(isGoldenText(""));
}

TEST_F(Golden, AFileThatIsNotThereIsNoEmptyText) {
  std::filesystem::remove(golden);
  EXPECT_FALSE(isGoldenText(""));
}

TEST_F(Golden, WhatIsAcceptedIsGolden) {
  ASSERT_FALSE(isGoldenText("full\nhalf\n"));
  EXPECT_EQ(accept("moon/phases.txt"), 0);
  EXPECT_EQ(fileContent(golden), "full\nhalf\n");
  EXPECT_FALSE(std::filesystem::exists(received));
  EXPECT_TRUE(isGoldenText("full\nhalf\n"));
}

TEST_F(Golden, WhatWasNotReceivedIsNotAccepted) {
  EXPECT_EQ(accept("moon/phases.txt"), 1);
  EXPECT_EQ(accept(""), 2);
  EXPECT_EQ(fileContent(golden), "full\nnew\n");
}

TEST_F(Golden, WhatWasReceivedBeforeGoesWithTheNextSuccess) {
  ASSERT_FALSE(isGoldenText("full\nhalf\n"));
  EXPECT_TRUE(isGoldenText("full\nnew\n"));
  EXPECT_EQ(accept("moon/phases.txt"), 1);
}

}  // namespace
}  // namespace veyruna::tests
