#include "astro/horizon.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/sun.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::halfPi;
using astro::localSiderealAngle;
using astro::pi;
using astro::toHorizon;
using astro::twoPi;
using astro::Vec3D;
using tests::inRadians;

/// A body at an hour angle (radians) and declination at base time 0 and longitude 0, where the
/// sidereal angle is 0.
Vec3D bodyAt(double hourAngle, double declination) {
  return {-hourAngle, declination};
}

Vec3D seenFrom(double latitude, double hourAngle, double declination) {
  return toHorizon(bodyAt(hourAngle, declination), {0.0, latitude, 0.0});
}

TEST(Horizon, TheSiderealAngleIsTheLongitudePlusTheTurnOfTheSky) {
  EXPECT_EQ(localSiderealAngle({.baseTime = 0.0, .longitude = 0.7}), 0.7);
  EXPECT_NEAR(localSiderealAngle({.baseTime = 1.0, .longitude = 0.0}), astro::sunMeanMotion * twoPi,
              1e-14);
  EXPECT_NEAR(localSiderealAngle({.baseTime = 1.0 / astro::siderealRate, .longitude = 0.0}), 0.0,
              1e-14);
  EXPECT_NEAR(localSiderealAngle({.baseTime = -0.25 / astro::siderealRate, .longitude = 3.0}),
              3.0 + 1.5 * pi, 1e-14);
}

TEST(Horizon, OnTheEquatorACelestialEquatorBodyOnTheMeridianIsAtTheZenith) {
  const Vec3D zenith = seenFrom(0.0, 0.0, 0.0);
  EXPECT_NEAR(zenith.theta, halfPi, 1e-15);
  EXPECT_EQ(zenith.phi, 0.0);
}

TEST(Horizon, AMeridianBodyWhoseDeclinationIsTheLatitudeIsAtTheZenith) {
  for (const double degrees : {-80.0, -33.0, 1.0, 21.0, 45.0, 78.5}) {
    const double latitude = inRadians(degrees);
    EXPECT_NEAR(seenFrom(latitude, 0.0, latitude).theta, halfPi, 1e-15) << degrees;
  }
}

TEST(Horizon, AzimuthCountsFromSouthThroughWest) {
  const double latitude = inRadians(50.0);
  EXPECT_NEAR(seenFrom(latitude, 0.0, 0.0).phi, 0.0, 1e-15);
  EXPECT_NEAR(seenFrom(latitude, halfPi, 0.0).phi, halfPi, 1e-15);
  EXPECT_NEAR(seenFrom(latitude, pi, inRadians(80.0)).phi, pi, 1e-15);
  EXPECT_NEAR(seenFrom(latitude, -halfPi, 0.0).phi, 1.5 * pi, 1e-15);
}

TEST(Horizon, OnTheMeridianNorthOfTheZenithIsNorth) {
  EXPECT_NEAR(seenFrom(inRadians(-40.0), 0.0, 0.0).phi, pi, 1e-15);
  EXPECT_NEAR(seenFrom(inRadians(-40.0), 0.0, 0.0).theta, inRadians(50.0), 1e-15);
}

RC_GTEST_PROP(Horizon, AtThePoleTheAltitudeIsTheDeclination, ()) {
  const double declination = *tests::between(-halfPi, halfPi);
  const double hourAngle = *tests::between(-10.0, 10.0);
  RC_ASSERT(std::abs(seenFrom(halfPi, hourAngle, declination).theta - declination) < 1e-12);
  RC_ASSERT(std::abs(seenFrom(-halfPi, hourAngle, declination).theta + declination) < 1e-12);
}

RC_GTEST_PROP(Horizon, TheCelestialPoleStandsInTheNorthAsHighAsTheLatitude, ()) {
  const double latitude = *tests::between(inRadians(-89.0), inRadians(89.0));
  const Vec3D pole = seenFrom(latitude, *tests::between(-10.0, 10.0), halfPi);
  RC_ASSERT(std::abs(pole.theta - latitude) < 1e-12);
  RC_ASSERT(std::abs(pole.phi - pi) < 1e-12);
}

RC_GTEST_PROP(Horizon, OnceMoreAroundTheWorldIsTheSamePlace, ()) {
  const Vec3D body(*tests::between(0.0, twoPi), *tests::between(-halfPi, halfPi));
  const double t = *tests::momentsWithin(1e6);
  const double longitude = *tests::longitudes();
  const double latitude = *tests::latitudes();
  const Vec3D here = toHorizon(body, {t, latitude, longitude});
  const Vec3D around = toHorizon(body, {t, latitude, longitude + twoPi});
  for (std::size_t i = 0; i < 3; ++i) {
    RC_ASSERT(std::abs(here.v[i] - around.v[i]) < 1e-12);
  }
}

RC_GTEST_PROP(Horizon, AgreesWithTheSphericalTriangle, ()) {
  const double rightAscension = *tests::between(0.0, twoPi);
  const double declination = *tests::between(-halfPi, halfPi);
  const double t = *tests::momentsWithin(1e6);
  const double longitude = *tests::longitudes();
  const double latitude = *tests::latitudes();
  const double hourAngle =
      localSiderealAngle({.baseTime = t, .longitude = longitude}) - rightAscension;
  const Vec3D seen = toHorizon(Vec3D(rightAscension, declination), {t, latitude, longitude});
  const double south = std::sin(latitude) * std::cos(declination) * std::cos(hourAngle) -
                       std::cos(latitude) * std::sin(declination);
  const double west = std::cos(declination) * std::sin(hourAngle);
  const double up = std::cos(latitude) * std::cos(declination) * std::cos(hourAngle) +
                    std::sin(latitude) * std::sin(declination);
  RC_ASSERT(std::abs(seen.v[0] - south) < 1e-14);
  RC_ASSERT(std::abs(seen.v[1] - west) < 1e-14);
  RC_ASSERT(std::abs(seen.v[2] - up) < 1e-14);
  RC_ASSERT(std::abs(std::sin(seen.theta) - up) < 1e-12);
}

RC_GTEST_PROP(Horizon, OneFrameServesEveryBodyAlike, ()) {
  const double t = *tests::moments();
  const double longitude = *tests::longitudes();
  const double latitude = *tests::latitudes();
  const astro::HorizonFrame frame({t, latitude, longitude});
  const Vec3D body(*tests::between(0.0, twoPi), *tests::between(-halfPi, halfPi));
  const Vec3D single = toHorizon(body, {t, latitude, longitude});
  RC_ASSERT(frame.toHorizon(body).v == single.v);
  RC_ASSERT(frame.toHorizonComponents(body) == single.v);
  RC_ASSERT(single.phi >= 0.0 && single.phi <= twoPi);
  RC_ASSERT(std::abs(single.theta) <= halfPi);
}

}  // namespace
}  // namespace veyruna
