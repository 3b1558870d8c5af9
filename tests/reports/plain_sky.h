#pragma once

#include <string>

/// The models and texts behind the plain tables; see plain_tables.h.
namespace veyruna::tests::plain {

inline constexpr double halfCircle = 3.141592653589793;
inline constexpr double fullCircle = 6.283185307179586;
inline constexpr double quarterCircle = 1.5707963267948966;
inline constexpr double degreesInRadian = 57.29577951308232;

/// Components and the angles they were made from or give.
struct Direction {
  double x, y, z;
  double phi, theta;
};

double frac(double x);
Direction fromAngles(double phi, double theta);
Direction turnedAboutX(const Direction& v, double angle);
Direction turnedAboutY(const Direction& v, double angle);

Direction sunOnEcliptic(double t);
Direction moonOnEcliptic(double t);
double moonLatitudeAt(double t);
double planetLongitude(int planet, double t);
Direction equatorial(const Direction& ecliptic);

std::string label(double t);
std::string degreesMinutes(double radians);
std::string degreesMinutesSeconds(double radians);
std::string angleField(double radians);

}  // namespace veyruna::tests::plain
