#include "words/quoting.h"

#include <gtest/gtest.h>

#include "tests/support/c_printf.h"

namespace veyruna {
namespace {

using words::inQuotes;

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

TEST(Quoting, BytesThatAreNoCharacterAreWrittenOut) {
  EXPECT_EQ(inQuotes("a\x9b"
                     "31m"),
            "\"a\\x9b31m\"");  // a terminal may take it for a command
  EXPECT_EQ(inQuotes("\x80\xbf\xfe\xff"), "\"\\x80\\xbf\\xfe\\xff\"");
  EXPECT_EQ(inQuotes("caf\xe9"), "\"caf\\xe9\"");
  EXPECT_EQ(inQuotes("°\xb0°"), "\"°\\xb0°\"");
}

/// Each byte as \xNN, between quotes.
std::string writtenOut(std::string_view bytes) {
  std::string out = "\"";
  for (const char byte : bytes) {
    out += tests::printedInC("\\x%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
  }
  return out + '"';
}

TEST(Quoting, PiecesOfCharactersAreWrittenOut) {
  for (const std::string_view piece :
       {"\xc3", "\xe2\x82", "\xe2", "\xf0\x9f\x8c", "\xf0\x9f", "\xf0"}) {
    EXPECT_EQ(inQuotes(piece), writtenOut(piece));
    EXPECT_EQ(inQuotes(std::string(piece) + "°"),
              writtenOut(piece).substr(0, piece.size() * 4 + 1) + "°\"");
  }
}

TEST(Quoting, WhatNoCodePointIsIsWrittenOut) {
  for (const std::string_view bytes :
       {"\xc0\xaf", "\xc1\xbf", "\xe0\x9f\xbf", "\xf0\x8f\xbf\xbf",  // longer than need be
        "\xed\xa0\x80", "\xed\xbf\xbf",                              // surrogates
        "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xf8\x88\x80\x80\x80"}) {
    EXPECT_EQ(inQuotes(bytes), writtenOut(bytes));
  }
}

TEST(Quoting, TheFirstAndLastCodePointsOfEachLengthAreShown) {
  for (const std::string_view character :
       {" ", "~", "\xc2\xa0", "\xdf\xbf", "\xe0\xa0\x80", "\xed\x9f\xbf", "\xee\x80\x80",
        "\xef\xbf\xbf", "\xf0\x90\x80\x80", "\xf4\x8f\xbf\xbf"}) {
    EXPECT_EQ(inQuotes(character), '"' + std::string(character) + '"');
  }
}

TEST(Quoting, TheControlsOfTwoBytesAreWrittenOut) {
  EXPECT_EQ(inQuotes("\xc2\x80"), "\"\\xc2\\x80\"");
  EXPECT_EQ(inQuotes("a\xc2\x9b"
                     "b"),
            "\"a\\xc2\\x9bb\"");
  EXPECT_EQ(inQuotes("\xc2\x9f"), "\"\\xc2\\x9f\"");
}

TEST(Quoting, AListedNameIsQuotedOnlyWhereItWouldBreakTheLine) {
  const std::string longName(200, 'x');
  for (const std::string& plain :
       {std::string("Côte d'Ebb"), std::string("a \"b\" \\c"), std::string(), longName}) {
    EXPECT_EQ(words::asListed(plain), plain);
  }
  for (const std::string_view other :
       {"two\nlines", "\x1b[31m", "\x7f", "a\xc2\x9b", "caf\xe9", "\n"}) {
    EXPECT_EQ(words::asListed(other), inQuotes(other));
  }
}

TEST(Quoting, ALongTextOfBytesIsCutTheSame) {
  const std::string bytes(200, '\x9b');
  const std::string shown = inQuotes(bytes);
  EXPECT_EQ(shown, writtenOut(bytes.substr(0, 120)).substr(0, 481) + "…\"");
}

TEST(Quoting, AShellsWordIsInQuotesWhereAShellWouldCutOrReadIt) {
  for (const char* const plain : {"Ebb", "40.5", "-20.9", "a/b:c@d,e%f+g_h"}) {
    EXPECT_EQ(words::asShellWord(plain), plain);
  }
  EXPECT_EQ(words::asShellWord(""), "''");
  EXPECT_EQ(words::asShellWord("two words"), "'two words'");
  EXPECT_EQ(words::asShellWord("Côte d'Ebb"), "'Côte d'\\''Ebb'");
  EXPECT_EQ(words::asShellWord("$HOME `id` \\ ! * ~ #"), "'$HOME `id` \\ ! * ~ #'");
  for (const std::string_view other : {"two\nlines", "\x1b[31m", "caf\xe9"}) {
    EXPECT_EQ(words::asShellWord(other), std::nullopt);
  }
}

TEST(Quoting, CharactersAreCountedAsAPersonSeesThem) {
  EXPECT_EQ(words::charactersOnALine(""), 0U);
  EXPECT_EQ(words::charactersOnALine("Côte ☾"), 6U);
  EXPECT_EQ(words::charactersOnALine("a\tb"), std::nullopt);
  EXPECT_EQ(words::charactersOnALine("\xff"), std::nullopt);
}

}  // namespace
}  // namespace veyruna
