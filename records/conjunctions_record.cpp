#include "records/document_records.h"
#include "records/sky_fields.h"
#include "records/tables.h"
#include "reports/conjunctions.h"
#include "reports/table_rows.h"

namespace veyruna::records {

namespace {

/// One field a body: "bralo_right_ascension_degrees".
std::vector<Field> fieldsOfBodies(const std::string& quantity, const std::string& meaning) {
  std::vector<Field> fields;
  for (const std::string& body : bodyWords()) {
    fields.push_back({body + "_" + quantity + "_degrees", ValueType::number,
                      meaning + " of " + body + ", from 0 to less than 360"});
  }
  return fields;
}

/// In the order of all bodies.
Row valuesOfBodies(const reports::BodyAngles& angles) {
  Row values = {degreesInTurn(angles.sun), degreesInTurn(angles.moon)};
  for (const double angle : angles.planets) {
    values.emplace_back(degreesInTurn(angle));
  }
  return values;
}

}  // namespace

const RecordType& conjunctionsType() {
  static const RecordType type = {
      .name = "conjunctions",
      .version = 1,
      .description = "All bodies from the world's centre, and the planets that stand together",
      .rowsMember = "moments",
      .fields =
          joined(joined(momentFields(),
                        joined(fieldsOfBodies("right_ascension", "Right ascension"),
                               fieldsOfBodies("ecliptic_longitude", "Ecliptic longitude"))),
                 {{"conjunctions", ValueType::texts,
                   "The pairs of planets whose ecliptic longitudes are less than 2 degrees apart",
                   false, planetPairWords()}})};
  return type;
}

Row aboutConjunctions(const astro::Observer& /*observer*/) {
  return {};
}

void forEachConjunctionsRow(const astro::Observer& observer, const reports::TableSize& size,
                            const TakeRow& take) {
  reports::forEachMoment(observer.baseTime, size, [&take](double t) {
    const reports::ConjunctionEntry entry = reports::conjunctionEntry(t);
    std::vector<std::string> pairs;
    for (std::size_t i = 0; i < astro::planetPairCount; ++i) {
      if (entry.isConjunctPair[i]) {
        pairs.push_back(planetPairWords()[i]);
      }
    }
    Row row = joined(momentValues(t), joined(valuesOfBodies(entry.rightAscensions),
                                             valuesOfBodies(entry.longitudes)));
    row.emplace_back(std::move(pairs));
    take(row);
  });
}

}  // namespace veyruna::records
