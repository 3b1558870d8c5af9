#pragma once

#include <string>

#include "almanac/search/search.h"

/// Lines for a shell that draw horoscopes.
namespace veyruna::words {

/// " --lat 40.5 --long -20.9", of radians.
std::string placeOptions(double latitude, double longitude);

/// That of a span's middle; `options` are those of the place, with a blank in front, or nothing.
std::string horoscopeCommand(const almanac::Span& span, const std::string& options);

}  // namespace veyruna::words
