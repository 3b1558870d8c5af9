// A note says when, what and to whom; its id belongs to it alone, from wherever it was sought.
#include "notes/note.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "almanac/events/events.h"
#include "astro/angle.h"
#include "astro/calendar.h"
#include "notes/calendar_definition.h"
#include "notes/note_text.h"
#include "tests/support/expect_stop.h"

namespace veyruna {
namespace {

using almanac::Body;
using almanac::Event;
using almanac::EventKind;
using notes::Note;
using notes::noteOf;
using records::Lookout;

constexpr double second = 1.0 / 86400.0;
const Lookout ebb{"Ebb", {0.0, 0.23, 0.15}};
/// Far north, where bodies graze the horizon; a name like the first one's.
const Lookout north{"EBB!", {0.0, 1.22, 0.15}};
const std::vector<Lookout> both = {ebb, north};

Event moonAt(double baseTime) {
  return {.kind = EventKind::moon, .baseTime = baseTime, .body = Body::ivro, .isFull = true};
}

std::vector<Event> allEvents(const almanac::Range& range) {
  almanac::EventQuery query{.range = range};
  for (const almanac::EventKindEntry& kind : almanac::allEventKinds) {
    query.kinds.insert(kind.kind);
  }
  query.withSunAndMoon = {EventKind::conjunction, EventKind::opposition};
  for (const Lookout& lookout : both) {
    query.places.push_back(lookout.place);
  }
  std::vector<Event> events;
  almanac::forEachEvent(query, [&events](const Event& event) { events.push_back(event); });
  return events;
}

Note noteFor(const Event& event) {
  return noteOf(event,
                almanac::entryOf(event.kind).needsPlace ? std::vector{both[event.place]} : both)
      .value();
}

TEST(Note, StandsOnTheDayOfTheEventsLabel) {
  const double midnight = 258900.5;  // 720-03-02
  for (int tenths = -30; tenths <= 30; ++tenths) {
    const double seconds = tenths / 10.0 + 0.05;
    const double t = midnight + seconds * second;
    const astro::CalendarMoment moment = noteOf(moonAt(t), {}).value().moment;
    const std::string label = astro::calendarLabel(t);
    EXPECT_EQ(std::stoi(label.substr(8, 2)), moment.day) << label << seconds;
    EXPECT_EQ(moment.day, seconds < -0.5 ? 1 : 2) << seconds;
  }
  EXPECT_EQ(noteOf(moonAt(midnight - 0.3 * second), {}).value().moment,
            (astro::CalendarMoment{720, 3, 2, 0, 0, 0}));
  EXPECT_EQ(noteOf(moonAt(midnight - 0.7 * second), {}).value().moment,
            (astro::CalendarMoment{720, 3, 1, 23, 59, 59}));
}

TEST(Note, OfWhatTheCalendarHasNoDateForThereIsNone) {
  EXPECT_TRUE(noteOf(moonAt(-0.5), {}));
  EXPECT_FALSE(noteOf(moonAt(-0.6), {}));
}

TEST(Note, SaysWhatHappensAndHowItIsSeen) {
  const Note note = noteOf({.kind = EventKind::conjunction,
                            .baseTime = 258840.25,
                            .body = Body::bralo,
                            .other = Body::galvi,
                            .begin = 258839.0,
                            .end = 258842.0,
                            .separation = 0.01},
                           {})
                        .value();
  EXPECT_EQ(note.id, "720-01-01-pm-conjunction-bralo-galvi");
  EXPECT_EQ(note.name, "Bralo and Galvi meet");
  EXPECT_EQ(note.category, "Meetings");
  EXPECT_EQ(note.description,
            "720-01-01 18:00 OST: Bralo and Galvi meet, 0.57° apart; within 2° from "
            "719-12-30 12:00 to 720-01-03 12:00.");
  EXPECT_FALSE(note.isSeen);
  const Note full = noteOf(moonAt(258840.0), {ebb}).value();
  EXPECT_NE(full.description.find(" From Ebb at "), std::string::npos) << full.description;
  EXPECT_TRUE(full.description.ends_with(", seen.")) << full.description;
  EXPECT_TRUE(full.isSeen);
  const Note night = noteOf(moonAt(258840.5), {ebb}).value();
  EXPECT_TRUE(night.description.ends_with(", not seen.")) << night.description;
  EXPECT_FALSE(night.isSeen);
}

TEST(Note, IsSeenWhereFromAnyPlaceItIs) {
  bool oneSeesWhatTheOtherDoesNot = false;
  for (const Event& event : allEvents({258839.5, 258900.0})) {
    const bool fromEbb = almanac::sightOf(event, ebb.place).isSeen;
    const bool fromNorth = almanac::sightOf(event, north.place).isSeen;
    if (almanac::entryOf(event.kind).needsPlace) {
      EXPECT_EQ(noteFor(event).isSeen, event.place == 0 ? fromEbb : fromNorth);
    } else {
      EXPECT_EQ(noteFor(event).isSeen, fromEbb || fromNorth);
      oneSeesWhatTheOtherDoesNot = oneSeesWhatTheOtherDoesNot || fromEbb != fromNorth;
    }
  }
  EXPECT_TRUE(oneSeesWhatTheOtherDoesNot);
}

TEST(NoteId, NoTwoEventsHaveOne) {
  std::map<std::string, Event> met;
  for (const Event& event : allEvents({258839.5, 258839.5 + 6.0 * 360.0})) {
    const Note note = noteFor(event);
    const bool isNew = met.emplace(note.id, event).second;
    EXPECT_TRUE(isNew) << note.id << " " << met.at(note.id).baseTime << " " << event.baseTime;
  }
  EXPECT_GT(met.size(), 50'000U);
}

/// Within a degree of a pole the moon's own motion lifts and lowers it as much as the sky's
/// turning.
TEST(NoteId, TellsTwoRisingsOfOneEveningApart) {
  const Lookout nearThePole{"Ebb", {0.0, 89.4 * astro::pi / 180.0, 0.0}};
  almanac::EventQuery query{.range = {258839.5, 258839.5 + 100.0 * 360.0},
                            .kinds = {EventKind::rise, EventKind::set, EventKind::culmination}};
  query.places.push_back(nearThePole.place);
  std::set<std::string> ids;
  std::size_t events = 0;
  almanac::forEachEvent(query, [&](const Event& event) {
    ids.insert(noteOf(event, {nearThePole}).value().id);
    ++events;
  });
  EXPECT_EQ(ids.size(), events);
}

TEST(NoteId, IsANameOfAFileEverywhere) {
  for (const Event& event : allEvents({258839.5, 259199.5})) {
    const std::string id = noteFor(event).id;
    EXPECT_EQ(id.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"), std::string::npos);
    EXPECT_LE(id.size(), 90U);
    EXPECT_TRUE(id.front() >= '0' && id.front() <= '9') << id;
  }
  Event rise{.kind = EventKind::rise, .baseTime = 1e6, .body = Body::thessil};
  const std::string longName(5000, '/');
  const std::string strange = "CON. \"a\"\n:*?<>|" + longName + "\xFF";
  EXPECT_EQ(noteOf(rise, {{strange, {}}})
                .value()
                .id.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"),
            std::string::npos);
  rise.baseTime = 999'999'999.0;
  const std::string letters(5000, 'w');
  EXPECT_LE(noteOf(rise, {{letters, {}}}).value().id.size(), 90U);
}

TEST(NoteId, IsTheSameFromWhereverTheSearchBegan) {
  const double end = 258839.5 + 720.0;
  std::set<std::string> all;
  for (const Event& event : allEvents({258839.5, end})) {
    all.insert(noteFor(event).id);
  }
  for (const double later : {0.3, 1.77, 29.12345, 123.4}) {
    std::size_t events = 0;
    for (const Event& event : allEvents({258839.5 + later, end})) {
      const std::string id = noteFor(event).id;
      EXPECT_TRUE(all.contains(id)) << id;
      ++events;
    }
    EXPECT_GT(events, 10'000U);
  }
}

TEST(NoteId, TellsSignsOfOneEveningApart) {
  Event entry{.kind = EventKind::sign, .baseTime = 1e6, .body = Body::bralo};
  entry.sign = &reports::zodiacSigns[3];
  const std::string there = noteOf(entry, {}).value().id;
  entry.sign = &reports::zodiacSigns[2];
  EXPECT_NE(noteOf(entry, {}).value().id, there);
  EXPECT_TRUE(there.ends_with("-sign-bralo-pemi")) << there;
}

TEST(NoteId, TellsPlacesOfLikeNamesApart) {
  const Event rise{.kind = EventKind::rise, .baseTime = 1e6, .body = Body::thessil};
  std::set<std::string> ids;
  for (const Lookout& lookout : {Lookout{"Ebb", {0.0, 0.1, 0.2}}, Lookout{"ebb", {0.0, 0.1, 0.2}},
                                 Lookout{"Ebb", {0.0, 0.1, 0.3}}, Lookout{"Ebb", {0.0, 0.2, 0.1}},
                                 Lookout{"", {0.0, 0.1, 0.2}}, Lookout{"☾", {0.0, 0.1, 0.2}}}) {
    ids.insert(noteOf(rise, {lookout}).value().id);
  }
  EXPECT_EQ(ids.size(), 6U);
}

TEST(NoteDeathTest, ARiseOverNowhereStopsTheProgram) {
  const Event rise{.kind = EventKind::rise, .baseTime = 1e6, .body = Body::thessil};
  EXPECT_STOP(noteOf(rise, {}), "what belongs to a place is told of one");
}

TEST(NoteText, StandsOnOneLine) {
  EXPECT_EQ(notes::oneLine("a\nb\r\tc\x7f\u0085\u2028\u2029\x01"
                           "d"),
            "a b  c     d");
  EXPECT_EQ(notes::oneLine("Côte ☾ 𝄞 \xFF\uFFFE."), "Côte ☾ 𝄞 \uFFFD .");
  EXPECT_EQ(notes::yamlText(R"(a "b" \ c: #)"), R"("a \"b\" \\ c: #")");
}

TEST(NoteText, IsShortenedBetweenCharacters) {
  EXPECT_EQ(notes::shortened("abc", 3), "abc");
  EXPECT_EQ(notes::shortened("abcd", 3), "ab…");
  EXPECT_EQ(notes::shortened("☾☾☾", 3), "☾☾☾");
  EXPECT_EQ(notes::shortened("☾☾☾☾", 3), "☾☾…");
  EXPECT_EQ(notes::shortened("", 3), "");
}

/// A count of thirty days from the year's first new moon: how long it holds.
TEST(CalendarDefinition, ItsMoonIsNewOnTheDayOfTheSky) {
  for (const std::int64_t year : {1, 720, 5000}) {
    const astro::CalendarMoment first = notes::firstNewMoonOf(year);
    EXPECT_EQ(first.year, year);
    EXPECT_EQ(first.month, 1);
    const double begin = static_cast<double>(year - 1) * 360.0 - 0.5;
    almanac::EventQuery query{.range = {begin, begin + 100.0 * 360.0}, .kinds = {EventKind::moon}};
    std::vector<Event> moons;
    almanac::forEachEvent(query, [&moons](const Event& moon) { moons.push_back(moon); });
    EXPECT_EQ(moons.size(), 2400U);
    for (const Event& event : moons) {
      if (event.isFull) {
        continue;
      }
      const Note note = noteOf(event, {}).value();
      EXPECT_EQ(note.moment.day, first.day) << year << ": " << note.id;
    }
  }
}

}  // namespace
}  // namespace veyruna
