#include "reports/ephemeris.h"

#include <cmath>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/lunar_events.h"
#include "astro/moon.h"
#include "astro/number_text.h"
#include "astro/sun.h"
#include "reports/rise_set.h"
#include "reports/table_rows.h"

namespace veyruna::reports {

namespace {

constexpr std::string_view ephemerisHeader =
    "YR MO DAY TIME        I-RA     I-DEC    Ec-Lat   Ec-Long  T-RA    T-DEC     T-Long   Phase\n";

constexpr int intervalsPerDay = 4;

/// " 012.50", "-005.25": seven characters, the sign in a column of its own.
void appendAngleField(std::string& out, double radians) {
  const double degrees = astro::degreesOf(radians);
  if (degrees >= 0.0) {
    out += ' ';
    astro::appendPaddedFixed(out, degrees, 6, 2);
  } else {
    out += '-';
    astro::appendPaddedFixed(out, std::abs(degrees), 6, 2);
  }
}

/// 0 where the longitudes coincide, 1 where they are opposite.
double phaseOf(double moonLongitude, double sunLongitude) {
  const double apart = astro::degreesOf(std::abs(moonLongitude - sunLongitude));
  return (apart > 180.0 ? 360.0 - apart : apart) / 180.0;
}

/// The rows of one table; the searches remember where they were from row to row.
class EphemerisRows {
 public:
  explicit EphemerisRows(double latitude)
      : moonSearch_(risingMoon, latitude), sunSearch_(risingSun, latitude) {}

  void append(std::string& out, double t) {
    const astro::Moon moon(t);
    const astro::Sun sun(t);
    astro::appendCalendarLabel(out, t);
    out += "  ";
    for (const double angle : {moon.eq.phi, moon.eq.theta, moon.ec.theta, moon.ec.phi, sun.eq.phi,
                               sun.eq.theta, sun.ec.phi}) {
      appendAngleField(out, angle);
      out += "  ";
    }
    out += ' ';
    astro::appendFixed(out, phaseOf(moon.ec.phi, sun.ec.phi), 2);
    out += "   ";
    appendEvents(out, t);
    out += '\n';
  }

 private:
  /// All events of the moon, then those of the sun, then the eclipses, each in order of time.
  void appendEvents(std::string& out, double t) {
    for (int k = 0; k < intervalsPerDay; ++k) {
      moonSearch_.appendEvent(out, t + k * eventIntervalDays, eventIntervalDays);
    }
    for (int k = 0; k < intervalsPerDay; ++k) {
      sunSearch_.appendEvent(out, t + k * eventIntervalDays, eventIntervalDays);
    }
    for (int k = 0; k < intervalsPerDay; ++k) {
      out += astro::nodeEclipseEvent(t + k * eventIntervalDays, eventIntervalDays);
    }
  }

  RiseSetSearch moonSearch_;
  RiseSetSearch sunSearch_;
};

}  // namespace

void writeEphemerisTable(const astro::Observer& observer, const TableSize& size,
                         const TextSink& sink) {
  EphemerisRows table(observer.latitude);
  writeRows(ephemerisHeader, observer.baseTime, size, sink,
            [&table](std::string& row, double t) { table.append(row, t); });
}

std::string ephemerisTable(const astro::Observer& observer, const TableSize& size) {
  return collected([&](const TextSink& sink) { writeEphemerisTable(observer, size, sink); });
}

}  // namespace veyruna::reports
