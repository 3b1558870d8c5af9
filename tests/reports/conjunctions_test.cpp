#include "reports/conjunctions.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

#include "astro/arc.h"
#include "astro/calendar.h"
#include "astro/moon.h"
#include "astro/planet.h"
#include "astro/rotation.h"
#include "astro/sun.h"
#include "tests/reports/table_lines.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::Planet;
using reports::conjunctionTable;
using reports::isConjunct;
using tests::hasShape;
using tests::inRadians;
using tests::labelWidth;
using tests::linesOf;

const std::string conjunctionsHeader =
    "                      EQUATORIAL COORDINATES                                  "
    "ECLIPTIC COORDINATES                                 CONJUNCTIONS\n"
    "YR MO DAY TIME        IVRO     THESSIL BRALO    DUNMOR    GALVI    PALLOX     "
    "IVRO     THESSIL  BRALO    DUNMOR   GALVI    PALLOX   (+/- 1 deg)\n";

/// Columns after the label: six angles of 7 behind two blanks each, two blanks more, six angles.
constexpr std::size_t firstBlock = 2;
constexpr std::size_t angleStride = 9;
constexpr std::size_t secondBlock = firstBlock + 6 * angleStride + 2;
constexpr std::size_t marksColumn = secondBlock + 6 * angleStride;

/// The single row of a table without its label.
std::string rowAt(double t) {
  const std::string line = linesOf(conjunctionTable(t, {1, 1.0})).at(2);
  return line.substr(labelWidth(line));
}

std::string column(const std::string& row, std::size_t block, std::size_t index) {
  return row.substr(block + index * angleStride, 7);
}

double longitudeOf(Planet planet, double t) {
  return planetEcliptic(planet, t).phi;
}

/// Whether two planets stand less than 2° apart, the short way round.
bool standTogether(Planet a, Planet b, double t) {
  return std::abs(tests::apart(longitudeOf(a, t), longitudeOf(b, t))) < inRadians(2.0);
}

TEST(Conjunction, TwoDegreesAreTooFar) {
  const double twoDegrees = 0.03490658503988659;
  EXPECT_EQ(twoDegrees, inRadians(2.0));
  EXPECT_FALSE(isConjunct(0.0, twoDegrees));
  EXPECT_FALSE(isConjunct(twoDegrees, 0.0));
  EXPECT_TRUE(isConjunct(0.0, std::nextafter(twoDegrees, 0.0)));
  EXPECT_TRUE(isConjunct(1.0, 1.0));
}

TEST(Conjunction, AcrossTheSeamTheyAreTooFarAtTwoDegreesToo) {
  const double half = 6.2482787221397 / 2.0;
  EXPECT_NEAR(2.0 * half, inRadians(358.0), 1e-14);
  EXPECT_FALSE(isConjunct(half, -half));
  EXPECT_TRUE(isConjunct(half + 1e-15, -half));
  EXPECT_TRUE(isConjunct(inRadians(179.5), inRadians(-179.5)));
  EXPECT_TRUE(isConjunct(inRadians(-179.5), inRadians(179.5)));
}

TEST(Conjunction, TurnsAreTakenOffBeforeTheyAreCompared) {
  EXPECT_TRUE(isConjunct(inRadians(359.5), inRadians(0.5)));
  EXPECT_TRUE(isConjunct(inRadians(-719.5), inRadians(361.0)));
  EXPECT_TRUE(isConjunct(-astro::pi, astro::pi));
  EXPECT_FALSE(isConjunct(inRadians(180.0), 0.0));
}

RC_GTEST_PROP(Conjunction, IsBeingLessThanTwoDegreesApart, ()) {
  const double a = *tests::between(-20.0, 20.0);
  const double b = a + *tests::between(-0.1, 0.1);
  const double separation = std::abs(tests::apart(a, b));
  RC_PRE(std::abs(separation - inRadians(2.0)) > 1e-12);
  RC_ASSERT(isConjunct(a, b) == (separation < inRadians(2.0)));
  RC_ASSERT(isConjunct(b, a) == isConjunct(a, b));
}

TEST(ConjunctionTable, WithoutRowsIsItsTwoHeaderLines) {
  EXPECT_EQ(conjunctionTable(258840.0, {0, 1.0}), conjunctionsHeader);
  EXPECT_EQ(conjunctionsHeader.size(), 288U);
}

TEST(ConjunctionTable, ARowWithoutConjunctionEndsInTwoBlanks) {
  int quiet = 0;
  for (double t = 1000.0; t < 1100.0; t += 1.0) {
    const std::string row = rowAt(t);
    if (row.size() == marksColumn) {
      EXPECT_EQ(row.substr(marksColumn - 3).find_first_not_of(' '), 0U);
      EXPECT_EQ(row.substr(marksColumn - 2), "  ");
      ++quiet;
    }
  }
  EXPECT_GT(quiet, 0);
}

TEST(ConjunctionTable, ThreePlanetsTogetherCarryAllThreeMarksInOrder) {
  // Bralo, Dunmor and Galvi, whoever of them meets Pallox as well.
  const auto allThree = [](double t) {
    return standTogether(Planet::bralo, Planet::dunmor, t) &&
           standTogether(Planet::bralo, Planet::galvi, t) &&
           standTogether(Planet::dunmor, Planet::galvi, t) &&
           !standTogether(Planet::galvi, Planet::pallox, t) &&
           !standTogether(Planet::dunmor, Planet::pallox, t) &&
           !standTogether(Planet::bralo, Planet::pallox, t);
  };
  double t = 0.0;
  while (!allThree(t) && t < 400000.0) {
    t += 1.0;
  }
  ASSERT_TRUE(allThree(t));
  EXPECT_EQ(rowAt(t).substr(marksColumn), "BR-DU BR-GA DU-GA ") << t;
}

TEST(ConjunctionTable, PlanetsStandCrossedAndMoonAndSunAsTheHeadingsSay) {
  const double t = 258840.0;
  const std::string row = rowAt(t);
  const astro::Moon moon(t);
  const astro::Sun sun(t);
  EXPECT_EQ(column(row, firstBlock, 0), astro::Arc(moon.eq.phi).degMinText());
  EXPECT_EQ(column(row, firstBlock, 1), astro::Arc(sun.eq.phi).degMinText());
  EXPECT_EQ(column(row, secondBlock, 0), astro::Arc(moon.ec.phi).degMinText());
  EXPECT_EQ(column(row, secondBlock, 1), astro::Arc(sun.ec.phi).degMinText());
  for (const Planet planet : astro::allPlanets) {
    const astro::Vec3D ecliptic = planetEcliptic(planet, t);
    const astro::Vec3D equatorial = rotated(ecliptic, astro::eclipticToEquatorial);
    EXPECT_EQ(column(row, firstBlock, 2 + indexOf(planet)), astro::Arc(ecliptic.phi).degMinText());
    EXPECT_EQ(column(row, secondBlock, 2 + indexOf(planet)),
              astro::Arc(equatorial.phi).degMinText());
  }
}

RC_GTEST_PROP(ConjunctionTable, ColumnsHaveTheirWidths, ()) {
  const std::string row = rowAt(*tests::moments());
  RC_ASSERT(row.substr(0, 2) == "  ");
  RC_ASSERT(row.substr(secondBlock - 4, 4) == "    ");
  for (const std::size_t block : {firstBlock, secondBlock}) {
    for (std::size_t i = 0; i < 6; ++i) {
      const std::string angle = column(row, block, i);
      RC_ASSERT(hasShape(angle, "-999:99") || hasShape(angle, "   -:99"));
      RC_ASSERT(row.substr(block + i * angleStride + 7, 2) == "  ");
    }
  }
  RC_ASSERT((row.size() - marksColumn) % 6 == 0U);
}

RC_GTEST_PROP(ConjunctionTable, MarksAreThoseOfThePairsThatStandTogether, ()) {
  const double t = *tests::moments();
  const std::array<std::string, 4> codes = {"BR", "DU", "GA", "PA"};
  std::string marks;
  for (std::size_t i = 0; i < 4; ++i) {
    for (std::size_t j = i + 1; j < 4; ++j) {
      const double separation = std::abs(
          tests::apart(longitudeOf(astro::allPlanets[i], t), longitudeOf(astro::allPlanets[j], t)));
      RC_PRE(std::abs(separation - inRadians(2.0)) > 1e-12);
      if (separation < inRadians(2.0)) {
        marks += codes[i] + "-" + codes[j] + " ";
      }
    }
  }
  RC_ASSERT(rowAt(t).substr(marksColumn) == marks);
}

RC_GTEST_PROP(ConjunctionTable, RowsAreThoseOfTheMomentsAddedUp, ()) {
  const double start = *tests::moments();
  const double step = *rc::gen::element(1.0 / 144.0, 1.0, -1.0, 0.0);
  const std::vector<std::string> lines = linesOf(conjunctionTable(start, {6, step}));
  RC_ASSERT(lines.size() == 8U);
  double t = start;
  for (std::size_t row = 2; row < lines.size(); ++row) {
    RC_ASSERT(lines[row] + "\n" ==
              conjunctionTable(t, {1, step}).substr(conjunctionsHeader.size()));
    RC_ASSERT(lines[row].substr(0, labelWidth(lines[row])) == astro::calendarLabel(t));
    t += step;
  }
}

RC_GTEST_PROP(ConjunctionTable, ASinkReceivesTheHeaderAndThenEachRow, ()) {
  const std::int64_t rows = *tests::wholeBetween(0, 5);
  const double start = *tests::moments();
  std::vector<std::string> pieces;
  reports::writeConjunctionTable(start, {rows, 1.0},
                                 [&](std::string_view piece) { pieces.emplace_back(piece); });
  RC_ASSERT(pieces.size() == static_cast<std::size_t>(rows) + 1);
  RC_ASSERT(pieces.front() == conjunctionsHeader);
  std::string joined;
  for (const std::string& piece : pieces) {
    RC_ASSERT(piece.back() == '\n');
    joined += piece;
  }
  RC_ASSERT(joined == conjunctionTable(start, {rows, 1.0}));
}

}  // namespace
}  // namespace veyruna
