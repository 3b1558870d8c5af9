#include "tests/house/include_rules.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "tests/support/reference_case.h"

namespace veyruna::tests {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

TEST(IncludeRules, AnIncludeThatPointsUpIsFound) {
  EXPECT_EQ(forbiddenIncludes("astro", "#pragma once\n#include \"reports/zodiac.h\"\n"),
            Lines{"#include \"reports/zodiac.h\""});
  EXPECT_EQ(forbiddenIncludes("charts", "  #  include \"cli/quoting.h\"\n"),
            Lines{"  #  include \"cli/quoting.h\""});
  EXPECT_EQ(forbiddenIncludes("model", "#include \"ui/main_view.h\"\n").size(), 1U);
}

TEST(IncludeRules, AnIncludeThatPointsDownIsFine) {
  EXPECT_TRUE(
      forbiddenIncludes("reports", "#include \"astro/arc.h\"\n#include <string>\n").empty());
  EXPECT_TRUE(
      forbiddenIncludes("cli", "#include <CLI/CLI.hpp>\n#include \"charts/star_map.h\"\n").empty());
}

TEST(IncludeRules, TheRoomsThatComputeUseTheStandardLibraryAlone) {
  EXPECT_EQ(forbiddenIncludes("charts", "#include <QString/x>\n").size(), 1U);
  EXPECT_EQ(forbiddenIncludes("astro", "#include <unistd.h>\n").size(), 1U);
  EXPECT_EQ(forbiddenIncludes("reports", "#include <CLI/CLI.hpp>\n").size(), 1U);
}

TEST(IncludeRules, EverySourceOfTheHouseKeepsThem) {
  int sources = 0;
  for (const std::string& room : roomNames()) {
    const fs::path folder = fs::path(VEYRUNA_SOURCE_DIR) / room;
    if (!fs::exists(folder)) {
      continue;
    }
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      const std::string extension = entry.path().extension().string();
      if (extension != ".h" && extension != ".cpp") {
        continue;
      }
      ++sources;
      EXPECT_EQ(forbiddenIncludes(room, fileContent(entry.path().string())), Lines{})
          << entry.path();
    }
  }
  EXPECT_GT(sources, 40);
}

}  // namespace
}  // namespace veyruna::tests
