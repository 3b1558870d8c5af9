// A record of an event says what the event is, and nothing that it is not.
#include "almanac/events/events.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <set>

#include "almanac/events/event_words.h"
#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "records/event_record.h"
#include "records/record_writer.h"
#include "records/sky_fields.h"

namespace veyruna {
namespace {

using Json = nlohmann::json;
using almanac::Event;
using almanac::EventKind;
using records::Lookout;

const Lookout ebb{"Ebb", {0.0, 0.23, 0.15}};

Json recordOf(const Event& event, const std::optional<Lookout>& lookout) {
  const std::string text = reports::collected([&](const reports::TextSink& sink) {
    records::RecordWriter writer(records::eventsType(), records::Notation::jsonl, sink);
    writer.write(records::eventRow(event, lookout));
  });
  return Json::parse(text);
}

std::vector<Event> eventsOfTwoYears() {
  almanac::EventQuery query{.range = {.from = 258839.5, .to = 259559.5}};
  for (const almanac::EventKindEntry& kind : almanac::allEventKinds) {
    query.kinds.insert(kind.kind);
  }
  query.places = {ebb.place};
  std::vector<Event> events;
  almanac::forEachEvent(query, [&events](const Event& event) { events.push_back(event); });
  return events;
}

std::set<std::string> membersOf(const Json& record) {
  std::set<std::string> members;
  for (const auto& [name, value] : record.items()) {
    members.insert(name);
  }
  return members;
}

TEST(EventRecord, HasTheMembersOfItsKind) {
  const std::set<std::string> always = {"schema", "kind",        "base_time_days",
                                        "date",   "description", "bodies"};
  const std::set<std::string> pair = {"begin_base_time_days", "begin_date", "end_base_time_days",
                                      "end_date", "separation_degrees"};
  const std::map<EventKind, std::set<std::string>> further = {
      {EventKind::eclipse, {"code"}},
      {EventKind::moon, {"phase"}},
      {EventKind::conjunction, pair},
      {EventKind::opposition, pair},
      {EventKind::sign, {"sign", "direction"}},
      {EventKind::station, {"direction"}},
      {EventKind::season, {"sun_longitude_degrees"}},
      {EventKind::rise, {}},
      {EventKind::set, {}},
      {EventKind::culmination, {}}};
  std::set<EventKind> met;
  for (const Event& event : eventsOfTwoYears()) {
    std::set<std::string> expected = always;
    expected.merge(std::set<std::string>(further.at(event.kind)));
    EXPECT_EQ(membersOf(recordOf(event, std::nullopt)), expected);
    expected.merge(std::set<std::string>{"place", "latitude_degrees", "longitude_degrees",
                                         "local_clock", "altitude_degrees", "azimuth_degrees",
                                         "seen"});
    EXPECT_EQ(membersOf(recordOf(event, ebb)), expected);
    met.insert(event.kind);
  }
  EXPECT_EQ(met.size(), almanac::eventKindCount);
}

TEST(EventRecord, SaysWhatTheEventIs) {
  for (const Event& event : eventsOfTwoYears()) {
    const Json record = recordOf(event, ebb);
    EXPECT_EQ(record["kind"], almanac::entryOf(event.kind).word);
    EXPECT_EQ(record["base_time_days"], event.baseTime);
    EXPECT_EQ(record["description"], almanac::wordsOf(event));
    EXPECT_EQ(record["bodies"][0], almanac::wordOf(event.body));
    EXPECT_EQ(record["bodies"].size(), event.other == almanac::Body::count ? 1U : 2U);
    EXPECT_EQ(record.value("code", ""), event.code);
    if (event.begin) {
      EXPECT_EQ(record["begin_base_time_days"], *event.begin);
      EXPECT_EQ(record["end_base_time_days"], *event.end);
      EXPECT_NEAR(record["separation_degrees"].get<double>(), event.separation * 180.0 / astro::pi,
                  1e-12);
    }
    if (event.sign != nullptr) {
      EXPECT_TRUE(event.sign->name.starts_with(record["sign"].get<std::string>()));
    }
    const almanac::Sight sight = almanac::sightOf(event, ebb.place);
    EXPECT_EQ(record["seen"], sight.isSeen);
    EXPECT_NEAR(record["altitude_degrees"].get<double>(), sight.altitude * 180.0 / astro::pi,
                1e-12);
    EXPECT_EQ(record["azimuth_degrees"], records::degreesInTurn(sight.azimuth));
    EXPECT_EQ(record["local_clock"], astro::localClockLabel(ebb.place.at(event.baseTime)));
  }
}

TEST(EventRecord, TellsFullFromNewAndForwardFromBackward) {
  const Event full{.kind = EventKind::moon, .body = almanac::Body::ivro, .isFull = true};
  EXPECT_EQ(recordOf(full, {})["phase"], "full");
  EXPECT_EQ(recordOf({.kind = EventKind::moon, .body = almanac::Body::ivro}, {})["phase"], "new");
  const Event back{.kind = EventKind::station, .body = almanac::Body::galvi, .isForward = false};
  EXPECT_EQ(recordOf(back, {})["direction"], "backward");
  const Event autumn{.kind = EventKind::season, .body = almanac::Body::thessil, .quarter = 2};
  EXPECT_EQ(recordOf(autumn, {})["sun_longitude_degrees"], 180.0);
}

TEST(EventRecord, SaysHowFarAPairIsFromOneLongitude) {
  const Json record = recordOf({.kind = EventKind::opposition,
                                .baseTime = 7.0,
                                .body = almanac::Body::bralo,
                                .other = almanac::Body::pallox,
                                .begin = 6.0,
                                .end = 9.5,
                                .separation = astro::pi / 180.0},
                               {});
  EXPECT_NEAR(record["separation_degrees"].get<double>(), 1.0, 1e-12);
  EXPECT_EQ(record["begin_base_time_days"], 6.0);
  EXPECT_EQ(record["end_base_time_days"], 9.5);
  EXPECT_EQ(record["begin_date"], "001-01-07T12:00");
  EXPECT_EQ(record["end_date"], "001-01-11T00:00");
  EXPECT_EQ(record["bodies"], Json({"bralo", "pallox"}));
}

TEST(EventRecord, BeforeTheFirstMidnightThereIsNoDate) {
  const Json record =
      recordOf({.kind = EventKind::moon, .baseTime = -0.75, .body = almanac::Body::ivro}, {});
  EXPECT_FALSE(record.contains("date"));
  EXPECT_EQ(record["base_time_days"], -0.75);
}

}  // namespace
}  // namespace veyruna
