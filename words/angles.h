#pragma once

#include <string>

/// Angles as a person types them, written so that the readers of this room read them again.
namespace veyruna::words {

/// Degrees with as few digits as read back as this very angle (radians); the nearest degrees where
/// no degrees read as it.
std::string degreesText(double radians);

/// "40.50°N", "20.90°W": to the hundredth of a degree.
std::string latitudeText(double radians);
std::string longitudeText(double radians);

/// "40.50°N  20.90°W".
std::string coordinatesText(double latitude, double longitude);

/// "40.5N,20.9W": each as degreesText.
std::string shortCoordinatesText(double latitude, double longitude);

}  // namespace veyruna::words
