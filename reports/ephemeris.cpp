#include "reports/ephemeris.h"

#include <cmath>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/lunar_events.h"
#include "astro/moon.h"
#include "astro/number_text.h"
#include "astro/sun.h"
#include "reports/table_rows.h"

namespace veyruna::reports {

namespace {

constexpr std::string_view ephemerisHeader =
    "YR MO DAY TIME        I-RA     I-DEC    Ec-Lat   Ec-Long  T-RA    T-DEC     T-Long   Phase\n";

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

/// The entries of one table; the searches remember where they were from one to the next.
class EphemerisEntries {
 public:
  explicit EphemerisEntries(double latitude)
      : moonSearch_(risingMoon, latitude), sunSearch_(risingSun, latitude) {}

  EphemerisEntry at(double t) {
    const astro::Moon moon(t);
    const astro::Sun sun(t);
    EphemerisEntry entry{.baseTime = t,
                         .moonRightAscension = moon.eq.phi,
                         .moonDeclination = moon.eq.theta,
                         .moonLatitude = moon.ec.theta,
                         .moonLongitude = moon.ec.phi,
                         .sunRightAscension = sun.eq.phi,
                         .sunDeclination = sun.eq.theta,
                         .sunLongitude = sun.ec.phi,
                         .phase = phaseOf(moon.ec.phi, sun.ec.phi)};
    for (std::size_t k = 0; k < entry.eclipses.size(); ++k) {
      const double start = t + static_cast<double>(k) * eventIntervalDays;
      entry.moonEvents[k] = moonSearch_.event(start, eventIntervalDays);
      entry.sunEvents[k] = sunSearch_.event(start, eventIntervalDays);
      entry.eclipses[k] = astro::nodeEclipse(start, eventIntervalDays);
    }
    return entry;
  }

 private:
  RiseSetSearch moonSearch_;
  RiseSetSearch sunSearch_;
};

void appendEvents(std::string& out, const RisingBody& body, const PerQuarter<RiseSet>& events) {
  for (const std::optional<RiseSet>& event : events) {
    if (event) {
      appendRiseSetText(out, body, *event);
    }
  }
}

void appendRow(std::string& out, const EphemerisEntry& entry) {
  astro::appendCalendarLabel(out, entry.baseTime);
  out += "  ";
  for (const double angle :
       {entry.moonRightAscension, entry.moonDeclination, entry.moonLatitude, entry.moonLongitude,
        entry.sunRightAscension, entry.sunDeclination, entry.sunLongitude}) {
    appendAngleField(out, angle);
    out += "  ";
  }
  out += ' ';
  astro::appendFixed(out, entry.phase, 2);
  out += "   ";
  // All events of the moon, then those of the sun, then the eclipses, each in order of time.
  appendEvents(out, risingMoon, entry.moonEvents);
  appendEvents(out, risingSun, entry.sunEvents);
  for (const std::optional<double>& eclipse : entry.eclipses) {
    if (eclipse) {
      out += astro::lunarEventText(*eclipse);
    }
  }
  out += '\n';
}

}  // namespace

void forEachEphemerisEntry(const astro::Observer& observer, const TableSize& size,
                           const std::function<void(const EphemerisEntry&)>& take) {
  EphemerisEntries entries(observer.latitude);
  forEachMoment(observer.baseTime, size, [&](double t) { take(entries.at(t)); });
}

void writeEphemerisTable(const astro::Observer& observer, const TableSize& size,
                         const TextSink& sink) {
  EphemerisEntries entries(observer.latitude);
  writeRows(ephemerisHeader, observer.baseTime, size, sink,
            [&entries](std::string& row, double t) { appendRow(row, entries.at(t)); });
}

std::string ephemerisTable(const astro::Observer& observer, const TableSize& size) {
  return collected([&](const TextSink& sink) { writeEphemerisTable(observer, size, sink); });
}

}  // namespace veyruna::reports
