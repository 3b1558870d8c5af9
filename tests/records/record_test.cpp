#include "records/record.h"

#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

#include "astro/calendar.h"
#include "tests/records/weather.h"
#include "tests/support/expect_stop.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using records::RecordType;
using records::Row;
using records::Value;
using tests::weatherType;

using Numbers = std::vector<double>;
using Texts = std::vector<std::string>;

Row calmDay() {
  return {false, std::int64_t{0}, 0.5,          "nothing",
          "sea", Texts{"high"},   Numbers{1.5}, "720-06-12T00:00"};
}

Row calmDayWith(std::size_t field, const Value& value) {
  Row row = calmDay();
  row[field] = value;
  return row;
}

void requireDay(const Row& row) {
  records::requireRowOf(weatherType().fields, row);
}

TEST(Record, WhatIsOptionalMayBeAbsent) {
  requireDay(calmDay());
  for (const std::size_t optional : {0U, 1U, 3U, 4U, 5U, 6U, 7U}) {
    requireDay(calmDayWith(optional, {}));
  }
}

TEST(RecordDeathTest, ARowThatIsNotOneStopsTheProgram) {
  Row shorter = calmDay();
  shorter.pop_back();
  EXPECT_STOP(requireDay(shorter), "a row has a value for each field \\(7, 8\\)");
  EXPECT_STOP(requireDay(calmDayWith(2, {})), "a value is one of its field \\(2\\)");
  EXPECT_STOP(requireDay(calmDayWith(2, std::int64_t{1})), "a value is one of its field");
  EXPECT_STOP(requireDay(calmDayWith(0, 1.0)), "a value is one of its field");
  EXPECT_STOP(requireDay(calmDayWith(1, true)), "a value is one of its field");
  EXPECT_STOP(requireDay(calmDayWith(3, Texts{"a"})), "a value is one of its field");
  EXPECT_STOP(requireDay(calmDayWith(6, 3.0)), "a value is one of its field");
  EXPECT_STOP(requireDay(calmDayWith(5, "a")), "a value is one of its field");
  EXPECT_STOP(requireDay(calmDayWith(7, 3.0)), "a value is one of its field");
}

TEST(RecordDeathTest, ANumberThatIsNoneStopsTheProgram) {
  using Limits = std::numeric_limits<double>;
  for (const double none : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity()}) {
    EXPECT_STOP(requireDay(calmDayWith(2, none)), "a value is one of its field");
    EXPECT_STOP(requireDay(calmDayWith(6, Numbers{1.0, none})), "a value is one of its field");
  }
}

TEST(RecordDeathTest, AWordThatIsNoneOfTheFieldsStopsTheProgram) {
  requireDay(calmDayWith(4, "land"));
  EXPECT_STOP(requireDay(calmDayWith(4, "above")), "a value is one of its field");
  EXPECT_STOP(requireDay(calmDayWith(4, "Land")), "a value is one of its field");
}

TEST(RecordDeathTest, ATypeWithAmbiguousNamesStopsTheProgram) {
  records::requireSoundType(weatherType());
  const auto changed = [](auto change) {
    RecordType type = weatherType();
    change(type);
    return type;
  };
  const char* const itsNames = "a type of records has its names";
  const char* const ofItsOwn = "a field has a name of its own";
  EXPECT_STOP(records::requireSoundType(changed([](RecordType& type) { type.name = "The sky"; })),
              itsNames);
  EXPECT_STOP(
      records::requireSoundType(changed([](RecordType& type) { type.rowsMember = "schema"; })),
      itsNames);
  EXPECT_STOP(records::requireSoundType(changed([](RecordType& type) { type.version = 0; })),
              itsNames);
  EXPECT_STOP(records::requireSoundType(changed([](RecordType& type) { type.fields.clear(); })),
              itsNames);
  for (const char* const taken : {"schema", "days", "place", "is_wet", "", "Wind", "wind-knots"}) {
    EXPECT_STOP(records::requireSoundType(
                    changed([taken](RecordType& type) { type.fields[2].name = taken; })),
                ofItsOwn)
        << taken;
  }
  EXPECT_STOP(
      records::requireSoundType(changed([](RecordType& type) { type.fields[2].description = ""; })),
      "is described");
}

TEST(RecordDate, IsWhatTheTextOutputReads) {
  EXPECT_EQ(records::dateOf(0.0), Value("001-01-01T12:00"));
  EXPECT_EQ(records::dateOf(258840.0), Value("720-01-01T12:00"));
  // Rounded to the second, then cut to the minute.
  const double minute = 1.0 / 1440.0;
  EXPECT_EQ(records::dateOf(0.5 - 0.4 / 86400.0), Value("001-01-02T00:00"));
  EXPECT_EQ(records::dateOf(0.5 - 0.6 / 86400.0), Value("001-01-01T23:59"));
  EXPECT_EQ(records::dateOf(-0.5), Value("001-01-01T00:00"));
  EXPECT_EQ(records::dateOf(-0.5 - minute), Value());
  EXPECT_EQ(records::dateOf(-1e9), Value());
}

RC_GTEST_PROP(RecordDate, IsTheLabelsDateAndClockAtEveryMoment, ()) {
  const double t = *tests::moments();
  const std::string label = astro::calendarLabel(t);
  const Value date = records::dateOf(t);
  if (astro::calendarReading(t)) {
    const std::string text = std::get<std::string>(date);
    RC_ASSERT(text.substr(0, text.find('T')) + " " + text.substr(text.find('T') + 1) + " OST" ==
              label);
  } else {
    RC_ASSERT(std::holds_alternative<std::monostate>(date));
  }
}

}  // namespace
}  // namespace veyruna
