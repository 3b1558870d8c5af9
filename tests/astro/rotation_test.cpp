#include "astro/rotation.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::Axis;
using astro::halfPi;
using astro::pi;
using astro::RotationMatrix;
using astro::rotationMatrix;
using astro::twoPi;
using astro::Vec3D;

TEST(Rotation, TheWorldIsTilted21Degrees) {
  EXPECT_EQ(astro::obliquity, 21.0 * pi / 180.0);
  EXPECT_EQ(astro::cosObliquity, std::cos(astro::obliquity));
  EXPECT_EQ(astro::sinObliquity, std::sin(astro::obliquity));
}

TEST(Rotation, TheConstantMatricesAreTheRotationsByTheObliquity) {
  EXPECT_EQ(astro::eclipticToEquatorial, rotationMatrix(Axis::x, -astro::obliquity));
  EXPECT_EQ(astro::equatorialToEcliptic, rotationMatrix(Axis::x, astro::obliquity));
}

TEST(Rotation, AngleAboveAFullTurnIsReducedByAnyRotation) {
  const Vec3D v(7.0, 0.0);
  EXPECT_EQ(v.phi, 7.0);
  for (const Axis axis : {Axis::x, Axis::y, Axis::z}) {
    const Vec3D turned = rotated(v, rotationMatrix(axis, 0.3));
    EXPECT_GE(turned.phi, 0.0);
    EXPECT_LT(turned.phi, twoPi);
  }
  EXPECT_NEAR(rotated(v, rotationMatrix(Axis::z, 0.0)).phi, 7.0 - twoPi, 1e-15);
}

TEST(Rotation, APositiveAngleTurnsTheFrameNotTheVector) {
  const Vec3D aboutZ = rotated(Vec3D(1.0, 0.0, 0.0), rotationMatrix(Axis::z, halfPi));
  EXPECT_NEAR(aboutZ.phi, 3.0 * halfPi, 1e-15);
  const Vec3D aboutX = rotated(Vec3D(0.0, 1.0, 0.0), rotationMatrix(Axis::x, halfPi));
  EXPECT_NEAR(aboutX.theta, -halfPi, 1e-15);
  const Vec3D aboutY = rotated(Vec3D(0.0, 0.0, 1.0), rotationMatrix(Axis::y, halfPi));
  EXPECT_NEAR(aboutY.v[0], -1.0, 1e-15);
}

TEST(Rotation, MatricesHaveCosinesAndSinesInTheirPlaces) {
  const double c = std::cos(0.7);
  const double s = std::sin(0.7);
  const RotationMatrix aboutX = {{{1.0, 0.0, 0.0}, {0.0, c, s}, {0.0, -s, c}}};
  const RotationMatrix aboutY = {{{c, 0.0, -s}, {0.0, 1.0, 0.0}, {s, 0.0, c}}};
  const RotationMatrix aboutZ = {{{c, s, 0.0}, {-s, c, 0.0}, {0.0, 0.0, 1.0}}};
  EXPECT_EQ(rotationMatrix(Axis::x, 0.7), aboutX);
  EXPECT_EQ(rotationMatrix(Axis::y, 0.7), aboutY);
  EXPECT_EQ(rotationMatrix(Axis::z, 0.7), aboutZ);
}

TEST(Rotation, TheEclipticsNorthernmostPointStandsAtDeclination21) {
  const Vec3D summer = rotated(Vec3D(halfPi, 0.0), astro::eclipticToEquatorial);
  EXPECT_NEAR(summer.phi, halfPi, 1e-15);
  EXPECT_NEAR(summer.theta, astro::obliquity, 1e-15);
}

TEST(Rotation, ARotationLeavesItsInputAlone) {
  const Vec3D v(7.0, 0.25);
  const Vec3D before = v;
  (void)rotated(v, rotationMatrix(Axis::x, 1.0));
  EXPECT_EQ(v.v, before.v);
  EXPECT_EQ(v.phi, before.phi);
  EXPECT_EQ(v.theta, before.theta);
}

RC_GTEST_PROP(Rotation, TheXAxisStaysUnderAnyRotationAboutIt, ()) {
  const double length = *tests::between(-10.0, 10.0);
  const Vec3D v(length, 0.0, 0.0);
  const Vec3D turned = rotated(v, rotationMatrix(Axis::x, *tests::between(-100.0, 100.0)));
  RC_ASSERT(turned.v == v.v);
  RC_ASSERT(turned.phi == v.phi);
  RC_ASSERT(turned.theta == v.theta);
}

RC_GTEST_PROP(Rotation, ToTheEquatorAndBackIsWhereItWas, ()) {
  const Vec3D v(*tests::between(-10.0, 10.0), *tests::between(-halfPi, halfPi));
  const Vec3D there = rotated(v, astro::eclipticToEquatorial);
  const Vec3D back = rotated(there, astro::equatorialToEcliptic);
  for (std::size_t i = 0; i < 3; ++i) {
    RC_ASSERT(std::abs(back.v[i] - v.v[i]) < 1e-12);
  }
  RC_ASSERT(std::abs(back.r - 1.0) < 1e-12);
  RC_ASSERT(std::abs(tests::apart(back.phi, v.phi)) * std::cos(v.theta) < 1e-12);
}

RC_GTEST_PROP(Rotation, RotationsKeepLengthAndGiveAnglesInRange, ()) {
  const Vec3D v(*tests::between(-9.0, 9.0), *tests::between(-9.0, 9.0), *tests::between(-9.0, 9.0));
  const Axis axis = *rc::gen::element(Axis::x, Axis::y, Axis::z);
  const Vec3D turned = rotated(v, rotationMatrix(axis, *tests::between(-20.0, 20.0)));
  RC_ASSERT(std::abs(turned.r - v.r) < 1e-12);
  RC_ASSERT(turned.phi >= 0.0 && turned.phi <= twoPi);
  RC_ASSERT(std::abs(turned.theta) <= halfPi);
  RC_ASSERT(astro::longitudeOf(turned.v) == turned.phi);
}

}  // namespace
}  // namespace veyruna
