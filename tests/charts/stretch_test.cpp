#include "charts/stretch.h"

#include <cmath>
#include <gtest/gtest.h>

namespace veyruna::charts {
namespace {

TEST(Stretches, ADotIsAsFarAsItsEdge) {
  const Stretch dot{{10.0, 20.0}, {10.0, 20.0}, 2.0};
  EXPECT_EQ(dot.distanceTo({10.0, 20.0}), 0.0);
  EXPECT_EQ(dot.distanceTo({11.0, 21.0}), 0.0);
  EXPECT_EQ(dot.distanceTo({15.0, 20.0}), 3.0);
  EXPECT_EQ(dot.distanceTo({13.0, 24.0}), 3.0);
}

TEST(Stretches, ALineIsAsFarAsItsNearestPoint) {
  const Stretch line{{0.0, 0.0}, {10.0, 0.0}, 0.5};
  EXPECT_EQ(line.distanceTo({5.0, 0.0}), 0.0);
  EXPECT_EQ(line.distanceTo({5.0, -3.0}), 2.5);
  EXPECT_EQ(line.distanceTo({13.0, 4.0}), 4.5);
  EXPECT_EQ(line.distanceTo({-3.0, -4.0}), 4.5);
  EXPECT_EQ(line.middle().x, 5.0);
}

TEST(Stretches, LettersBeginWhereTheyAreWritten) {
  const Stretch letters = letteringAt({100.0, 50.0}, "Bralo", 6.0);
  EXPECT_EQ(letters.from.x, 100.0);
  EXPECT_EQ(letters.to.x, 115.0);
  EXPECT_LT(letters.from.y, 50.0);
  EXPECT_GT(letters.from.y - letters.radius, 44.0);
  EXPECT_EQ(letteringAt({0.0, 0.0}, "5°", 2.0).to.x, 2.0) << "a letter of two bytes is one";
  EXPECT_EQ(letteringAbout({100.0, 50.0}, "Voni", 5.0).middle().x, 100.0);
}

TEST(Stretches, LettersAlongTheRimFollowItClockwise) {
  const Stretch letters = letteringAlong(175.0, 0.0, "Voni", 5.0);
  EXPECT_DOUBLE_EQ(letters.from.x, 180.0);
  EXPECT_NEAR(letters.from.y, 180.0 - 176.75, 1e-9);
  EXPECT_GT(letters.to.x, 185.0);
  EXPECT_NEAR(std::hypot(letters.to.x - 180.0, letters.to.y - 180.0), 176.75, 1e-9);
}

}  // namespace
}  // namespace veyruna::charts
