#include "records/record_writer.h"

#include <bit>
#include <charconv>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <nlohmann/json.hpp>
#include <rapidcheck/gtest.h>
#include <system_error>

#include "tests/records/csv_reading.h"
#include "tests/records/weather.h"
#include "tests/support/expect_stop.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using Json = nlohmann::json;
using records::Notation;
using records::RecordType;
using records::RecordWriter;
using records::Row;
using records::Value;
using tests::csvLines;
using tests::weatherType;
using Numbers = std::vector<double>;
using Texts = std::vector<std::string>;

std::string written(Notation notation, const RecordType& type, const std::vector<Row>& rows,
                    const Row& about) {
  return reports::collected([&](const reports::TextSink& sink) {
    RecordWriter writer(type, notation, sink, about);
    for (const Row& row : rows) {
      writer.write(row);
    }
    writer.finish();
  });
}

const std::vector<Row> twoDays = {{true, std::int64_t{12}, 0.1, "so \"wet\", so\nwet", "sea",
                                   Texts{"low", "grey"}, Numbers{0.1, -2.0}, "720-06-12T22:30"},
                                  {{}, {}, -3.0, {}, {}, {}, {}, {}}};
const Row inEbb = {"Ebb", 7.25};

TEST(RecordWriter, WritesOneDocumentOfJson) {
  EXPECT_EQ(written(Notation::json, weatherType(), twoDays, inEbb),
            "{\n"
            R"("schema":{"name":"weather","version":3},"place":"Ebb","height_metres":7.25,)"
            "\n"
            R"("days":[)"
            "\n"
            R"({"is_wet":true,"sheep_blown_away":12,"wind_knots":0.1,)"
            R"("remark":"so \"wet\", so\nwet","from":"sea","clouds":["low","grey"],)"
            R"("gusts_knots":[0.1,-2.0],"date":"720-06-12T22:30"},)"
            "\n"
            R"({"wind_knots":-3.0})"
            "\n]\n}\n");
}

TEST(RecordWriter, WritesADocumentALine) {
  EXPECT_EQ(written(Notation::jsonl, weatherType(), twoDays, {"Ebb", {}}),
            R"({"schema":{"name":"weather","version":3},"place":"Ebb","is_wet":true,)"
            R"("sheep_blown_away":12,"wind_knots":0.1,"remark":"so \"wet\", so\nwet","from":"sea",)"
            R"("clouds":["low","grey"],"gusts_knots":[0.1,-2.0],"date":"720-06-12T22:30"})"
            "\n"
            R"({"schema":{"name":"weather","version":3},"place":"Ebb","wind_knots":-3.0})"
            "\n");
}

TEST(RecordWriter, WritesCommaSeparatedValues) {
  EXPECT_EQ(written(Notation::csv, weatherType(), twoDays, {"Ebb", {}}),
            "place,height_metres,is_wet,sheep_blown_away,wind_knots,remark,from,clouds,"
            "gusts_knots,date\n"
            "Ebb,,true,12,0.1,\"so \"\"wet\"\", so\nwet\",sea,low grey,0.1 -2,720-06-12T22:30\n"
            "Ebb,,,,-3,,,,,\n");
}

TEST(RecordWriter, WithoutRowsADocumentIsWholeAllTheSame) {
  EXPECT_EQ(Json::parse(written(Notation::json, weatherType(), {}, inEbb))["days"], Json::array());
  EXPECT_EQ(written(Notation::jsonl, weatherType(), {}, inEbb), "");
  EXPECT_EQ(csvLines(written(Notation::csv, weatherType(), {}, inEbb)).size(), 1U);
}

TEST(RecordWriter, HandsOnEachRowAtOnce) {
  std::vector<std::string> pieces;
  RecordWriter writer(
      weatherType(), Notation::json,
      [&pieces](std::string_view piece) { pieces.emplace_back(piece); }, inEbb);
  ASSERT_EQ(pieces.size(), 1U);
  for (std::size_t rows = 1; rows < 5; ++rows) {
    writer.write(twoDays[1]);
    ASSERT_EQ(pieces.size(), 1 + rows);
    EXPECT_NE(pieces.back().find("-3.0"), std::string::npos);
  }
}

TEST(RecordWriterDeathTest, NothingIsWrittenOfARowThatIsNone) {
  const auto write = [](const Row& row) { written(Notation::csv, weatherType(), {row}, inEbb); };
  EXPECT_STOP(write({}), "a row has a value for each field");
  EXPECT_STOP(written(Notation::csv, weatherType(), {}, {}), "a row has a value for each field");
  Row windless = twoDays[0];
  windless[2] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_STOP(write(windless), "a value is one of its field");
}

/// Any bytes: letters, what CSV and JSON mark with, control characters, what is no UTF-8.
rc::Gen<std::string> anyBytes() {
  return rc::gen::container<std::string>(rc::gen::oneOf(
      rc::gen::arbitrary<char>(), rc::gen::element('"', ',', '\n', '\r', ' ', '\t', '\\', 'a')));
}

/// UTF-8 of one to four bytes a character.
rc::Gen<std::string> anyText() {
  const auto character = rc::gen::element<std::string>("a", "\"", ",", "\n", "\r", " ", "\t", "\\",
                                                       "é", "☾", "𝄞", "'", "\x01", "0", ";");
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(character),
                      [](const std::vector<std::string>& characters) {
                        std::string text;
                        for (const std::string& one : characters) {
                          text += one;
                        }
                        return text;
                      });
}

Row dayWith(double wind, const Value& remark) {
  return {{}, {}, wind, remark, {}, {}, {}, {}};
}

bool isSameDouble(double one, double other) {
  return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
}

/// The number that a whole text is; −1 where it is none.
double numberIn(const std::string& text) {
  double number = 0.0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : -1.0;
}

constexpr std::size_t windColumn = 4;
constexpr std::size_t remarkColumn = 5;

RC_GTEST_PROP(RecordWriterReadBack, NumbersAreTheSameDoubles, ()) {
  const double wind = *tests::finiteDoubles();
  const std::vector<Row> rows = {dayWith(wind, {})};
  const Json document = Json::parse(written(Notation::json, weatherType(), rows, inEbb));
  RC_ASSERT(document["days"][0]["wind_knots"].is_number_float());
  RC_ASSERT(isSameDouble(document["days"][0]["wind_knots"].get<double>(), wind));
  const Json line = Json::parse(written(Notation::jsonl, weatherType(), rows, inEbb));
  RC_ASSERT(isSameDouble(line["wind_knots"].get<double>(), wind));
  const auto lines = csvLines(written(Notation::csv, weatherType(), rows, inEbb));
  RC_ASSERT(isSameDouble(numberIn(lines[1][windColumn]), wind));
}

RC_GTEST_PROP(RecordWriterReadBack, TextsAreTheSameTexts, ()) {
  const std::string remark = *anyText();
  const std::vector<Row> rows = {dayWith(1.0, remark), dayWith(2.0, remark + "end")};
  const Json document = Json::parse(written(Notation::json, weatherType(), rows, inEbb));
  RC_ASSERT(document["days"][0]["remark"].get<std::string>() == remark);
  RC_ASSERT(document["days"][1]["remark"].get<std::string>() == remark + "end");
  const auto lines = csvLines(written(Notation::csv, weatherType(), rows, inEbb));
  RC_ASSERT(lines.size() == 3U);
  RC_ASSERT(lines[1][remarkColumn] == remark);
  RC_ASSERT(lines[2][remarkColumn] == remark + "end");
}

RC_GTEST_PROP(RecordWriterReadBack, WhateverBytesATextHasItIsWrittenAsUtf8, ()) {
  const std::string bytes = *anyBytes();
  const std::vector<Row> rows = {dayWith(1.0, bytes)};
  const auto read = [&](Notation notation) {
    return Json::parse(written(notation, weatherType(), rows, {bytes, {}}));
  };
  const std::string remark = read(Notation::json)["days"][0]["remark"].get<std::string>();
  RC_ASSERT(read(Notation::json)["place"].get<std::string>() == remark);
  RC_ASSERT(read(Notation::jsonl)["remark"].get<std::string>() == remark);
  const std::string lines = written(Notation::csv, weatherType(), rows, {bytes, {}});
  RC_ASSERT(csvLines(lines)[1][remarkColumn] == remark);
  // A reader of JSON refuses what is no UTF-8.
  RC_ASSERT(Json::accept(Json(lines).dump()));
}

}  // namespace
}  // namespace veyruna
