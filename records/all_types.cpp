#include "records/all_types.h"

#include "records/document_records.h"
#include "records/event_record.h"
#include "records/search_record.h"

namespace veyruna::records {

const RecordType& locationsType() {
  static const RecordType type = {
      .name = "locations",
      .version = 1,
      .description = "The saved places with their coordinates",
      .rowsMember = "locations",
      .fields = {
          {"name", ValueType::text, "As it was saved; Manual is the coordinates typed by hand"},
          {"is_on_globe", ValueType::boolean,
           "Whether the stored coordinates are those of a place"},
          {"latitude_degrees", ValueType::number, "North positive", true},
          {"longitude_degrees", ValueType::number, "East positive", true}}};
  return type;
}

constexpr std::array<TypeEntry, 8> allTypes = {{{"conjunctions", conjunctionsType},
                                                {"ephemeris", ephemerisType},
                                                {"events", eventsType},
                                                {"interpretation", interpretationType},
                                                {"locations", locationsType},
                                                {"moment", momentType},
                                                {"positions", positionsType},
                                                {"search", searchType}}};

}  // namespace veyruna::records
