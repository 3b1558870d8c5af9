// The ascendant is the point of the ecliptic that is rising, the midheaven the one on the meridian.
// Both are found here by looking at the sky, not by their formulas.
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/sun.h"
#include "charts/horoscope.h"
#include "reports/zodiac.h"
#include "tests/charts/sky_generators.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

using astro::Observer;

double heightOfEcliptic(const Observer& at, double longitude) {
  return tests::sineOfAltitude(at, tests::equatorialOfEcliptic(longitude));
}

/// Positive west of the meridian, negative east of it.
double hourAngleOfEcliptic(const Observer& at, double longitude) {
  return tests::nearZero(tests::meridian(at) - tests::equatorialOfEcliptic(longitude).phi);
}

/// The longitude on the horizon in the east. Going along the ecliptic with growing longitude, what
/// is up stands west of it and what has yet to rise beyond it: the height falls through 0 there.
double risingLongitude(const Observer& at) {
  constexpr int steps = 360;
  for (int i = 0; i < steps; ++i) {
    double up = i * tests::fullTurn / steps;
    double down = (i + 1) * tests::fullTurn / steps;
    if (heightOfEcliptic(at, up) >= 0.0 && heightOfEcliptic(at, down) < 0.0) {
      for (int halving = 0; halving < 60; ++halving) {
        const double middle = up + (down - up) / 2.0;
        (heightOfEcliptic(at, middle) >= 0.0 ? up : down) = middle;
      }
      return up;
    }
  }
  throw std::logic_error("nothing rises");
}

struct Wheel {
  explicit Wheel(const Observer& at)
      : elements(tests::readXml(horoscope(false, at, StarCatalogue({}, {})))) {}

  /// The rest of the one text that begins so.
  [[nodiscard]] std::string textAfter(const std::string& beginning) const {
    for (const std::string& text : tests::textsOf(elements)) {
      if (text.starts_with(beginning)) {
        return text.substr(beginning.size());
      }
    }
    throw tests::XmlError("no text begins with " + beginning);
  }

  std::vector<tests::XmlElement> elements;
};

/// Whether rounding this coordinate to a whole number could go either way.
bool isNearTie(double coordinate) {
  return std::abs(std::abs(coordinate - std::trunc(coordinate)) - 0.5) < 1e-6;
}

RC_GTEST_PROP(Ascendant, IsOnTheHorizonInTheEast, ()) {
  const Observer at = tests::someObserver(65);
  const double rising = risingLongitude(at);
  RC_ASSERT(std::abs(heightOfEcliptic(at, rising)) < 1e-9);
  RC_ASSERT(hourAngleOfEcliptic(at, rising) < 0.0);

  const Wheel wheel(at);
  const double right = std::sin(rising) * 180.0;
  const double up = std::cos(rising) * 180.0;
  RC_PRE(!isNearTie(right) && !isNearTie(up));
  const auto dots = tests::select(wheel.elements, "circle", "fill", "black");
  RC_ASSERT(dots.size() == 1U);
  RC_ASSERT(dots[0].number("cx") == 180.0 + std::round(right));
  RC_ASSERT(dots[0].number("cy") == 180.0 - std::round(up));
}

/// Where the observer of this latitude must stand for the ecliptic's point to be just rising.
Observer seesRising(double longitude, double t, double latitude) {
  const tests::Place point = tests::equatorialOfEcliptic(longitude);
  const double hourAngle = -std::acos(-std::tan(latitude) * std::tan(point.theta));
  return {t, latitude, tests::nearZero(point.phi + hourAngle - tests::meridian({.baseTime = t}))};
}

RC_GTEST_PROP(Ascendant, ChangesItsSignWithinABillionthOfARadian, ()) {
  const std::size_t i = *rc::gen::inRange<std::size_t>(0, reports::zodiacSigns.size());
  const double t = *tests::someTime();
  const double latitude = *tests::someAngle(65);
  const reports::ZodiacSign& before = reports::zodiacSigns[(i + 11) % 12];
  const reports::ZodiacSign& after = reports::zodiacSigns[i];
  const auto ascendingAt = [&](double longitude) {
    return Wheel(seesRising(longitude, t, latitude)).textAfter("Ascending Sign (Purpose): ");
  };
  RC_ASSERT(ascendingAt(after.start - 1e-9) == before.nameWithMeaning);
  RC_ASSERT(ascendingAt(after.start + 1e-9) == after.nameWithMeaning);
}

RC_GTEST_PROP(Ascendant, IsOppositeTheSettingSign, ()) {
  const Observer at = tests::someObserver(65);
  const double rising = risingLongitude(at);
  const double setting = rising + tests::halfTurn;
  RC_PRE(reports::signAt(setting - 1e-9).name == reports::signAt(setting + 1e-9).name);
  RC_ASSERT(Wheel(at).textAfter("Descending Sign (Displacement): ") ==
            reports::signNameWithMeaning(setting));
}

/// The two numbers of "Sun HA: +93.8°   MC: 287.9°".
std::pair<double, double> hourAngleAndMidheaven(const Wheel& wheel) {
  const std::string text = wheel.textAfter("Sun HA: ");
  const std::size_t second = text.find("MC: ");
  return {tests::leadingNumber(text), tests::leadingNumber(text.substr(second + 4))};
}

RC_GTEST_PROP(Midheaven, StandsOnTheMeridianAboveThePole, ()) {
  const Observer at = tests::someObserver();
  const double midheaven = hourAngleAndMidheaven(Wheel(at)).second;
  RC_ASSERT(midheaven >= 0.0);
  RC_ASSERT(midheaven <= 360.0);
  // Printed to a tenth of a degree; right ascension runs up to 1 / cos 21° as fast as longitude.
  const double tolerance = tests::radians(0.05) / std::cos(tests::tilt) + 1e-9;
  RC_ASSERT(std::abs(hourAngleOfEcliptic(at, tests::radians(midheaven))) < tolerance);
}

RC_GTEST_PROP(SunHourAngle, IsHowFarTheSunHasPassedTheMeridian, ()) {
  const Observer at = tests::someObserver();
  const double expected = tests::degrees(hourAngleOfEcliptic(at, astro::sunLongitude(at.baseTime)));
  const double printed = hourAngleAndMidheaven(Wheel(at)).first;
  RC_ASSERT(printed >= -180.0);
  RC_ASSERT(printed <= 180.0);
  RC_ASSERT(std::abs(std::remainder(printed - expected, 360.0)) < 0.05 + 1e-9);
}

TEST(SunHourAngle, AlwaysCarriesItsSign) {
  const Wheel west({0.0, 0.0, 1.0});
  EXPECT_EQ(west.textAfter("Sun HA: ")[0], '+');
  const Wheel east({0.0, 0.0, -1.0});
  EXPECT_EQ(east.textAfter("Sun HA: ")[0], '-');
}

}  // namespace
}  // namespace veyruna::charts
