#include "reports/positions.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

#include "astro/arc.h"
#include "astro/horizon.h"
#include "astro/moon.h"
#include "astro/planet.h"
#include "astro/rotation.h"
#include "astro/sun.h"
#include "reports/zodiac.h"
#include "tests/reports/table_lines.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using reports::PositionRow;
using reports::positionRows;
using reports::positionsTableText;
using tests::inRadians;

const std::string positionsHeader =
    "Body           Azimuth    Altitude   Ec. Long.   Sign\n"
    "----           -------    --------   ---------   ----\n";

TEST(Positions, SixBodiesInTheirOrder) {
  const auto rows = positionRows({258840.0, 0.5, 0.5});
  const char* const expected[6][2] = {{"Thessil", "Sun"},       {"Ivro", "Moon"},
                                      {"Bralo", "Terrestrial"}, {"Dunmor", "Terrestrial"},
                                      {"Galvi", "Gas Giant"},   {"Pallox", "Gas Giant"}};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].name, expected[i][0]);
    EXPECT_EQ(rows[i].bodyType, expected[i][1]);
  }
}

/// A longitude at which the sun of the first equinox stands on the meridian.
double meridianOfTheEquinox() {
  return -astro::localSiderealAngle({.baseTime = 0.5, .longitude = 0.0});
}

TEST(Positions, OnTheMeridianSouthOfTheZenithTheAzimuthIsZero) {
  const PositionRow sun = positionRows({0.5, inRadians(40.0), meridianOfTheEquinox()})[0];
  EXPECT_EQ(sun.azimuth, "    :00");
  EXPECT_EQ(sun.altitude, " 050:00");
  EXPECT_EQ(sun.ecLong, "    :00");
  EXPECT_EQ(sun.sign, "Voni       ");
}

TEST(Positions, OnTheMeridianNorthOfTheZenithTheAzimuthIs180Degrees) {
  const PositionRow sun = positionRows({0.5, inRadians(-40.0), meridianOfTheEquinox()})[0];
  EXPECT_EQ(sun.azimuth, " 180:00");
  EXPECT_EQ(sun.altitude, " 050:00");
}

TEST(Positions, ABodyBelowTheHorizonHasANegativeAltitude) {
  const double midnight = meridianOfTheEquinox() + astro::pi;
  const PositionRow sun = positionRows({0.5, inRadians(77.5), midnight})[0];
  EXPECT_EQ(sun.altitude, "-012:30");
  EXPECT_EQ(sun.azimuth, " 180:00");
}

TEST(Positions, OnTheCelestialEquatorTheSunSetsDueWest) {
  const PositionRow sun =
      positionRows({0.5, inRadians(40.0), meridianOfTheEquinox() + astro::halfPi})[0];
  EXPECT_EQ(sun.azimuth, " 090:00");
}

TEST(Positions, APlanetWestOfTheEquinoxHasANegativeLongitude) {
  double t = 1000.0;
  while (planetEcliptic(astro::Planet::dunmor, t).phi > -0.5) {
    t += 1.0;
  }
  EXPECT_EQ(positionRows({t, 0.0, 0.0})[3].ecLong.front(), '-');
}

/// The degrees a text of degrees and minutes reads.
double degreesOf(const std::string& text) {
  const std::size_t colon = text.find(':');
  const double minutes = std::strtod(text.c_str() + colon + 1, nullptr);
  const double magnitude =
      std::abs(std::strtod(text.substr(0, colon).c_str(), nullptr)) + minutes / 60.0;
  return text.find('-') == std::string::npos ? magnitude : -magnitude;
}

constexpr double halfAMinute = 0.5 / 60.0 + 1e-6;

RC_GTEST_PROP(Positions, AreWhatTheHorizonShows, ()) {
  const double t = *tests::momentsWithin(1e6);
  const double latitude = *tests::latitudes();
  const double longitude = *tests::longitudes();
  const auto rows = positionRows({t, latitude, longitude});
  std::vector<astro::Vec3D> ecliptic = {astro::Sun(t).ec, astro::Moon({t, latitude, longitude}).ec};
  for (const astro::Planet planet : astro::allPlanets) {
    ecliptic.push_back(planetEcliptic(planet, t));
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    // Every column is named, so that one more does not compile until it is compared here.
    const auto& [name, bodyType, azimuthText, altitudeText, ecLong, sign] = rows[i];
    const astro::Vec3D equatorial = rotated(ecliptic[i], astro::eclipticToEquatorial);
    const double hourAngle =
        astro::localSiderealAngle({.baseTime = t, .longitude = longitude}) - equatorial.phi;
    const double up = std::sin(latitude) * std::sin(equatorial.theta) +
                      std::cos(latitude) * std::cos(equatorial.theta) * std::cos(hourAngle);
    RC_ASSERT(std::abs(degreesOf(altitudeText) - std::asin(up) * astro::degreesPerRadian) <=
              halfAMinute);
    const double south =
        std::sin(latitude) * std::cos(hourAngle) - std::cos(latitude) * std::tan(equatorial.theta);
    const double azimuth = std::atan2(std::sin(hourAngle), south) * astro::degreesPerRadian;
    RC_ASSERT(std::abs(std::remainder(degreesOf(azimuthText) - azimuth, 360.0)) <= halfAMinute);
    RC_ASSERT(ecLong == astro::Arc(ecliptic[i].phi).degMinText());
    RC_ASSERT(sign == reports::signName(ecliptic[i].phi));
  }
}

RC_GTEST_PROP(Positions, TextsHaveTheirWidths, ()) {
  for (const PositionRow& row :
       positionRows({*tests::moments(), *tests::latitudes(), *tests::longitudes()})) {
    RC_ASSERT(row.azimuth.size() == 7U);
    RC_ASSERT(row.altitude.size() == 7U);
    RC_ASSERT(row.ecLong.size() == 7U);
    RC_ASSERT(row.sign.size() == 11U);
  }
}

TEST(PositionsTable, WithoutRowsIsItsHeader) {
  EXPECT_EQ(positionsTableText({}), positionsHeader);
}

PositionRow rowNamed(const std::string& name) {
  return {name, "Sun", " 012:34", "-056:07", "   -:08", "Gimbral    "};
}

std::string lineNamed(const std::string& name) {
  const std::vector<PositionRow> rows = {rowNamed(name)};
  return positionsTableText(rows).substr(positionsHeader.size());
}

TEST(PositionsTable, ColumnsArePartedByTheirBlanks) {
  EXPECT_EQ(lineNamed("Thessil"), "Thessil        012:34    -056:07       -:08      Gimbral    \n");
}

TEST(PositionsTable, ALongNameIsCutAndAnEmptyOnePadded) {
  const std::string rest = "  012:34    -056:07       -:08      Gimbral    \n";
  EXPECT_EQ(lineNamed("ThirteenChars"), "ThirteenChars" + rest);
  EXPECT_EQ(lineNamed("FourteenLetter"), "FourteenLette" + rest);
  EXPECT_EQ(lineNamed(""), std::string(13, ' ') + rest);
}

TEST(PositionsTable, NamesAreMeasuredInCharactersNotBytes) {
  const std::string rest = "  012:34    -056:07       -:08      Gimbral    \n";
  EXPECT_EQ(lineNamed("Ëlåra"), "Ëlåra        " + rest);
  EXPECT_EQ(lineNamed("éééééééééééééé"), "ééééééééééééé" + rest);
}

RC_GTEST_PROP(PositionsTable, EveryLineHoldsItsRow, ()) {
  const auto rows = positionRows({*tests::moments(), *tests::latitudes(), *tests::longitudes()});
  const std::vector<std::string> lines = tests::linesOf(positionsTableText(rows));
  RC_ASSERT(lines.size() == 8U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::string& line = lines[i + 2];
    RC_ASSERT(line.substr(0, 14) == rows[i].name + std::string(14 - rows[i].name.size(), ' '));
    RC_ASSERT(line.substr(14) == rows[i].azimuth + "    " + rows[i].altitude + "    " +
                                     rows[i].ecLong + "      " + rows[i].sign);
  }
}

}  // namespace
}  // namespace veyruna
