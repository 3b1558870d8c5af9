// What moves evenly is counted. Revolutions: E of the moon from the sun, a syzygy every half; u the
// argument of the moon's latitude, a crossing every half.
#include <cmath>

#include "almanac/search/questions.h"
#include "astro/angle.h"
#include "astro/lunar_events.h"
#include "astro/moon.h"
#include "astro/sun.h"

namespace veyruna::almanac {

namespace {

constexpr double elongationAtEpoch = astro::moonPhaseAtEpoch - astro::sunPhaseAtEpoch;
constexpr double elongationRate = astro::moonMeanMotion - astro::sunMeanMotion;

double syzygy(double number) {
  return (number / 2.0 - elongationAtEpoch) / elongationRate;
}

/// How long before and after a syzygy, in days, the elongation is within the outermost limit.
double halfLength(double number) {
  const bool isFull = std::fmod(number, 2.0) != 0.0;
  const double limit = isFull ? astro::pi - astro::penumbralLunarLimit : astro::partialSolarLimit;
  return limit / (astro::twoPi * elongationRate);
}

/// Whether the moon crosses the ecliptic near enough to a syzygy.
bool isEclipsed(double number) {
  constexpr double start = astro::moonLatitudePhase / astro::twoPi;
  const double middle = syzygy(number);
  const double crossing = std::round(2.0 * (start + astro::moonNodalRate * middle)) / 2.0;
  const double moment = (crossing - start) / astro::moonNodalRate;
  return std::abs(moment - middle) < halfLength(number) && !astro::lunarEventCode(moment).empty();
}

}  // namespace

Question question(const EclipseLasts& /*eclipse*/) {
  return [](double t) {
    constexpr int syzygiesAtOnce = 100;  // among which there is nearly always an eclipse
    double number = std::round(2.0 * (elongationAtEpoch + elongationRate * t));
    for (int i = 0; i < syzygiesAtOnce; ++i, number += 1.0) {
      const double begin = syzygy(number) - halfLength(number);
      const double end = syzygy(number) + halfLength(number);
      if (isEclipsed(number) && t < end) {
        return t > begin ? State{true, end - t} : State{false, begin - t};
      }
    }
    return State{false, syzygy(number) - halfLength(number) - t};
  };
}

}  // namespace veyruna::almanac
