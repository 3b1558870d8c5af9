#include "records/sky_fields.h"

#include "astro/angle.h"
#include "astro/planet_pair.h"
#include "reports/zodiac.h"

namespace veyruna::records {

double degreesInTurn(double radians) {
  constexpr double wholeTurn = 360.0;
  // The last angle below a whole turn may round up to it.
  const double degrees = astro::degreesOf(astro::wrappedToTurn(radians));
  return degrees < wholeTurn ? degrees : 0.0;
}

const std::vector<std::string>& bodyWords() {
  static const std::vector<std::string> words = [] {
    std::vector<std::string> all;
    all.reserve(almanac::allBodies.size());
    for (const almanac::Body body : almanac::allBodies) {
      all.emplace_back(almanac::wordOf(body));
    }
    return all;
  }();
  return words;
}

const std::vector<std::string>& planetPairWords() {
  static const std::vector<std::string> words = [] {
    std::vector<std::string> all;
    for (const auto& [first, second] : astro::allPlanetPairs) {
      all.push_back(bodyWords()[rowOf(first)] + "-" + bodyWords()[rowOf(second)]);
    }
    return all;
  }();
  return words;
}

const std::vector<std::string>& signWords() {
  static const std::vector<std::string> words = [] {
    std::vector<std::string> all;
    all.reserve(reports::zodiacSigns.size());
    for (const reports::ZodiacSign& sign : reports::zodiacSigns) {
      all.emplace_back(reports::plainName(sign));
    }
    return all;
  }();
  return words;
}

std::vector<Field> momentFields() {
  return {{"base_time_days", ValueType::number,
           "The moment: days since noon of the first day of the first year"},
          {"date", ValueType::date,
           "The same in standard time, to the minute; absent before the first midnight", true}};
}

Row momentValues(double baseTime) {
  return {baseTime, dateOf(baseTime)};
}

std::vector<Field> placeFields() {
  return {{"latitude_degrees", ValueType::number, "Of the observer, north positive"},
          {"longitude_degrees", ValueType::number, "Of the observer, east positive"}};
}

Row placeValues(const astro::Observer& place) {
  return {astro::typedDegreesOf(place.latitude), astro::typedDegreesOf(place.longitude)};
}

}  // namespace veyruna::records
