#include "astro/angle.h"
#include "astro/lunar_events.h"
#include "records/document_records.h"
#include "records/sky_fields.h"
#include "records/tables.h"
#include "reports/ephemeris.h"

namespace veyruna::records {

namespace {

using reports::EphemerisEntry;
using reports::RiseSet;

std::vector<double> momentsOf(const reports::PerQuarter<RiseSet>& events, bool isRise) {
  std::vector<double> moments;
  for (const std::optional<RiseSet>& event : events) {
    if (event && event->isRise == isRise) {
      moments.push_back(event->baseTime);
    }
  }
  return moments;
}

Row rowOf(const EphemerisEntry& entry) {
  std::vector<double> eclipses;
  std::vector<std::string> codes;
  for (const std::optional<double>& eclipse : entry.eclipses) {
    if (eclipse) {
      eclipses.push_back(*eclipse);
      codes.emplace_back(astro::lunarEventCode(*eclipse));
    }
  }
  return joined(momentValues(entry.baseTime),
                {degreesInTurn(entry.moonRightAscension), astro::degreesOf(entry.moonDeclination),
                 degreesInTurn(entry.moonLongitude), astro::degreesOf(entry.moonLatitude),
                 degreesInTurn(entry.sunRightAscension), astro::degreesOf(entry.sunDeclination),
                 degreesInTurn(entry.sunLongitude), entry.phase, momentsOf(entry.moonEvents, true),
                 momentsOf(entry.moonEvents, false), momentsOf(entry.sunEvents, true),
                 momentsOf(entry.sunEvents, false), eclipses, codes});
}

}  // namespace

const RecordType& ephemerisType() {
  constexpr auto number = ValueType::number;
  constexpr auto numbers = ValueType::numbers;
  static const RecordType type = {
      .name = "ephemeris",
      .version = 1,
      .description =
          "Moon and sun from the world's centre, and what happens in the 24 hours after each "
          "moment",
      .rowsMember = "moments",
      .about = {placeFields().front()},
      .fields = joined(
          momentFields(),
          {{"ivro_right_ascension_degrees", number, "Of the moon, from 0 to less than 360"},
           {"ivro_declination_degrees", number, "Of the moon"},
           {"ivro_ecliptic_longitude_degrees", number, "Of the moon, from 0 to less than 360"},
           {"ivro_ecliptic_latitude_degrees", number, "Of the moon"},
           {"thessil_right_ascension_degrees", number, "Of the sun, from 0 to less than 360"},
           {"thessil_declination_degrees", number, "Of the sun"},
           {"thessil_ecliptic_longitude_degrees", number, "Of the sun, from 0 to less than 360"},
           {"ivro_phase", number, "0 at new moon, 1 at full moon"},
           {"ivro_rise_base_time_days", numbers,
            "When the moon rises on the meridian of longitude 0"},
           {"ivro_set_base_time_days", numbers, "When the moon sets there"},
           {"thessil_rise_base_time_days", numbers, "When the sun rises there"},
           {"thessil_set_base_time_days", numbers, "When the sun sets there"},
           {"eclipse_base_time_days", numbers,
            "Node crossings of the moon near a syzygy; one on a quarter of the 24 hours may stand "
            "twice and slightly aside"},
           {"eclipse_codes", ValueType::texts, "What each of them is", false,
            std::vector<std::string>{"TS", "PS", "FUL", "FPL", "PPL"}}})};
  return type;
}

Row aboutEphemeris(const astro::Observer& observer) {
  return {placeValues(observer).front()};
}

void forEachEphemerisRow(const astro::Observer& observer, const reports::TableSize& size,
                         const TakeRow& take) {
  reports::forEachEphemerisEntry(observer, size,
                                 [&take](const EphemerisEntry& entry) { take(rowOf(entry)); });
}

}  // namespace veyruna::records
