#include "tests/reports/plain_tables.h"

#include <cmath>

#include "tests/reports/plain_sky.h"
#include "tests/support/c_printf.h"

namespace veyruna::tests {

using namespace plain;

namespace {

std::string lunarEvent(double t) {
  double e = moonOnEcliptic(t).phi - sunOnEcliptic(t).phi;
  while (!(e <= halfCircle)) {
    e -= fullCircle;
  }
  while (e < -halfCircle) {
    e += fullCircle;
  }
  const double a = std::fabs(e);
  std::string code;
  if (a < 0.029670597283903602) {
    code = "  TS ";
  } else if (a < 0.044331363000655974) {
    code = "  PS ";
  } else if (a > 3.135484001207813) {
    code = " FUL ";
  } else if (a > 3.1260592232470437) {
    code = " FPL ";
  } else if (a > 3.1140164514082826) {
    code = " PPL ";
  } else {
    return "";
  }
  return code + label(t) + " " + degreesMinutesSeconds(e) + " ";
}

using Body = Direction (*)(double);

double altitude(Body body, double t, double latitude) {
  const Direction eq = equatorial(body(t));
  const double hourAngle = frac(t * 1.0027777692901494) * fullCircle + 0.0 - eq.phi;
  return turnedAboutY(fromAngles(hourAngle, eq.theta), quarterCircle - latitude).theta;
}

std::string clockEvent(const std::string& code, double t) {
  const double hours = std::floor(frac(t) * 24.0);
  const double minutes = std::floor((frac(t) * 24.0 - hours) * 60.0);
  return code + printedInC("%02.0f:%02.0f", hours, minutes) + " ";
}

std::string riseSetEvent(Body body, const std::string& rise, const std::string& set, double x,
                         double latitude) {
  const double a = altitude(body, x, latitude);
  const double b = altitude(body, x + 0.25, latitude);
  if (std::fabs(a) < 0.0001) {
    return clockEvent(b > 0.0 ? rise : set, x);
  }
  if (a * b >= 0.0) {
    return "";
  }
  double lo = x;
  double hi = x + 0.25;
  double m = (lo + hi) / 2.0;
  while (std::fabs(hi - lo) > 0.0001) {
    if (altitude(body, lo, latitude) * altitude(body, m, latitude) < 0.0) {
      hi = m;
    } else {
      lo = m;
    }
    m = (lo + hi) / 2.0;
  }
  return clockEvent(a < 0.0 ? rise : set, m);
}

bool together(double a, double b) {
  while (a > halfCircle) {
    a -= fullCircle;
  }
  while (a < -halfCircle) {
    a += fullCircle;
  }
  while (b > halfCircle) {
    b -= fullCircle;
  }
  while (b < -halfCircle) {
    b += fullCircle;
  }
  const double d = std::fabs(a - b);
  return d < 0.03490658503988659 || d > 6.2482787221397;
}

}  // namespace

std::string plainNodeEclipseEvent(double start, double step) {
  const double b0 = moonLatitudeAt(start);
  if (std::fabs(b0) < 0.0001) {
    return lunarEvent(start);
  }
  if (b0 * moonLatitudeAt(start + step) >= 0.0) {
    return "";
  }
  double lo = start;
  double hi = start + step;
  double mid = (lo + hi) / 2.0;
  while (std::fabs(hi - lo) > 0.0001) {
    if (moonLatitudeAt(mid) * moonLatitudeAt(lo) < 0.0) {
      hi = mid;
    } else {
      lo = mid;
    }
    mid = (lo + hi) / 2.0;
  }
  return lunarEvent(mid);
}

std::string plainEphemerisTable(int rows, double start, double step, double latitude) {
  std::string text =
      "YR MO DAY TIME        I-RA     I-DEC    Ec-Lat   Ec-Long  T-RA    T-DEC     T-Long   "
      "Phase\n";
  double t = start;
  for (int row = 0; row < rows; ++row) {
    const Direction moon = moonOnEcliptic(t);
    const Direction sun = sunOnEcliptic(t);
    text += label(t) + "  ";
    text += angleField(equatorial(moon).phi) + "  ";
    text += angleField(equatorial(moon).theta) + "  ";
    text += angleField(moon.theta) + "  ";
    text += angleField(moon.phi) + "  ";
    text += angleField(equatorial(sun).phi) + "  ";
    text += angleField(equatorial(sun).theta) + "  ";
    text += angleField(sun.phi) + "   ";
    double p = std::fabs(moon.phi - sun.phi) * degreesInRadian;
    if (p > 180.0) {
      p = 360.0 - p;
    }
    text += printedInC("%.2f", p / 180.0) + "   ";
    for (const double x : {t, t + 0.25, t + 0.5, t + 0.75}) {
      text += riseSetEvent(moonOnEcliptic, "MR@", "MS@", x, latitude);
    }
    for (const double x : {t, t + 0.25, t + 0.5, t + 0.75}) {
      text += riseSetEvent(sunOnEcliptic, "SR@", "SS@", x, latitude);
    }
    for (const double x : {t, t + 0.25, t + 0.5, t + 0.75}) {
      text += plainNodeEclipseEvent(x, 0.25);
    }
    text += "\n";
    t += step;
  }
  return text;
}

std::string plainConjunctionTable(int rows, double start, double step) {
  std::string text =
      "                      EQUATORIAL COORDINATES                                  ECLIPTIC "
      "COORDINATES                                 CONJUNCTIONS\n"
      "YR MO DAY TIME        IVRO     THESSIL BRALO    DUNMOR    GALVI    PALLOX     IVRO     "
      "THESSIL  BRALO    DUNMOR   GALVI    PALLOX   (+/- 1 deg)\n";
  double t = start;
  for (int row = 0; row < rows; ++row) {
    const Direction moon = moonOnEcliptic(t);
    const Direction sun = sunOnEcliptic(t);
    text += label(t) + "  ";
    text += degreesMinutes(equatorial(moon).phi) + "  ";
    text += degreesMinutes(equatorial(sun).phi) + "  ";
    for (int k = 0; k < 4; ++k) {
      text += degreesMinutes(planetLongitude(k, t)) + "  ";
    }
    text += "  ";
    text += degreesMinutes(moon.phi) + "  ";
    text += degreesMinutes(sun.phi) + "  ";
    for (int k = 0; k < 4; ++k) {
      text += degreesMinutes(equatorial(fromAngles(planetLongitude(k, t), 0.0)).phi) + "  ";
    }
    const char* const names[] = {"BR", "DU", "GA", "PA"};
    for (int i = 0; i < 4; ++i) {
      for (int j = i + 1; j < 4; ++j) {
        if (together(planetLongitude(i, t), planetLongitude(j, t))) {
          text += std::string(names[i]) + "-" + names[j] + " ";
        }
      }
    }
    text += "\n";
    t += step;
  }
  return text;
}

}  // namespace veyruna::tests
