#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The hour of the day as a clock shows it. An hour is a number of hours with a fraction; a clock
/// shows whole minutes and drops the rest.
namespace veyruna::astro {

/// "18:15": hours cut toward zero, minutes cut from what lies above the hour below. Any finite hour
/// is written, also one outside the day; hours and minutes have at least two digits.
std::string clockText(double hour);

/// The hour of a clock reading: the smallest double at or above hours + minutes/60 whose minutes
/// are cut back to the same. Both are whole numbers, the minutes below 60.
double hourOfClock(double hours, double minutes);

/// "18:15" or "7:05" as hourOfClock, "18.25" as the number itself; from 0 to 24, both included.
/// Nothing where the text is neither.
std::optional<double> hourFromText(std::string_view text);

}  // namespace veyruna::astro
