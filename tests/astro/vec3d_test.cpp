#include "astro/vec3d.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::halfPi;
using astro::pi;
using astro::Vec3D;

TEST(Vec3D, FromAnglesIsAUnitVectorThatKeepsThemAndHasNoLength) {
  const Vec3D v(7.0, 0.5);
  EXPECT_EQ(v.phi, 7.0);
  EXPECT_EQ(v.theta, 0.5);
  EXPECT_EQ(v.r, 0.0);
  EXPECT_NEAR(v.v[0] * v.v[0] + v.v[1] * v.v[1] + v.v[2] * v.v[2], 1.0, 1e-15);
}

TEST(Vec3D, AxesPointToLongitude0ToLongitude90AndToThePole) {
  const Vec3D x(0.0, 0.0);
  EXPECT_EQ(x.v, (std::array<double, 3>{1.0, 0.0, 0.0}));
  const Vec3D y(halfPi, 0.0);
  EXPECT_NEAR(y.v[1], 1.0, 1e-15);
  const Vec3D pole(1.0, halfPi);
  EXPECT_NEAR(pole.v[2], 1.0, 1e-15);
}

TEST(Vec3D, FromComponentsFillsAnglesAndLength) {
  const Vec3D v(-3.0, -4.0, 12.0);
  EXPECT_DOUBLE_EQ(v.r, 13.0);
  EXPECT_DOUBLE_EQ(v.phi, pi + std::atan2(4.0, 3.0));
  EXPECT_DOUBLE_EQ(v.theta, std::asin(12.0 / 13.0));
}

TEST(Vec3D, TheZeroVectorHasZeroAngles) {
  const Vec3D v(0.0, 0.0, 0.0);
  EXPECT_EQ(v.phi, 0.0);
  EXPECT_EQ(v.theta, 0.0);
  EXPECT_EQ(v.r, 0.0);
}

TEST(Vec3D, StraightDownHasLongitude0) {
  const Vec3D v(0.0, 0.0, -2.0);
  EXPECT_EQ(v.phi, 0.0);
  EXPECT_EQ(v.theta, -halfPi);
  EXPECT_EQ(v.r, 2.0);
}

RC_GTEST_PROP(Vec3D, ItsAnglesPointWhereItsComponentsDo, ()) {
  const Vec3D v(*tests::between(-9.0, 9.0), *tests::between(-9.0, 9.0), *tests::between(-9.0, 9.0));
  const Vec3D unit(v.phi, v.theta);
  for (std::size_t i = 0; i < 3; ++i) {
    RC_ASSERT(std::abs(unit.v[i] * v.r - v.v[i]) < 1e-12);
  }
}

}  // namespace
}  // namespace veyruna
