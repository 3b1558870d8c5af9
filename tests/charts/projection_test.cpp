#include "charts/projection.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/charts/sphere.h"

namespace veyruna::charts {
namespace {

using astro::halfPi;
using tests::radians;

TEST(Projection, ThePoleIsTheCentre) {
  for (const double phi : {0.0, 1.0, -2.5, 40.0}) {
    const ProjectedPoint pole = projected(phi, halfPi);
    EXPECT_EQ(pole.distance, 0.0);
    EXPECT_EQ(pole.roundedX(), 180);
    EXPECT_EQ(pole.roundedY(), 180);
  }
}

TEST(Projection, LongitudeZeroPointsUpAndGrowsClockwise) {
  const auto onRim = [](double longitude) { return projected(radians(longitude), 0.0); };
  EXPECT_EQ(onRim(0.0).roundedX(), 180);
  EXPECT_EQ(onRim(0.0).roundedY(), 0);
  EXPECT_EQ(onRim(90.0).roundedX(), 360);
  EXPECT_EQ(onRim(90.0).roundedY(), 180);
  EXPECT_EQ(onRim(180.0).roundedX(), 180);
  EXPECT_EQ(onRim(180.0).roundedY(), 360);
  EXPECT_EQ(onRim(-90.0).roundedX(), 0);
  EXPECT_EQ(onRim(-90.0).roundedY(), 180);
}

TEST(Projection, TheGridCirclesStandAtThirtySixtyAndNinetyDegreesFromThePole) {
  EXPECT_DOUBLE_EQ(projected(0.0, radians(67.5)).exact().y, 180.0 - 45.0);
  EXPECT_DOUBLE_EQ(projected(0.0, radians(45.0)).exact().y, 180.0 - 90.0);
  EXPECT_DOUBLE_EQ(projected(0.0, radians(22.5)).exact().y, 180.0 - 135.0);
}

TEST(Projection, TheFarPoleIsTwoRadiiAway) {
  EXPECT_DOUBLE_EQ(projected(0.7, -halfPi).distance, 2.0);
}

TEST(Projection, HalvesRoundAwayFromTheCentre) {
  const auto at = [](double right, double up) { return ProjectedPoint{0.5, right, up}; };
  EXPECT_EQ(at(0.5, 0.0).roundedX(), 181);
  EXPECT_EQ(at(-0.5, 0.0).roundedX(), 179);
  EXPECT_EQ(at(2.5, 0.0).roundedX(), 183);
  EXPECT_EQ(at(0.0, 0.5).roundedY(), 179);
  EXPECT_EQ(at(0.0, -0.5).roundedY(), 181);
  EXPECT_EQ(at(0.0, -2.5).roundedY(), 183);
  EXPECT_EQ(at(0.4999999, -0.4999999).roundedX(), 180);
  EXPECT_EQ(at(0.4999999, -0.4999999).roundedY(), 180);
}

RC_GTEST_PROP(Projection, DistanceOnThePageIsTheAngleFromThePole, ()) {
  const double phi = *rc::gen::inRange(-3'600'000, 3'600'001) / 10'000.0;
  const double theta = radians(*rc::gen::inRange(-900'000, 900'001) / 10'000.0);
  const PagePoint at = projected(phi, theta).exact();
  const double fromCentre = std::hypot(at.x - 180.0, at.y - 180.0);
  RC_ASSERT(std::abs(fromCentre - (90.0 - tests::degrees(theta)) * 2.0) < 1e-9);
  if (fromCentre > 0.01) {
    RC_ASSERT(std::abs(tests::nearZero(std::atan2(at.x - 180.0, 180.0 - at.y) - phi)) < 1e-9);
  }
}

}  // namespace
}  // namespace veyruna::charts
