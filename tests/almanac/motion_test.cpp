// Rates and bounds of the motions, against differences of the sky's own longitudes.
#include "almanac/motion/motion.h"

#include <cmath>
#include <gtest/gtest.h>

#include "astro/rotation.h"
#include "tests/almanac/plain_scan.h"

namespace veyruna {
namespace {

using almanac::Body;

constexpr double late = 720'000.0;

double turnBetween(double from, double to) {
  return std::remainder(to - from, astro::twoPi);
}

TEST(Motion, RatesAreTheLongitudesOwn) {
  for (const Body body : almanac::allBodies) {
    for (const double t : tests::evenly(late, late + 2000.0, 7.3)) {
      constexpr double h = 0.01;
      const double slope =
          turnBetween(tests::plainLongitude(body, t - h), tests::plainLongitude(body, t + h)) /
          (2.0 * h);
      EXPECT_NEAR(motionAt(body, t).rate, slope, 1e-6) << wordOf(body) << " " << t;
    }
  }
}

TEST(Motion, BoundsHoldAndAreReached) {
  for (const Body body : almanac::allBodies) {
    double fastest = 0.0;
    double sharpest = 0.0;
    for (const double t : tests::evenly(0.0, 4000.0, 0.05)) {
      fastest = std::max(fastest, std::abs(motionAt(body, t).rate));
      sharpest = std::max(sharpest,
                          std::abs(motionAt(body, t + 0.05).rate - motionAt(body, t).rate) / 0.05);
    }
    EXPECT_LE(fastest, speedOf(body) * (1.0 + 1e-12)) << wordOf(body);
    EXPECT_GE(fastest, speedOf(body) * 0.999) << wordOf(body);
    EXPECT_LE(sharpest, bendOf(body) + 1e-12) << wordOf(body);
    EXPECT_GE(sharpest, bendOf(body) * 0.99) << wordOf(body);
  }
}

TEST(Motion, CoursesAreDirectionsThatMoveWithinTheirBounds) {
  for (const Body body : almanac::allBodies) {
    const almanac::CourseBounds bounds = courseBoundsOf(body);
    for (const double t : tests::evenly(late, late + 1000.0, 0.37)) {
      constexpr double h = 0.001;
      const almanac::Course before = courseAt(body, t - h);
      const almanac::Course here = courseAt(body, t);
      const almanac::Course after = courseAt(body, t + h);
      double speed = 0.0;
      double bend = 0.0;
      for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(here.rate[i], (after.direction[i] - before.direction[i]) / (2.0 * h), 1e-6);
        speed += here.rate[i] * here.rate[i];
        bend += std::pow((after.rate[i] - before.rate[i]) / (2.0 * h), 2.0);
      }
      EXPECT_LE(std::sqrt(speed), bounds.speed * (1.0 + 1e-9));
      EXPECT_LE(std::sqrt(bend), bounds.bend * (1.0 + 1e-6));
    }
  }
}

TEST(Motion, StationsAreWhereTheRateTurns) {
  for (const Body body : almanac::allBodies) {
    const auto isForward = [body](double t) {
      return turnBetween(tests::plainLongitude(body, t - 1e-3),
                         tests::plainLongitude(body, t + 1e-3)) > 0.0
                 ? 1
                 : 0;
    };
    double t = late;
    for (const tests::PlainChange& turn : tests::plainChanges(isForward, late, late + 1000.0)) {
      const std::optional<double> station = nextStation(body, t);
      ASSERT_TRUE(station);
      EXPECT_NEAR(*station, turn.moment, 1e-3) << wordOf(body);
      t = *station + 0.1;
    }
    EXPECT_EQ(nextStation(body, t).has_value(), planetOf(body).has_value());
  }
}

TEST(Motion, AStationHasOneMomentFromWhereverItIsSought) {
  for (const Body body : {Body::bralo, Body::dunmor, Body::galvi, Body::pallox}) {
    double sought = late;
    for (int number = 0; number < 200; ++number) {
      const double station = nextStation(body, sought).value();
      ASSERT_GT(station, sought) << wordOf(body);
      for (const double t : tests::evenly(sought, station, (station - sought) / 6.5)) {
        EXPECT_EQ(nextStation(body, t), station) << wordOf(body) << " " << t;
      }
      EXPECT_EQ(nextStation(body, std::nextafter(station, 0.0)), station) << wordOf(body);
      sought = station;
    }
  }
}

}  // namespace
}  // namespace veyruna
