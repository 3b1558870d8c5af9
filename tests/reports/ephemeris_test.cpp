#include "reports/ephemeris.h"

#include <charconv>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <stdexcept>
#include <vector>

#include "astro/arc.h"
#include "astro/calendar.h"
#include "astro/lunar_events.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/sun.h"
#include "reports/rise_set.h"
#include "tests/reports/table_lines.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using reports::ephemerisTable;
using tests::hasShape;
using tests::inRadians;
using tests::labelWidth;
using tests::linesOf;

const std::string ephemerisHeader =
    "YR MO DAY TIME        I-RA     I-DEC    Ec-Lat   Ec-Long  T-RA    T-DEC     T-Long   Phase\n";

/// Columns after the label: two blanks, seven angles of 7, two blanks between, three behind.
constexpr std::size_t firstAngle = 2;
constexpr std::size_t ephemerisStride = 9;
constexpr std::size_t phaseColumn = firstAngle + 7 * ephemerisStride + 1;
constexpr std::size_t eventColumn = phaseColumn + 4 + 3;

/// The single row of a table without its label.
std::string rowAt(double t, double latitude) {
  const std::string line = linesOf(ephemerisTable({t, latitude}, {1, 1.0})).at(1);
  return line.substr(labelWidth(line));
}

double numberIn(const std::string& field) {
  const std::size_t begin = field.find_first_not_of(' ');
  double value = 0.0;
  std::from_chars(field.data() + begin, field.data() + field.size(), value);
  return value;
}

TEST(EphemerisTable, WithoutRowsIsItsHeader) {
  EXPECT_EQ(ephemerisTable({258840.0, 0.5}, {0, 1.0}), ephemerisHeader);
  EXPECT_EQ(ephemerisHeader.size(), 91U);
}

TEST(EphemerisTable, ANightThatLastsAllMonthHasNoEvents) {
  // Midwinter at 80° north: the sun stays below; the row of a moon that does too ends in blanks.
  const double midwinter = 0.5 + (300.0 + 0.75) / astro::sunMeanMotion;
  int quietRows = 0;
  for (const std::string& line : linesOf(ephemerisTable({midwinter, inRadians(80.0)}, {30, 1.0}))) {
    EXPECT_EQ(line.find("SR@"), std::string::npos) << line;
    EXPECT_EQ(line.find("SS@"), std::string::npos) << line;
    quietRows += line.size() == labelWidth(line) + eventColumn ? 1 : 0;
  }
  EXPECT_GT(quietRows, 5);
}

TEST(EphemerisTable, PhaseIsZeroAtNewAndOneAtFullMoon) {
  const double newMoon = astro::nextPhase({258840.0, astro::newMoonElongation});
  const double fullMoon = astro::nextPhase({258840.0, astro::fullMoonElongation});
  const double quarter = astro::nextPhase({258840.0, astro::halfPi});
  EXPECT_EQ(rowAt(newMoon, 0.0).substr(phaseColumn, 4), "0.00");
  EXPECT_EQ(rowAt(fullMoon, 0.0).substr(phaseColumn, 4), "1.00");
  EXPECT_EQ(rowAt(quarter, 0.0).substr(phaseColumn, 4), "0.50");
}

TEST(EphemerisTable, NegativeAnglesHaveTheirSignInAColumnOfItsOwn) {
  const double midwinter = 0.5 + (300.0 + 0.75) / astro::sunMeanMotion;
  EXPECT_EQ(rowAt(midwinter, 0.0).substr(firstAngle + 5 * ephemerisStride, 7), "-021.00");
  const double midsummer = 0.5 + (300.0 + 0.25) / astro::sunMeanMotion;
  EXPECT_EQ(rowAt(midsummer, 0.0).substr(firstAngle + 5 * ephemerisStride, 7), " 021.00");
}

TEST(EphemerisTable, AtTheEquinoxTheSunStandsAtZero) {
  const std::string row = rowAt(0.5, 0.0);
  EXPECT_EQ(row.substr(firstAngle + 4 * ephemerisStride, 25), " 000.00   000.00   000.00");
}

TEST(EphemerisTable, ANodeCrossingFarFromAlignmentAddsNothing) {
  for (double t = 258840.0; t < 258840.0 + 400.0; t += 1.0) {
    const double separation = std::abs(astro::elongation(t, 0.0));
    if (separation > inRadians(20.0) && separation < inRadians(160.0)) {
      EXPECT_EQ(rowAt(t, 0.5).find("OST"), std::string::npos);
    }
  }
}

TEST(EphemerisTable, EventsOfTheMoonComeBeforeThoseOfTheSunAndEclipsesLast) {
  double t = 258840.0;
  while (astro::nodeEclipseEvent(t + 0.25, 0.25).empty()) {
    t += 0.25;
  }
  const std::string events = rowAt(t, inRadians(40.0)).substr(eventColumn);
  const std::string_view eclipseShape = "*****999-99-99 99:99 OST ********** ";
  ASSERT_GT(events.size(), eclipseShape.size());
  const std::size_t eclipse = events.size() - eclipseShape.size();
  EXPECT_TRUE(hasShape(events.substr(eclipse), eclipseShape)) << events;
  std::string bodies;
  for (std::size_t at = 0; at < eclipse; at += 9) {
    EXPECT_TRUE(hasShape(events.substr(at, 9), "**@99:99 ")) << events;
    bodies += events[at];
  }
  EXPECT_EQ(bodies, "MMSS") << events;
}

RC_GTEST_PROP(EphemerisTable, ColumnsHaveTheirWidths, ()) {
  const std::string row = rowAt(*tests::moments(), *tests::latitudes());
  for (std::size_t column = 0; column < 7; ++column) {
    const std::string field = row.substr(firstAngle + column * ephemerisStride, 7);
    const std::string gap = row.substr(firstAngle + column * ephemerisStride + 7, 2);
    RC_ASSERT(hasShape(field, "-999.99"));
    RC_ASSERT(gap == "  ");
  }
  RC_ASSERT(row.substr(0, 2) == "  ");
  RC_ASSERT(row[phaseColumn - 1] == ' ');
  RC_ASSERT(hasShape(row.substr(phaseColumn, 7), "9.99   "));
}

RC_GTEST_PROP(EphemerisTable, AnglesAreThoseOfMoonAndSun, ()) {
  const double t = *tests::moments();
  const std::string row = rowAt(t, 0.3);
  const astro::Moon moon(t);
  const astro::Sun sun(t);
  const std::vector<double> angles = {moon.eq.phi, moon.eq.theta, moon.ec.theta, moon.ec.phi,
                                      sun.eq.phi,  sun.eq.theta,  sun.ec.phi};
  for (std::size_t column = 0; column < angles.size(); ++column) {
    const double printed = numberIn(row.substr(firstAngle + column * ephemerisStride, 7));
    RC_ASSERT(std::abs(printed - angles[column] * 180.0 / astro::pi) <= 0.005 + 1e-9);
  }
  const double separation = std::abs(astro::elongation(t, 0.0)) / astro::pi;
  RC_ASSERT(std::abs(numberIn(row.substr(phaseColumn, 4)) - separation) <= 0.005 + 1e-9);
}

RC_GTEST_PROP(EphemerisTable, EventsAreThoseOfTheFourQuarterDays, ()) {
  const double t = *tests::moments();
  const double latitude = *tests::latitudes();
  std::string events;
  for (const double x : {t, t + 0.25, t + 0.5, t + 0.75}) {
    events += reports::moonRiseSetEvent(x, 0.25, latitude);
  }
  for (const double x : {t, t + 0.25, t + 0.5, t + 0.75}) {
    events += reports::sunRiseSetEvent(x, 0.25, latitude);
  }
  for (const double x : {t, t + 0.25, t + 0.5, t + 0.75}) {
    events += astro::nodeEclipseEvent(x, 0.25);
  }
  RC_ASSERT(rowAt(t, latitude).substr(eventColumn) == events);
}

RC_GTEST_PROP(EphemerisTable, RowsAreThoseOfTheMomentsAddedUp, ()) {
  const double start = *tests::moments();
  const double step = *rc::gen::element(1.0 / 24.0, 1.0, 0.25, -1.0, 0.0);
  const double latitude = *tests::latitudes();
  const std::vector<std::string> lines = linesOf(ephemerisTable({start, latitude}, {6, step}));
  RC_ASSERT(lines.size() == 7U);
  double t = start;
  for (std::size_t row = 1; row < lines.size(); ++row) {
    RC_ASSERT(lines[row] + "\n" ==
              ephemerisTable({t, latitude}, {1, step}).substr(ephemerisHeader.size()));
    RC_ASSERT(lines[row].substr(0, labelWidth(lines[row])) == astro::calendarLabel(t));
    t += step;
  }
}

RC_GTEST_PROP(EphemerisTable, ASinkReceivesTheHeaderAndThenEachRow, ()) {
  const std::int64_t rows = *tests::wholeBetween(0, 5);
  const double start = *tests::moments();
  const double latitude = *tests::latitudes();
  std::vector<std::string> pieces;
  reports::writeEphemerisTable({start, latitude}, {rows, 1.0},
                               [&](std::string_view piece) { pieces.emplace_back(piece); });
  RC_ASSERT(pieces.size() == static_cast<std::size_t>(rows) + 1);
  RC_ASSERT(pieces.front() == ephemerisHeader);
  std::string joined;
  for (const std::string& piece : pieces) {
    RC_ASSERT(piece.find('\n') == piece.size() - 1);
    joined += piece;
  }
  RC_ASSERT(joined == ephemerisTable({start, latitude}, {rows, 1.0}));
}

TEST(EphemerisTable, WhatASinkThrowsPassesThrough) {
  int pieces = 0;
  const auto fullAfterTwo = [&pieces](std::string_view) {
    if (++pieces == 2) {
      throw std::runtime_error("full");
    }
  };
  EXPECT_THROW(reports::writeEphemerisTable({0.0, 0.0}, {9, 1.0}, fullAfterTwo),
               std::runtime_error);
  EXPECT_EQ(pieces, 2);
}

}  // namespace
}  // namespace veyruna
