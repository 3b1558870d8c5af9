#include "reports/zodiac.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <set>
#include <string>

#include "astro/angle.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::pi;
using astro::twoPi;
using reports::signAt;
using reports::signName;
using reports::signNameWithMeaning;
using reports::zodiacSigns;

TEST(Zodiac, SignsFollowEachOtherOnceAroundTheEcliptic) {
  for (std::size_t i = 1; i < zodiacSigns.size(); ++i) {
    EXPECT_LT(zodiacSigns[i - 1].start, zodiacSigns[i].start);
  }
  EXPECT_GT(zodiacSigns.front().start, 0.0);
  EXPECT_LT(zodiacSigns.back().start, twoPi);
}

TEST(Zodiac, SignsAreBetweenTwentyNineAndThirtyTwoDegreesWide) {
  for (std::size_t i = 0; i < zodiacSigns.size(); ++i) {
    const double next =
        i + 1 < zodiacSigns.size() ? zodiacSigns[i + 1].start : zodiacSigns[0].start + twoPi;
    const double degrees = (next - zodiacSigns[i].start) * astro::degreesPerRadian;
    EXPECT_TRUE(degrees > 28.9 && degrees < 32.0) << zodiacSigns[i].name;
  }
}

TEST(Zodiac, EverySignHasANameOfElevenCharactersThatBeginsItsMeanings) {
  std::set<std::string> names;
  for (const reports::ZodiacSign& sign : zodiacSigns) {
    EXPECT_EQ(sign.name.size(), 11U);
    const std::string name(reports::plainName(sign));
    EXPECT_EQ(sign.name.find_first_not_of(' ', name.size()), std::string_view::npos);
    EXPECT_EQ(sign.nameWithMeaning.substr(0, name.size() + 2), name + " (");
    EXPECT_EQ(sign.nameWithMeaning.back(), ')');
    names.insert(name);
  }
  EXPECT_EQ(names.size(), 12U);
}

TEST(Zodiac, ASignBeginsAtItsStartAndEndsBeforeTheNext) {
  for (std::size_t i = 0; i < zodiacSigns.size(); ++i) {
    const double start = zodiacSigns[i].start;
    EXPECT_EQ(signName(start), zodiacSigns[i].name);
    EXPECT_EQ(signName(std::nextafter(start, 0.0)), zodiacSigns[(i + 11) % 12].name);
  }
}

TEST(Zodiac, VoniRunsThroughTheEquinox) {
  EXPECT_EQ(signName(0.0), "Voni       ");
  EXPECT_EQ(signName(-0.0), "Voni       ");
  EXPECT_EQ(signName(twoPi), "Voni       ");
  EXPECT_EQ(signName(0.0210599), "Voni       ");
  EXPECT_EQ(signName(0.02106), "Gimbral    ");
  EXPECT_EQ(signName(6.2), "Voni       ");
}

TEST(Zodiac, NegativeLongitudesCountBackFromTheEquinox) {
  EXPECT_EQ(signName(-0.1), "Voni       ");
  EXPECT_EQ(signName(-0.6), "Quelin     ");
  EXPECT_EQ(signName(-pi), signName(pi));
}

TEST(Zodiac, FullTurnsDoNotMatter) {
  EXPECT_EQ(signName(4.0 * pi + 1.0), "Sevrino    ");
  EXPECT_EQ(signName(1.0 - 6.0 * pi), "Sevrino    ");
}

TEST(Zodiac, MeaningsAreThoseOfTheSign) {
  EXPECT_EQ(signNameWithMeaning(0.6), "Sevrino (Blossoming)");
  EXPECT_EQ(signNameWithMeaning(3.3), "Corra (Freedom, Sell-Will)");
  EXPECT_EQ(signNameWithMeaning(6.0), "Voni (Culmination, Returning)");
}

/// The sign by a bare walk through the boundaries.
std::size_t signByWalk(double longitude) {
  while (longitude > twoPi) {
    longitude -= twoPi;
  }
  while (longitude < 0.0) {
    longitude += twoPi;
  }
  const double ends[] = {0.02106, 0.54465, 1.05089, 1.59169, 2.13298, 2.69112,
                         3.19759, 3.70378, 4.20993, 4.71598, 5.23987, 5.74599};
  std::size_t passed = 0;
  while (passed < 12 && longitude >= ends[passed]) {
    ++passed;
  }
  return (passed + 11) % 12;
}

RC_GTEST_PROP(Zodiac, EveryLongitudeHasTheSignOfItsBoundaries, ()) {
  const double longitude =
      *rc::gen::oneOf(tests::between(-10.0, 20.0), tests::between(-5000.0, 5000.0));
  RC_ASSERT(&signAt(longitude) == &zodiacSigns[signByWalk(longitude)]);
  RC_ASSERT(signName(longitude) == signAt(longitude).name);
  RC_ASSERT(signNameWithMeaning(longitude) == signAt(longitude).nameWithMeaning);
}

}  // namespace
}  // namespace veyruna
