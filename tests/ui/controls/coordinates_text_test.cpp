// A place in words: the sidebar's, the caption's and the map's.
#include "ui/controls/coordinates_text.h"

#include <gtest/gtest.h>
#include <limits>

#include "astro/angle.h"

namespace veyruna::ui {
namespace {

constexpr double degree = astro::pi / 180.0;

TEST(CoordinatesText, HasThreeSpacesAndAPointInEveryLocale) {
  EXPECT_EQ(coordinatesText(40.5 * degree, -20.9 * degree), QStringLiteral("40.50° N   20.90° W"));
  EXPECT_EQ(coordinatesText(0.0, 0.0), QStringLiteral("0.00° N   0.00° E"));
}

TEST(CoordinatesText, HasAsManyDecimalsAsAreAskedFor) {
  EXPECT_EQ(coordinatesText(-1.23449 * degree, 44.9996 * degree, 3),
            QStringLiteral("1.234° S   45.000° E"));
  EXPECT_EQ(coordinatesText(40.6 * degree, -20.9 * degree, 0), QStringLiteral("41° N   21° W"));
}

TEST(CoordinatesText, ACoordinateThatIsNoNumberIsADash) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  constexpr double endless = std::numeric_limits<double>::infinity();
  EXPECT_EQ(coordinatesText(none, 1.0 * degree), QStringLiteral("–   1.00° E"));
  EXPECT_EQ(coordinatesText(1.0 * degree, -endless), QStringLiteral("1.00° N   –"));
}

}  // namespace
}  // namespace veyruna::ui
