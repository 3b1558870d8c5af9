// φ latitude of the observer, S sidereal angle; the zenith stands at right ascension S, declination
// φ.
#include "reports/rise_set.h"

#include <cmath>

#include "astro/bisection.h"
#include "astro/horizon.h"
#include "astro/moon.h"
#include "astro/number_text.h"
#include "astro/rotation.h"
#include "astro/sun.h"

namespace veyruna::reports {

namespace {

/// The tables describe the meridian of longitude 0, whatever the observer's longitude.
constexpr double referenceLongitude = 0.0;

/// An altitude below this, in radians, at the start of an interval is an event by itself.
constexpr double onHorizon = 0.0001;

/// Two ways of computing a sine of altitude differ by less than a hundredth of this.
constexpr double roundingMargin = 1e-12;

astro::Vec3D moonDirection(double t) {
  return {astro::moonLongitude(t), astro::moonLatitude(t)};
}

astro::Vec3D sunDirection(double t) {
  return {astro::sunLongitude(t), 0.0};
}

std::string singleEvent(const RisingBody& body, double start, double step, double latitude) {
  std::string text;
  RiseSetSearch(body, latitude).appendEvent(text, start, step);
  return text;
}

}  // namespace

const RisingBody risingMoon = {moonDirection, "MR@", "MS@"};
const RisingBody risingSun = {sunDirection, "SR@", "SS@"};

RiseSetSearch::RiseSetSearch(const RisingBody& body, double latitude)
    : body_(body),
      latitude_(latitude),
      cosLatitude_(std::cos(latitude)),
      sinLatitude_(std::sin(latitude)) {}

astro::Observer RiseSetSearch::at(double t) const {
  return {.baseTime = t, .latitude = latitude_, .longitude = referenceLongitude};
}

double RiseSetSearch::sineOfAltitude(double t) const {
  // The sine of an altitude is the product of two directions, the body's and the zenith's.
  const auto [x, y, z] = astro::product(astro::eclipticToEquatorial, body_.ecliptic(t).v);
  const double sidereal = astro::localSiderealAngle(at(t));
  return cosLatitude_ * (x * std::cos(sidereal) + y * std::sin(sidereal)) + sinLatitude_ * z;
}

double RiseSetSearch::altitude(double t) const {
  const astro::Vec3D equatorial = rotated(body_.ecliptic(t), astro::eclipticToEquatorial);
  return astro::toHorizon(equatorial, at(t)).theta;
}

double RiseSetSearch::signOfAltitude(double t) const {
  // Only the sign is wanted. It decides the printed minute, so within the rounding of the sine the
  // altitude itself is asked.
  const double sine = sineOfAltitude(t);
  return std::abs(sine) > roundingMargin ? sine : altitude(t);
}

bool RiseSetSearch::isOnHorizon(double t, double sine) const {
  return std::abs(sine) < 2.0 * onHorizon && std::abs(altitude(t)) < onHorizon;
}

std::optional<RiseSet> RiseSetSearch::event(double start, double step) {
  const double end = start + step;
  const double atStart = start == lastEnd_ ? signAtLastEnd_ : signOfAltitude(start);
  const double atEnd = signOfAltitude(end);
  lastEnd_ = end;
  signAtLastEnd_ = atEnd;

  if (isOnHorizon(start, atStart)) {
    return RiseSet{.baseTime = start, .isRise = atEnd > 0.0};
  }
  if (atStart * atEnd >= 0.0) {
    return std::nullopt;
  }
  const double crossing = astro::bisectSignChange({start, end}, atStart,
                                                  [this](double t) { return signOfAltitude(t); });
  return RiseSet{.baseTime = crossing, .isRise = atStart < 0.0};
}

void RiseSetSearch::appendEvent(std::string& out, double start, double step) {
  if (const std::optional<RiseSet> found = event(start, step)) {
    appendRiseSetText(out, body_, *found);
  }
}

void appendRiseSetText(std::string& out, const RisingBody& body, const RiseSet& event) {
  const double hoursSinceNoon = astro::fractionOfTurn(event.baseTime) * 24.0;
  const double hours = std::floor(hoursSinceNoon);
  const double minutes = std::floor((hoursSinceNoon - hours) * 60.0);
  out += event.isRise ? body.riseCode : body.setCode;
  astro::appendPaddedFixed(out, hours, 2, 0);
  out += ':';
  astro::appendPaddedFixed(out, minutes, 2, 0);
  out += ' ';
}

std::string moonRiseSetEvent(double start, double step, double latitude) {
  return singleEvent(risingMoon, start, step, latitude);
}

std::string sunRiseSetEvent(double start, double step, double latitude) {
  return singleEvent(risingSun, start, step, latitude);
}

}  // namespace veyruna::reports
