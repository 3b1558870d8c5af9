#include "records/event_record.h"

#include "almanac/events/event_words.h"
#include "almanac/events/events.h"
#include "astro/angle.h"
#include "astro/local_time.h"
#include "records/sky_fields.h"
#include "reports/zodiac.h"

namespace veyruna::records {

namespace {

using almanac::Event;
using almanac::EventKind;

std::vector<std::string> kindWords() {
  std::vector<std::string> words;
  words.reserve(almanac::eventKindCount);
  for (const almanac::EventKindEntry& kind : almanac::allEventKinds) {
    words.emplace_back(kind.word);
  }
  return words;
}

bool isPair(const Event& event) {
  return event.kind == EventKind::conjunction || event.kind == EventKind::opposition;
}

/// The bodies, and from when to when and how near a pair stands together.
Row pairValues(const Event& event) {
  std::vector<std::string> bodies = {std::string(almanac::wordOf(event.body))};
  if (!isPair(event)) {
    return {bodies, {}, {}, {}, {}, {}};
  }
  bodies.emplace_back(almanac::wordOf(event.other));
  return {bodies,
          valueOf(event.begin),
          event.begin ? dateOf(*event.begin) : Value(),
          valueOf(event.end),
          event.end ? dateOf(*event.end) : Value(),
          astro::degreesOf(event.separation)};
}

/// What only one kind has.
Row kindValues(const Event& event) {
  const bool turns = event.kind == EventKind::sign || event.kind == EventKind::station;
  const auto only = [&event](EventKind kind, const Value& value) {
    return event.kind == kind ? value : Value();
  };
  return {only(EventKind::eclipse, std::string(event.code)),
          only(EventKind::moon, event.isFull ? "full" : "new"),
          only(EventKind::season, static_cast<double>(event.quarter) * 90.0),
          event.sign == nullptr ? Value() : std::string(reports::plainName(*event.sign)),
          turns ? Value(event.isForward ? "forward" : "backward") : Value()};
}

Row sightValues(const Event& event, const std::optional<Lookout>& lookout) {
  if (!lookout) {
    return Row(7);
  }
  const almanac::Sight sight = almanac::sightOf(event, lookout->place);
  Row row = {lookout->name};
  row = joined(row, placeValues(lookout->place));
  return joined(row,
                {astro::localClockLabel(lookout->place.at(event.baseTime)),
                 astro::degreesOf(sight.altitude), degreesInTurn(sight.azimuth), sight.isSeen});
}

std::vector<Field> fieldsOfEvents() {
  constexpr auto number = ValueType::number;
  constexpr auto text = ValueType::text;
  constexpr auto date = ValueType::date;
  std::vector<Field> fields = {{"kind", text, "What the event is one of", false, kindWords()}};
  fields = joined(fields, momentFields());
  return joined(
      fields,
      {{"description", text, "What happens, in words"},
       {"bodies", ValueType::texts, "What it happens to; the first one is what is seen", false,
        bodyWords()},
       {"begin_base_time_days", number, "Of a pair: when it comes within 2 degrees", true},
       {"begin_date", date, "The same in standard time", true},
       {"end_base_time_days", number, "Of a pair: when it leaves them", true},
       {"end_date", date, "The same in standard time", true},
       {"separation_degrees", number, "Of a pair: its least distance from 0 or 180 degrees", true},
       {"code",
        text,
        "Of an eclipse, as in the ephemeris",
        true,
        {"TS", "PS", "FUL", "FPL", "PPL"}},
       {"phase", text, "Of the moon", true, {"full", "new"}},
       {"sun_longitude_degrees", number, "Of a season: 0, 90, 180 or 270", true},
       {"sign", text, "The sign that is entered", true, signWords()},
       {"direction",
        text,
        "Of a sign: how it is entered; of a station: what follows",
        true,
        {"forward", "backward"}},
       {"place", text, "From where it is looked at: a saved name, or coordinates", true},
       {"latitude_degrees", number, "Of that place, north positive", true},
       {"longitude_degrees", number, "Of that place, east positive", true},
       {"local_clock", text, "Local solar time there: 14:37", true},
       {"altitude_degrees", number, "There, above the horizon", true},
       {"azimuth_degrees", number, "There, from the south point through the west", true},
       {"seen", ValueType::boolean,
        "Whether it stands above the horizon there and, of a planet, the sun below it", true}});
}

}  // namespace

const RecordType& eventsType() {
  static const RecordType type = {.name = "events",
                                  .version = 1,
                                  .description = "What happens in the sky, in the order of time",
                                  .rowsMember = "events",
                                  .fields = fieldsOfEvents()};
  return type;
}

Row eventRow(const Event& event, const std::optional<Lookout>& lookout) {
  Row row = {std::string(almanac::entryOf(event.kind).word)};
  row = joined(row, momentValues(event.baseTime));
  row.emplace_back(almanac::wordsOf(event));
  row = joined(row, pairValues(event));
  return joined(joined(row, kindValues(event)), sightValues(event, lookout));
}

}  // namespace veyruna::records
