#include "cli/documents.h"

#include "astro/calendar.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"
#include "reports/positions.h"

namespace veyruna::cli {

namespace {

std::string starMapText(const astro::Observer& observer) {
  return charts::starMap(observer.baseTime, observer.latitude, observer.longitude,
                         charts::builtInCatalogue());
}

std::string colorHoroscopeText(const astro::Observer& observer) {
  return horoscopeText(observer, false);
}

std::string paperHoroscopeText(const astro::Observer& observer) {
  return horoscopeText(observer, true);
}

std::string hourlyText(const astro::Observer& observer) {
  return reports::ephemerisTable(24, observer.baseTime, 1.0 / 24.0, observer.latitude);
}

std::string monthlyText(const astro::Observer& observer) {
  return reports::ephemerisTable(30, observer.baseTime, 1.0, observer.latitude);
}

std::string dailyText(const astro::Observer& observer) {
  return reports::conjunctionTable(144, observer.baseTime, 1.0 / 144.0);
}

std::string yearlyText(const astro::Observer& observer) {
  return reports::conjunctionTable(360, observer.baseTime, 1.0);
}

std::string positionsText(const astro::Observer& observer) {
  return reports::positionsTableText(
      reports::positionRows(observer.baseTime, observer.latitude, observer.longitude));
}

std::string momentText(const astro::Observer& observer) {
  const auto moonLabel = [&observer](double target) {
    return astro::calendarLabelWithLocalClock(astro::nextPhase(observer.baseTime, target),
                                              observer.longitude);
  };
  return astro::calendarLabel(observer.baseTime) +
         "\nNext full moon: " + moonLabel(astro::fullMoonElongation) +
         "\nNext new moon: " + moonLabel(astro::newMoonElongation) + "\n";
}

}  // namespace

std::string horoscopeText(const astro::Observer& observer, bool blackAndWhite) {
  return charts::horoscope(blackAndWhite, observer.baseTime, observer.latitude, observer.longitude,
                           charts::builtInCatalogue());
}

const std::array<Document, 9> allDocuments = {{
    {"star-map", "star-map.svg", "The sky above the place, as SVG", starMapText},
    {"horoscope", "horoscope.svg", "The horoscope with its interpretation, as SVG",
     colorHoroscopeText},
    {"", "horoscope-black-and-white.svg", "", paperHoroscopeText},
    {"hourly", "ephemeris-hourly.txt", "Moon and sun for 24 hours", hourlyText},
    {"monthly", "ephemeris-monthly.txt", "Moon and sun for 30 days", monthlyText},
    {"daily", "conjunctions-daily.txt", "All bodies every ten minutes of a day", dailyText},
    {"yearly", "conjunctions-yearly.txt", "All bodies every day of a year", yearlyText},
    {"positions", "positions.txt", "Where every body stands now", positionsText},
    {"moment", "moment.txt", "The date with the next full and new moon", momentText},
}};

}  // namespace veyruna::cli
