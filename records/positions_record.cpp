#include "astro/angle.h"
#include "records/document_records.h"
#include "records/sky_fields.h"
#include "records/tables.h"
#include "reports/positions.h"
#include "reports/zodiac.h"

namespace veyruna::records {

const RecordType& positionsType() {
  static const RecordType type = {
      .name = "positions",
      .version = 1,
      .description = "Where every body stands at one moment, as seen from one place",
      .rowsMember = "positions",
      .about = joined(momentFields(), placeFields()),
      .fields = {{"body", ValueType::text, "The sun (thessil), the moon (ivro) or a planet", false,
                  bodyWords()},
                 {"azimuth_degrees", ValueType::number,
                  "From the south point through the west, from 0 to less than 360"},
                 {"altitude_degrees", ValueType::number, "Above the horizon"},
                 {"ecliptic_longitude_degrees", ValueType::number, "From 0 to less than 360"},
                 {"sign", ValueType::text, "The sign of that longitude", false, signWords()}}};
  return type;
}

Row aboutPositions(const astro::Observer& observer) {
  return joined(momentValues(observer.baseTime), placeValues(observer));
}

void forEachPositionsRow(const astro::Observer& observer, const reports::TableSize& /*size*/,
                         const TakeRow& take) {
  std::size_t body = 0;
  // Every field is named, so that one more does not compile until it is thought of here.
  for (const auto& [name, bodyType, azimuth, altitude, ecLong] : reports::bodyPlaces(observer)) {
    take({bodyWords()[body++], degreesInTurn(azimuth), astro::degreesOf(altitude),
          degreesInTurn(ecLong), std::string(reports::plainName(reports::signAt(ecLong)))});
  }
}

}  // namespace veyruna::records
