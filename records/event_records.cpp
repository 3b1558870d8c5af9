#include "records/event_records.h"

#include "almanac/event_words.h"
#include "almanac/events.h"
#include "astro/angle.h"
#include "astro/local_time.h"

namespace veyruna::records {

namespace {

using almanac::Body;
using almanac::Event;
using almanac::EventKind;

std::vector<std::string> kindWords() {
  std::vector<std::string> words;
  for (const almanac::EventKindEntry& entry : almanac::allEventKinds) {
    words.emplace_back(entry.word);
  }
  return words;
}

std::vector<std::string> bodyWords() {
  std::vector<std::string> words;
  for (const Body body : almanac::allBodies) {
    words.emplace_back(almanac::wordOf(body));
  }
  return words;
}

std::vector<std::string> signNames() {
  std::vector<std::string> names;
  for (const reports::ZodiacSign& sign : reports::zodiacSigns) {
    names.emplace_back(reports::plainName(sign));
  }
  return names;
}

std::vector<std::string> bodiesOf(const Event& event) {
  std::vector<std::string> bodies = {std::string(almanac::wordOf(event.body))};
  if (event.other != Body::count) {
    bodies.emplace_back(almanac::wordOf(event.other));
  }
  return bodies;
}

Value dateOf(const std::optional<double>& baseTime) {
  return baseTime ? records::dateOf(*baseTime) : Value();
}

Value onlyIf(bool isKnown, Value value) {
  return isKnown ? std::move(value) : Value();
}

}  // namespace

const RecordType eventRecords = {
    .name = "events",
    .version = 1,
    .description = "What happens in the sky in a stretch of time, in the order of time",
    .rowsMember = "events",
    .about = {{"from_base_time_days", ValueType::number, "The beginning of the stretch, part of it"},
              {"to_base_time_days", ValueType::number, "Its end, no part of it"}},
    .fields = {
        {"kind", ValueType::text, "What the event is one of", false, kindWords()},
        {"base_time_days", ValueType::number,
         "Its moment; of two bodies that meet or stand opposite, that of the least separation"},
        {"date", ValueType::date, "The same in standard time", true},
        {"bodies", ValueType::texts, "The body it is about, and the second of a pair", false,
         bodyWords()},
        {"what", ValueType::text, "The event in words"},
        {"begin_base_time_days", ValueType::number,
         "Of a pair: when it comes within 2 degrees, perhaps before the stretch", true},
        {"begin_date", ValueType::date, "The same in standard time", true},
        {"end_base_time_days", ValueType::number,
         "Of a pair: when it leaves them, perhaps after the stretch", true},
        {"end_date", ValueType::date, "The same in standard time", true},
        {"separation_degrees", ValueType::number,
         "Of a pair: the least separation, from one longitude or from opposite ones", true},
        {"code", ValueType::text, "Of an eclipse: its code in the tables", true,
         {"TS", "PS", "FUL", "FPL", "PPL"}},
        {"phase", ValueType::text, "Of a moon: which", true, {"new", "full"}},
        {"sign", ValueType::text, "The sign that is entered", true, signNames()},
        {"direction", ValueType::text,
         "How a sign is entered; how a planet moves after it has turned", true,
         {"forward", "backward"}},
        {"sun_longitude_degrees", ValueType::number, "Of a season: 0, 90, 180 or 270", true},
        {"place", ValueType::text, "From where the rest is told", true},
        {"local_clock", ValueType::text, "The solar clock there", true},
        {"altitude_degrees", ValueType::number,
         "Of the body it is about, above the horizon of the place", true},
        {"azimuth_degrees", ValueType::number,
         "Of the same, from the south through the west, from 0 to below 360", true},
        {"seen", ValueType::boolean,
         "Whether it stands above that horizon and, of a planet, the sun below it", true}}};

Row eventsAbout(const almanac::Range& range) {
  return {range.from, range.to};
}

Row eventRow(const Event& event, const std::optional<NamedPlace>& place) {
  const bool isPair = event.begin.has_value();
  const bool hasDirection = event.kind == EventKind::sign || event.kind == EventKind::station;
  Row row = {std::string(almanac::entryOf(event.kind).word),
             event.baseTime,
             records::dateOf(event.baseTime),
             bodiesOf(event),
             almanac::wordsOf(event),
             valueOf(event.begin),
             dateOf(event.begin),
             valueOf(event.end),
             dateOf(event.end),
             onlyIf(isPair, astro::degreesOf(event.separation)),
             onlyIf(!event.code.empty(), std::string(event.code)),
             onlyIf(event.kind == EventKind::moon, std::string(event.isFull ? "full" : "new")),
             onlyIf(event.sign != nullptr,
                    event.sign == nullptr ? Value() : Value(std::string(reports::plainName(*event.sign)))),
             onlyIf(hasDirection, std::string(event.isForward ? "forward" : "backward")),
             onlyIf(event.kind == EventKind::season, 90.0 * event.quarter)};
  if (!place) {
    row.resize(eventRecords.fields.size());
    return row;
  }
  const astro::Observer observer = place->observer.at(event.baseTime);
  const almanac::Sight sight = almanac::sightOf(event, observer);
  row.insert(row.end(), {Value(place->name), Value(astro::localClockLabel(observer)),
                         Value(astro::degreesOf(sight.altitude)), azimuth(sight.azimuth),
                         Value(sight.isSeen)});
  return row;
}

}  // namespace veyruna::records
