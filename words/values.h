#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Values that a person types, read strictly and the same in every locale. Each function throws
/// UsageError with the text it was given, what it is the value of ("--lat") and what is accepted.
namespace veyruna::words {

/// Throws the error that quotes what was typed for `what` and says what is accepted.
[[noreturn]] void refuse(std::string_view what, std::string_view text, std::string_view accepted);

/// Whether two texts are the same but for the case of letters from A to Z.
bool equalIgnoringCase(std::string_view a, std::string_view b);

/// 1 to 12 or a month's name in any letter case, as 0 to 11; nothing for anything else.
std::optional<std::int64_t> monthIndexOf(std::string_view text);

/// A whole number within [least, most]; `what` names it in the message, such as "--year".
std::int64_t readWholeNumber(std::string_view what, std::string_view text, std::int64_t least,
                             std::int64_t most);

/// A finite number, or nothing.
std::optional<double> numberOf(std::string_view text);

/// A finite number within [least, most].
double readNumber(std::string_view what, std::string_view text, double least, double most);

/// As monthIndexOf.
std::int64_t readMonthIndex(std::string_view what, std::string_view text);

/// What readHour takes, in words.
inline constexpr std::string_view acceptedHour = "hours from 0 to 24 such as 18.25, or 18:15";

/// Hours 0 to 24: "18.25", or "18:15" as astro::hourOfClock.
double readHour(std::string_view what, std::string_view text);

/// Degrees north ("40.5", "-33", "33S", "40.5°N") as radians; at most 90.
double readLatitude(std::string_view what, std::string_view text);
std::optional<double> latitudeOf(std::string_view text);  ///< the same, or nothing

/// Degrees east ("25.3", "-20.9", "20.9W") as radians; at most 180.
double readLongitude(std::string_view what, std::string_view text);
std::optional<double> longitudeOf(std::string_view text);  ///< the same, or nothing

/// Days as a number or a fraction such as "1/24", not more than a billion either way.
double readStepDays(std::string_view text);

}  // namespace veyruna::words
