#pragma once

#include <string_view>

/// The colours of what is neither sun, moon nor planet; see body_style.h for these.
namespace veyruna::charts {

/// The grey of all text that names no body.
inline constexpr std::string_view textColor = "#757475";

/// The signs' names and boundaries, and most of the catalogue's stars.
inline constexpr std::string_view signColor = "#f4f4f3";

/// The catalogue's brightest star of each constellation.
inline constexpr std::string_view brightStarColor = "#fef651";

/// The lines between stars.
inline constexpr std::string_view constellationColor = "#eaeae9";

}  // namespace veyruna::charts
