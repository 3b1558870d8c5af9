// E elongation of the moon from the sun, β ecliptic latitude of the moon.
#include "astro/lunar_events.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "astro/angle.h"
#include "astro/arc.h"
#include "astro/bisection.h"
#include "astro/calendar.h"
#include "astro/invariant.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/sun.h"

namespace veyruna::astro {

namespace {

/// Below this elongation the moon can cover the sun wholly (1.70°), up to partialSolarLimit in
/// part.
constexpr double totalSolarLimit = 0.029670597283903602;

/// Above these the world can shade the moon: wholly (179.65°), for the most (179.11°); above
/// penumbralLunarLimit in the penumbra.
constexpr double fullLunarLimit = 3.135484001207813;
constexpr double mostlyLunarLimit = 3.1260592232470437;

/// A latitude this small (radians) at an interval's start is a crossing by itself.
constexpr double onEcliptic = 0.0001;

std::string_view eventCode(double separation) {
  if (separation < totalSolarLimit) {
    return "  TS ";
  }
  if (separation < partialSolarLimit) {
    return "  PS ";
  }
  if (separation > fullLunarLimit) {
    return " FUL ";
  }
  if (separation > mostlyLunarLimit) {
    return " FPL ";
  }
  if (separation > penumbralLunarLimit) {
    return " PPL ";
  }
  return {};
}

/// How far the elongation can come in a step of this many days; both bodies move uniformly.
double reachOf(double step) {
  constexpr double roundingMargin = 1e-4;
  return (moonMeanMotion - sunMeanMotion) * twoPi * std::abs(step) + roundingMargin;
}

/// Whether sun and moon, parted so far, can become aligned by moving so far against each other.
bool alignmentIsPossible(double separation, double reach) {
  return separation < partialSolarLimit + reach || separation > penumbralLunarLimit - reach;
}

/// The moment itself, if sun, world and moon are nearly aligned then.
std::optional<double> whereAligned(double t) {
  return lunarEventCode(t).empty() ? std::nullopt : std::optional(t);
}

}  // namespace

std::string_view lunarEventCode(double t) {
  const std::string_view padded = eventCode(std::abs(elongation(t, newMoonElongation)));
  const std::size_t begin = std::min(padded.find_first_not_of(' '), padded.size());
  return padded.substr(begin, padded.find_last_not_of(' ') + 1 - begin);
}

std::string_view lunarEventMeaning(std::string_view code) {
  struct Meaning {
    std::string_view code;
    std::string_view words;
  };
  static constexpr std::array<Meaning, 5> meanings = {{
      {"TS", "total eclipse of the sun"},
      {"PS", "partial eclipse of the sun"},
      {"FUL", "total eclipse of the moon"},
      {"FPL", "partial eclipse of the moon"},
      {"PPL", "penumbral eclipse of the moon"},
  }};
  const auto* const found = std::ranges::find(meanings, code, &Meaning::code);
  requireInvariant(found != meanings.end(), "a code of an eclipse has its meaning");
  return found->words;
}

std::string lunarEventText(double t) {
  const double e = elongation(t, newMoonElongation);
  const std::string_view code = eventCode(std::abs(e));
  if (code.empty()) {
    return {};
  }
  std::string text(code);
  appendCalendarLabel(text, t);
  text += ' ';
  Arc(e).appendDegMinSecText(text);
  text += ' ';
  return text;
}

std::optional<double> nodeEclipse(double start, double step) {
  requireInvariant(std::isfinite(step), "an interval ends at some time", step);
  if (!alignmentIsPossible(std::abs(elongation(start, newMoonElongation)), reachOf(step))) {
    return std::nullopt;
  }
  const double atStart = moonLatitude(start);
  if (std::abs(atStart) < onEcliptic) {
    return whereAligned(start);
  }
  const double end = start + step;
  if (atStart * moonLatitude(end) >= 0.0) {
    return std::nullopt;
  }
  return whereAligned(bisectSignChange({start, end}, atStart, moonLatitude));
}

std::string nodeEclipseEvent(double start, double step) {
  const std::optional<double> moment = nodeEclipse(start, step);
  return moment ? lunarEventText(*moment) : std::string();
}

}  // namespace veyruna::astro
