// Tables and searches at zeros, poles, year ends, before the epoch and at moments beyond all
// calendars.
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "astro/angle.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"
#include "reports/positions.h"
#include "reports/rise_set.h"
#include "reports/zodiac.h"
#include "tests/reports/table_lines.h"
#include "tests/support/expect_stop.h"

namespace veyruna {
namespace {

using reports::conjunctionTable;
using reports::ephemerisTable;
using tests::labelWidth;
using tests::linesOf;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double hugeNumbers[] = {1e15, -1e15, 1e17, -1e17, 1e300, -1e300};

/// The minutes since the first midnight that a line's label stands for.
long long minutesOf(const std::string& line) {
  long long year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  EXPECT_EQ(std::sscanf(line.c_str(), "%lld-%d-%d %d:%d OST", &year, &month, &day, &hour, &minute),
            5)
      << line;
  return ((((year - 1) * 12 + month - 1) * 30 + day - 1) * 24 + hour) * 60 + minute;
}

void expectLabelsInOrder(const std::string& table, std::size_t headerLines, long long minutes) {
  const std::vector<std::string> lines = linesOf(table);
  for (std::size_t i = headerLines + 1; i < lines.size(); ++i) {
    const long long passed = minutesOf(lines[i]) - minutesOf(lines[i - 1]);
    EXPECT_TRUE(passed >= minutes - 1 && passed <= minutes + 1) << lines[i - 1] << "\n" << lines[i];
  }
}

TEST(ReportsEdges, LabelsGoOnAcrossYearEndsAndTheEpoch) {
  for (const double start : {-360.0 * 3.5, -15.0, -0.75, 360.0 - 15.0, 360.0 * 998.9}) {
    expectLabelsInOrder(ephemerisTable({start, 0.7}, {24, 1.0 / 24.0}), 1, 60);
    expectLabelsInOrder(ephemerisTable({start, 0.7}, {30, 1.0}), 1, 1440);
    expectLabelsInOrder(conjunctionTable(start, {144, 1.0 / 144.0}), 2, 10);
    expectLabelsInOrder(conjunctionTable(start, {360, 1.0}), 2, 1440);
  }
}

TEST(ReportsEdges, TheYearEndsBetweenTwoRows) {
  const std::vector<std::string> lines =
      linesOf(ephemerisTable({359.5 - 1.0 / 24.0, 0.0}, {2, 1.0 / 24.0}));
  EXPECT_EQ(lines.at(1).substr(0, labelWidth(lines[1])), "001-12-30 23:00 OST");
  EXPECT_EQ(lines.at(2).substr(0, labelWidth(lines[2])), "002-01-01 00:00 OST");
}

TEST(ReportsEdges, ZerosOfBothSignsAreTheSameMomentAndLatitude) {
  EXPECT_EQ(ephemerisTable({0.0, 0.0}, {4, 0.25}), ephemerisTable({-0.0, -0.0}, {4, 0.25}));
  EXPECT_EQ(conjunctionTable(0.0, {4, 0.25}), conjunctionTable(-0.0, {4, 0.25}));
  const std::string zero = reports::positionsTableText(reports::positionRows({0.0, 0.0, 0.0}));
  EXPECT_EQ(reports::positionsTableText(reports::positionRows({-0.0, -0.0, -0.0})), zero);
}

TEST(ReportsEdges, OverThePoleTheTablesStillHaveTheirRows) {
  for (const double latitude : {astro::halfPi, -astro::halfPi, 1.6, -1.6, 100.0, 1e300}) {
    EXPECT_EQ(linesOf(ephemerisTable({720.0, latitude}, {24, 1.0 / 24.0})).size(), 25U) << latitude;
    EXPECT_EQ(reports::positionRows({720.0, latitude, 0.0})[0].altitude.size(), 7U) << latitude;
  }
}

TEST(ReportsEdges, FullTurnsOfLongitudeDoNotMoveTheObserver) {
  const auto here = reports::positionRows({1000.3, 0.5, 0.25});
  const auto around = reports::positionRows({1000.3, 0.5, 0.25 + astro::twoPi});
  for (std::size_t i = 0; i < here.size(); ++i) {
    EXPECT_EQ(here[i].azimuth, around[i].azimuth);
    EXPECT_EQ(here[i].altitude, around[i].altitude);
  }
}

TEST(ReportsEdges, SignsAndConjunctionsEndAtHugeLongitudes) {
  for (const double huge : hugeNumbers) {
    EXPECT_EQ(reports::signName(huge).size(), 11U) << huge;
    EXPECT_TRUE(reports::isConjunct(huge, huge)) << huge;
    EXPECT_EQ(reports::isConjunct(huge, 0.0), reports::isConjunct(0.0, huge)) << huge;
  }
}

TEST(ReportsEdges, SearchesEndAtHugeMoments) {
  for (const double huge : hugeNumbers) {
    for (const double latitude : {0.0, 0.7, astro::halfPi, huge}) {
      EXPECT_EQ(reports::moonRiseSetEvent(huge, 0.25, latitude).size() % 9, 0U) << huge;
      EXPECT_EQ(reports::sunRiseSetEvent(huge, 0.25, latitude).size() % 9, 0U) << huge;
      EXPECT_EQ(reports::sunRiseSetEvent(0.0, huge, latitude).size() % 9, 0U) << huge;
    }
    for (const reports::PositionRow& row : reports::positionRows({huge, 0.7, huge})) {
      EXPECT_EQ(row.azimuth.size(), 7U) << huge;
    }
  }
}

TEST(ReportsEdges, TablesEndWhereAStepNoLongerMovesTheMoment) {
  for (const double start : {1e9, -1e9, 1e12, 1e14, -1e14}) {
    EXPECT_EQ(linesOf(ephemerisTable({start, 0.7}, {3, 1.0 / 24.0})).size(), 4U) << start;
    EXPECT_EQ(linesOf(conjunctionTable(start, {3, 1.0 / 144.0})).size(), 5U) << start;
  }
  EXPECT_EQ(linesOf(ephemerisTable({1000.0, 0.7}, {3, 0.0})).size(), 4U);
  EXPECT_EQ(linesOf(conjunctionTable(1000.0, {1, 1e300})).size(), 3U);
}

TEST(ReportsEdgesDeathTest, ATableHasNoNegativeNumberOfRows) {
  const char* message = "veyruna: broken invariant: a table has no negative number of rows";
  EXPECT_STOP(ephemerisTable({0.0, 0.0}, {-1, 1.0}), message);
  EXPECT_STOP(conjunctionTable(0.0, {-1, 1.0}), message);
  EXPECT_STOP(ephemerisTable({}, {std::numeric_limits<std::int64_t>::min(), 1.0}), message);
}

TEST(ReportsEdgesDeathTest, MomentsBeyondTheCalendarStopTheProgram) {
  for (const double none : {1e15, 1e300, -1e300}) {
    EXPECT_STOP(ephemerisTable({none, 0.0}, {1, 1.0}), "a base time is a 64-bit number of seconds");
    EXPECT_STOP(conjunctionTable(none, {1, 1.0}), "a base time is a 64-bit number of seconds");
  }
}

TEST(ReportsEdgesDeathTest, NumbersThatAreNoneStopTheProgram) {
  const char* broken = "veyruna: broken invariant: ";
  for (const double none : {notANumber, infinity, -infinity}) {
    EXPECT_STOP(ephemerisTable({none, 0.0}, {1, 1.0}), broken);
    EXPECT_STOP(conjunctionTable(none, {1, 1.0}), broken);
    EXPECT_STOP(reports::positionRows({none, 0.0, 0.0}), broken);
    EXPECT_STOP(reports::positionRows({0.0, none, 0.0}), broken);
    EXPECT_STOP(reports::positionRows({0.0, 0.0, none}), broken);
    EXPECT_STOP(reports::signName(none), broken);
    EXPECT_STOP(reports::isConjunct(none, 0.0), broken);
    EXPECT_STOP(reports::isConjunct(0.0, none), broken);
  }
}

}  // namespace
}  // namespace veyruna
