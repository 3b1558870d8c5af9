#include "tests/house/include_rules.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"

namespace veyruna::tests {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

/// Whether a folder at the top of the tree is a room or the house of several.
bool isRoomOrHoldsRooms(const std::string& folder) {
  const std::vector<std::string> names = roomNames();
  return std::any_of(names.begin(), names.end(), [&folder](const std::string& name) {
    return name == folder || name.starts_with(folder + "/");
  });
}

TEST(IncludeRules, AnIncludeThatPointsUpIsFound) {
  EXPECT_EQ(forbiddenIncludes("astro", "#pragma once\n#include \"reports/zodiac.h\"\n"),
            Lines{"#include \"reports/zodiac.h\""});
  EXPECT_EQ(forbiddenIncludes("charts", "  #  include \"cli/quoting.h\"\n"),
            Lines{"  #  include \"cli/quoting.h\""});
  EXPECT_EQ(forbiddenIncludes("model", "#include \"ui/window/main_view.h\"\n").size(), 1U);
}

TEST(IncludeRules, TheFoldersOfTheWindowKnowOnlyWhatIsBelow) {
  EXPECT_EQ(forbiddenIncludes("ui/map", "#include \"ui/sidebar/sidebar_view.h\"\n").size(), 1U);
  EXPECT_EQ(forbiddenIncludes("ui/controls", "#include \"model/executor.h\"\n").size(), 1U);
  EXPECT_TRUE(forbiddenIncludes("ui/window", "#include \"ui/sidebar/sidebar_view.h\"\n").empty());
}

TEST(IncludeRules, EverySourceStandsInARoom) {
  for (const auto& top : fs::directory_iterator(sourcePath(""))) {
    const bool holdsRooms = isRoomOrHoldsRooms(top.path().filename().string());
    if (!top.is_directory() || !holdsRooms) {
      continue;
    }
    for (const auto& entry : fs::recursive_directory_iterator(top.path())) {
      if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp") {
        const fs::path folder = fs::relative(entry.path().parent_path(), fs::path(sourcePath("")));
        EXPECT_EQ(forbiddenIncludes(folder.string(), ""), Lines{}) << entry.path();
      }
    }
  }
}

TEST(IncludeRules, AnIncludeThatPointsDownIsFine) {
  EXPECT_TRUE(
      forbiddenIncludes("reports", "#include \"astro/arc.h\"\n#include <string>\n").empty());
  EXPECT_TRUE(
      forbiddenIncludes("cli/documents", "#include <CLI/CLI.hpp>\n#include \"charts/star_map.h\"\n")
          .empty());
}

TEST(IncludeRules, TheRoomsThatComputeUseTheStandardLibraryAlone) {
  EXPECT_EQ(forbiddenIncludes("charts", "#include <QString/x>\n").size(), 1U);
  EXPECT_EQ(forbiddenIncludes("astro", "#include <unistd.h>\n").size(), 1U);
  EXPECT_EQ(forbiddenIncludes("astro", "#include <QString>\n").size(), 1U);
  EXPECT_EQ(forbiddenIncludes("reports", "#include <CLI/CLI.hpp>\n").size(), 1U);
}

TEST(IncludeRules, FilesUseTheSystemBesides) {
  EXPECT_TRUE(forbiddenIncludes("files", "#include <string>\n#include <unistd.h>\n").empty());
  EXPECT_EQ(forbiddenIncludes("files", "#include <QSaveFile>\n").size(), 1U);
  EXPECT_EQ(forbiddenIncludes("files", "#include \"astro/arc.h\"\n").size(), 1U);
  EXPECT_EQ(forbiddenIncludes("files", "#include <CLI/CLI.hpp>\n").size(), 1U);
}

/// It takes long to compile, and what is made with it is text.
TEST(IncludeRules, RecordsAndNotesKnowJsonInTheirSourcesOnly) {
  const std::string json = "#include <nlohmann/json.hpp>\n";
  EXPECT_TRUE(forbiddenIncludes("records", json).empty());
  EXPECT_EQ(forbiddenIncludes("almanac", json).size(), 1U);
  for (const char* const room : {"records", "notes"}) {
    for (const auto& entry : fs::directory_iterator(sourcePath(room))) {
      if (entry.path().extension() == ".h") {
        EXPECT_EQ(fileContent(entry.path().string()).find("nlohmann"), std::string::npos)
            << entry.path();
      }
    }
  }
}

TEST(IncludeRules, EverySourceOfTheHouseKeepsThem) {
  int sources = 0;
  for (const std::string& room : roomNames()) {
    const fs::path folder = fs::path(sourcePath("")) / room;
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
