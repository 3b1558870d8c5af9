#include "tests/reports/plain_sky.h"

#include <cmath>

#include "tests/support/c_printf.h"

namespace veyruna::tests::plain {

namespace {

constexpr double tilt = 0.3665191429188092;

Direction fromComponents(double x, double y, double z) {
  double phi = 0.0;
  double theta = 0.0;
  if (x * x + y * y != 0.0) {
    phi = std::atan2(y, x);
    if (phi < 0.0) {
      phi += fullCircle;
    }
    theta = std::atan2(z, std::sqrt(x * x + y * y));
  } else if (z != 0.0) {
    theta = std::atan2(z, 0.0);
  }
  return {x, y, z, phi, theta};
}

struct Sexagesimal {
  bool negative;
  long long d, m;
  double s;
};

Sexagesimal split(double radians) {
  const double degrees = std::fabs(radians) * degreesInRadian;
  const auto d = static_cast<long long>(std::floor(degrees + 1e-7));
  double minutes = (degrees - static_cast<double>(d)) * 60.0;
  if (minutes < 0.0) {
    minutes = 0.0;
  }
  const auto m = static_cast<long long>(std::floor(minutes + 1e-7));
  double s = (minutes - static_cast<double>(m)) * 60.0;
  if (s < 0.0) {
    s = 0.0;
  }
  return {radians < 0.0, d, m, s};
}

}  // namespace

double frac(double x) {
  return x - std::floor(x);
}

Direction fromAngles(double phi, double theta) {
  return {std::cos(theta) * std::cos(phi), std::cos(theta) * std::sin(phi), std::sin(theta), phi,
          theta};
}

Direction turnedAboutX(const Direction& v, double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return fromComponents(1.0 * v.x + 0.0 * v.y + 0.0 * v.z, 0.0 * v.x + c * v.y + s * v.z,
                        0.0 * v.x + -s * v.y + c * v.z);
}

Direction turnedAboutY(const Direction& v, double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  return fromComponents(c * v.x + 0.0 * v.y + -s * v.z, 0.0 * v.x + 1.0 * v.y + 0.0 * v.z,
                        s * v.x + 0.0 * v.y + c * v.z);
}

Direction sunOnEcliptic(double t) {
  return fromAngles(frac(t * 0.0027777692901493913 - 0.0013888846450746957) * fullCircle, 0.0);
}

double moonLatitudeAt(double t) {
  const double turns = t * 0.03626222155587435;
  return std::sin((turns + turns) * halfCircle + -52833.2133155291) * 0.13962634015954636;
}

Direction moonOnEcliptic(double t) {
  return fromAngles(frac(t * 0.03611111929015772 + 0.027630213198790443) * fullCircle,
                    moonLatitudeAt(t));
}

Direction equatorial(const Direction& ecliptic) {
  return turnedAboutX(ecliptic, -tilt);
}

double planetLongitude(int planet, double t) {
  const double radii[] = {0.6712873444586567, 1.5874010519681996, 4.641588833612779,
                          19.332111165970602};
  const double periods[] = {-198.00000000000003, 720.0, 3600.0, 30600.0};
  const double phases[] = {5.026548245743669, 1.2566370614359172, 2.5132741228718345,
                           3.7699111843077517};
  const double sun = sunOnEcliptic(t).phi;
  const double m = frac(phases[planet] + t / periods[planet]) * fullCircle;
  const double a = radii[planet];
  return std::atan2(std::sin(sun) + a * std::sin(m), std::cos(sun) + a * std::cos(m));
}

std::string label(double t) {
  const auto s = static_cast<long long>(std::round((t + 0.5) * 86400.0));
  const long long year = s / 31104000 + 1;
  const auto r = static_cast<int>(s - (year - 1) * 31104000);
  const int month = r / 2592000 + 1;
  const int r2 = r % 2592000;
  const int day = r2 / 86400 + 1;
  const int r3 = r2 % 86400;
  return printedInC("%03lld-%02d-%02d %02d:%02d OST", year, month, day, r3 / 3600,
                    (r3 % 3600) / 60);
}

std::string degreesMinutes(double radians) {
  const Sexagesimal a = split(radians);
  const char sign = a.negative ? '-' : ' ';
  const long long minutes = a.s > 30.0 ? a.m + 1 : a.m;
  return a.d != 0 ? printedInC("%c%03lld:%02lld", sign, a.d, minutes)
                  : printedInC("   %c:%02lld", sign, minutes);
}

std::string degreesMinutesSeconds(double radians) {
  const Sexagesimal a = split(radians);
  const char sign = a.negative ? '-' : ' ';
  if (a.d != 0) {
    return printedInC("%c%03lld:%02lld:%02.0f", sign, a.d, a.m, a.s);
  }
  if (a.m != 0) {
    return printedInC("    %c%02lld:%02.0f", sign, a.m, a.s);
  }
  return printedInC("       %c%02.0f", sign, a.s);
}

std::string angleField(double radians) {
  const double v = radians * degreesInRadian;
  return v >= 0.0 ? printedInC(" %06.2f", v) : printedInC("-%06.2f", std::fabs(v));
}

}  // namespace veyruna::tests::plain
