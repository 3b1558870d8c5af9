#include "cli/quoting.h"

#include <gtest/gtest.h>

namespace veyruna {
namespace {

using cli::inQuotes;

TEST(Quoting, KeepsPlainTextAndOtherScripts) {
  EXPECT_EQ(inQuotes(""), "\"\"");
  EXPECT_EQ(inQuotes("40.5°N"), "\"40.5°N\"");
  EXPECT_EQ(inQuotes("a b~"), "\"a b~\"");
}

TEST(Quoting, ControlCharactersStayOnTheLine) {
  EXPECT_EQ(inQuotes("a\nb\r\t"), "\"a\\x0ab\\x0d\\x09\"");
  EXPECT_EQ(inQuotes("\x1b[31m\x7f"), "\"\\x1b[31m\\x7f\"");
  EXPECT_EQ(inQuotes(std::string_view("\0\x1f", 2)), "\"\\x00\\x1f\"");
}

TEST(Quoting, CutsALongText) {
  const std::string longest(120, 'x');
  EXPECT_EQ(inQuotes(longest), "\"" + longest + "\"");
  EXPECT_EQ(inQuotes(longest + "y"), "\"" + longest + "…\"");
}

TEST(Quoting, CutsBetweenCharacters) {
  const std::string before(119, 'x');
  EXPECT_EQ(inQuotes(before + "°"), "\"" + before + "…\"");
  EXPECT_EQ(inQuotes(before + "°z"), "\"" + before + "…\"");
}

}  // namespace
}  // namespace veyruna
