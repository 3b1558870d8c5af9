#include "words/angles.h"

#include <gtest/gtest.h>
#include <random>

#include "astro/angle.h"
#include "words/values.h"

namespace veyruna {
namespace {

using astro::radiansOf;
using words::degreesText;

TEST(DegreesText, HasAsFewDigitsAsAPersonTypes) {
  EXPECT_EQ(degreesText(radiansOf(40.5)), "40.5");
  EXPECT_EQ(degreesText(radiansOf(-33.0)), "-33");
  EXPECT_EQ(degreesText(0.0), "0");
  EXPECT_EQ(degreesText(radiansOf(12.3456789)), "12.3456789");
}

/// An angle back in degrees is a few roundings away from the degrees it came from.
TEST(DegreesText, ReadsBackAsTheSameAngleHoweverItWasTyped) {
  EXPECT_EQ(words::latitudeOf(degreesText(radiansOf(1.111111111911))), radiansOf(1.111111111911));
  std::mt19937 random(20);
  std::uniform_real_distribution<double> anyLongitude(-180.0, 180.0);
  for (int i = 0; i < 20'000; ++i) {
    const double angle = radiansOf(anyLongitude(random));
    ASSERT_EQ(words::longitudeOf(degreesText(angle)), angle) << degreesText(angle);
  }
  for (const double edge : {astro::pi, -astro::pi}) {
    EXPECT_EQ(words::longitudeOf(degreesText(edge)), edge);
  }
}

TEST(ShortCoordinates, ReadBackWithTheirLetters) {
  EXPECT_EQ(words::shortCoordinatesText(radiansOf(40.5), radiansOf(-20.9)), "40.5N,20.9W");
  EXPECT_EQ(words::shortCoordinatesText(radiansOf(-0.25), 0.0), "0.25S,0E");
}

}  // namespace
}  // namespace veyruna
