// What is no UTF-8 becomes what every reader of JSON and CSV puts there.
#include "words/utf8.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <random>
#include <string>

namespace veyruna {
namespace {

std::string validByJson(const std::string& text) {
  using Json = nlohmann::json;
  return Json::parse(Json(text).dump(-1, ' ', false, Json::error_handler_t::replace))
      .get<std::string>();
}

TEST(Utf8, WhatIsValidStays) {
  for (const char* text : {"", "Ebb", "40.5°N", "−", "𝄞", "\x7F", "a\tb"}) {
    EXPECT_TRUE(words::isUtf8(text)) << text;
    EXPECT_EQ(words::validUtf8(text), text);
  }
}

TEST(Utf8, WhatIsNoCharacterIsReplacedAsJsonDoes) {
  // Bytes that begin, continue or never stand in a character, more often than others.
  const std::string bytes = "a\x80\xBF\xC2\xC1\xE0\xED\xEF\xF0\xF4\xF5\x9F\xA0\x8F\x90\xFF z";
  std::mt19937 random(17);  // NOLINT(*-msc51-cpp): the same texts in every run
  int broken = 0;
  for (int i = 0; i < 20'000; ++i) {
    std::string text;
    for (auto length = random() % 8; length > 0; --length) {
      text += bytes[random() % bytes.size()];
    }
    ASSERT_EQ(words::validUtf8(text), validByJson(text)) << testing::PrintToString(text);
    ASSERT_EQ(words::isUtf8(text), words::validUtf8(text) == text);
    broken += words::isUtf8(text) ? 0 : 1;
  }
  EXPECT_GT(broken, 5'000);
}

}  // namespace
}  // namespace veyruna
