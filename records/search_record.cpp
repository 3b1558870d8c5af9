#include "records/search_record.h"

#include "astro/local_time.h"
#include "records/sky_fields.h"

namespace veyruna::records {

namespace {

Value clockOf(double t, const std::optional<Lookout>& lookout) {
  return lookout ? Value(astro::localClockLabel(lookout->place.at(t))) : Value();
}

}  // namespace

const RecordType& searchType() {
  constexpr auto number = ValueType::number;
  constexpr auto text = ValueType::text;
  constexpr auto date = ValueType::date;
  static const RecordType type = {
      .name = "search",
      .version = 1,
      .description = "When all of the conditions of a search hold",
      .rowsMember = "intervals",
      .fields = {
          {"begin_base_time_days", number,
           "When they begin to hold, or the beginning of the stretch; days since noon of the first "
           "day"},
          {"begin_date", date, "The same in standard time; absent before the first midnight", true},
          {"begin_local_clock", text, "The same in local solar time at the place: 14:37", true},
          {"end_base_time_days", number,
           "When they no longer hold, or the end of the stretch; days since noon of the first day"},
          {"end_date", date, "The same in standard time; absent before the first midnight", true},
          {"end_local_clock", text, "The same in local solar time at the place: 14:37", true},
          {"length_days", number, "For how long they hold"},
          {"place", text, "Where: a saved name, or coordinates", true},
          {"latitude_degrees", number, "Of that place, north positive", true},
          {"longitude_degrees", number, "Of that place, east positive", true},
          {"horoscope_command", text,
           "A line for a shell that draws the horoscope of the middle"}}};
  return type;
}

Row searchRow(const almanac::Span& span, const std::optional<Lookout>& lookout,
              const std::string& command) {
  Row row = {span.begin,       dateOf(span.begin),         clockOf(span.begin, lookout), span.end,
             dateOf(span.end), clockOf(span.end, lookout), span.end - span.begin};
  row = joined(row, lookout ? joined(Row{lookout->name}, placeValues(lookout->place)) : Row(3));
  row.emplace_back(command);
  return row;
}

}  // namespace veyruna::records
