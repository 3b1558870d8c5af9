#include "astro/moon.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/rotation.h"
#include "astro/sun.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::Moon;
using astro::twoPi;
using astro::Vec3D;

TEST(Moon, ItsPeriodsAreThoseOfTheConstants) {
  EXPECT_NEAR(1.0 / astro::moonMeanMotion, 27.6923, 0.00005);
  EXPECT_NEAR(1.0 / (astro::moonMeanMotion - astro::sunMeanMotion), 29.999985, 0.0000005);
  EXPECT_NEAR(1.0 / astro::moonNodalRate, 27.5769, 0.00005);
}

TEST(Moon, ItsOrbitIsInclinedBy8Degrees) {
  EXPECT_DOUBLE_EQ(astro::moonInclination, 8.0 * astro::pi / 180.0);
}

TEST(Moon, ItsDistanceIs1384TwentyThirdsOfTheWorldsRadius) {
  EXPECT_DOUBLE_EQ(astro::moonDistance, 1384.0 / 23.0);
}

TEST(Moon, AtTheEpochItStandsAtItsPhase) {
  EXPECT_EQ(astro::moonLongitude(0.0), 0.027630213198790443 * twoPi);
  EXPECT_NEAR(astro::moonLatitude(0.0), std::sin(-52833.2133155291) * astro::moonInclination,
              1e-15);
}

TEST(Moon, FromTheWorldsCentreItHasNoDistance) {
  const Moon moon(1000.25);
  EXPECT_EQ(moon.ec.r, 0.0);
  EXPECT_EQ(moon.ec.phi, astro::moonLongitude(1000.25));
  EXPECT_EQ(moon.ec.theta, astro::moonLatitude(1000.25));
}

RC_GTEST_PROP(Moon, FromAnObserverItIsAboutSixtyRadiiAway, ()) {
  const Moon moon({*tests::moments(), *tests::latitudes(), *tests::longitudes()});
  RC_ASSERT(std::abs(moon.ec.r - astro::moonDistance) <= 1.0 + 1e-12);
  RC_ASSERT(std::abs(moon.eq.r - moon.ec.r) < 1e-12);
}

RC_GTEST_PROP(Moon, ItsLatitudeStaysWithinTheInclination, ()) {
  RC_ASSERT(std::abs(astro::moonLatitude(*tests::moments())) <= astro::moonInclination);
}

RC_GTEST_PROP(Moon, ItComesBackAfterItsPeriods, ()) {
  const double t = *tests::momentsWithin(1e6);
  RC_ASSERT(std::abs(tests::apart(astro::moonLongitude(t + 1.0 / astro::moonMeanMotion),
                                  astro::moonLongitude(t))) < 1e-9);
  RC_ASSERT(std::abs(astro::moonLatitude(t + 1.0 / astro::moonNodalRate) - astro::moonLatitude(t)) <
            1e-9);
  RC_ASSERT(std::abs(astro::moonLatitude(t + 0.5 / astro::moonNodalRate) + astro::moonLatitude(t)) <
            1e-9);
}

RC_GTEST_PROP(Moon, BothFramesShowTheSameDirection, ()) {
  const Moon moon(*tests::moments());
  const Vec3D back = rotated(moon.eq, astro::equatorialToEcliptic);
  RC_ASSERT(std::abs(tests::apart(back.phi, moon.ec.phi)) < 1e-12);
  RC_ASSERT(std::abs(back.theta - moon.ec.theta) < 1e-12);
}

/// From the world's centre to the observer, in the equatorial frame: what parts the two moons.
Vec3D observerOf(double t, double longitude, double latitude) {
  const Moon centre(t);
  const Moon seen({t, latitude, longitude});
  const Vec3D observer(astro::moonDistance * centre.ec.v[0] - seen.ec.v[0],
                       astro::moonDistance * centre.ec.v[1] - seen.ec.v[1],
                       astro::moonDistance * centre.ec.v[2] - seen.ec.v[2]);
  return rotated(observer, astro::eclipticToEquatorial);
}

RC_GTEST_PROP(Moon, TheObserverStandsOnTheWorldsSurface, ()) {
  const double latitude = *tests::latitudes();
  const Vec3D observer = observerOf(*tests::momentsWithin(1e6), *tests::longitudes(), latitude);
  RC_ASSERT(std::abs(observer.r - 1.0) < 1e-12);
  RC_ASSERT(std::abs(std::sin(observer.theta) - std::sin(latitude)) < 1e-12);
}

RC_GTEST_PROP(Moon, TheObserversMeridianTurnsOncePerSolarDay, ()) {
  const double t = *tests::momentsWithin(1e5);
  const double longitude = *tests::longitudes();
  const Vec3D observer = observerOf(t, longitude, 0.5);
  RC_ASSERT(std::abs(tests::apart(observer.phi, t * twoPi + longitude)) < 1e-8);
  const Vec3D aDayLater = observerOf(t + 1.0, longitude, 0.5);
  RC_ASSERT(std::abs(tests::apart(observer.phi, aDayLater.phi)) < 1e-8);
}

RC_GTEST_PROP(Moon, TheObserverSeesItAtMostADegreeAside, ()) {
  const double t = *tests::moments();
  const Moon centre(t);
  const Moon seen({t, *tests::latitudes(), *tests::longitudes()});
  const double cosine = (centre.ec.v[0] * seen.ec.v[0] + centre.ec.v[1] * seen.ec.v[1] +
                         centre.ec.v[2] * seen.ec.v[2]) /
                        seen.ec.r;
  RC_ASSERT(std::acos(std::min(1.0, cosine)) <= std::asin(1.0 / astro::moonDistance) + 1e-7);
}

}  // namespace
}  // namespace veyruna
