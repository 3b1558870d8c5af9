#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veyruna::astro {

/// The outermost elongations (radians, unsigned) at which there is such an event: below this by the
/// sun (2.54°), above this opposite to it (178.42°).
inline constexpr double partialSolarLimit = 0.044331363000655974;
inline constexpr double penumbralLunarLimit = 3.1140164514082826;

/// The near-alignment of sun, world and moon at base time `t` (days), or the empty text:
/// code ("  TS ", "  PS ", " FUL ", " FPL ", " PPL "), calendar label, blank, elongation with
/// seconds (signed), blank. A moment that is not finite is a broken invariant, here and below.
std::string lunarEventText(double t);

/// Its code without blanks: "TS", "PS", "FUL", "FPL", "PPL", or the empty text.
std::string_view lunarEventCode(double t);

/// What such a code means: "total eclipse of the sun". Any other text is a broken invariant.
std::string_view lunarEventMeaning(std::string_view code);

/// The moment in [start, start + step] (days) at which the moon crosses the ecliptic; nothing where
/// it does not, or where sun and moon are not aligned then. A moon that is on the ecliptic at the
/// start counts as crossing it there. A step that is not finite is a broken invariant too.
std::optional<double> nodeEclipse(double start, double step);

/// lunarEventText of that moment, or the empty text.
std::string nodeEclipseEvent(double start, double step);

}  // namespace veyruna::astro
