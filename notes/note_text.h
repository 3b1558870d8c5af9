#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "astro/calendar.h"

namespace veyruna::notes {

/// A text on one line, in UTF-8 whatever it holds: a blank for each control character, each end of
/// a line or paragraph and each code point that is no character.
std::string oneLine(std::string_view text);

/// A text of one line in double quotes, as YAML reads it back.
std::string yamlText(std::string_view line);

/// The text, or as much of it as leaves room for "…" within so many characters; UTF-8.
std::string shortened(const std::string& text, std::size_t characters);

/// "720-06-12": the day as an event's label begins.
std::string dateText(const astro::CalendarMoment& moment);

}  // namespace veyruna::notes
