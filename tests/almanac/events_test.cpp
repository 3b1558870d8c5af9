// Every kind of event beside a plain scan of the sky, minute by minute: none missing, none extra.
#include "almanac/events/events.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "astro/lunar_events.h"
#include "astro/moon.h"
#include "tests/almanac/plain_scan.h"

namespace veyruna {
namespace {

using almanac::Body;
using almanac::Event;
using almanac::EventKind;
using almanac::EventQuery;
using almanac::Range;

constexpr double tolerance = 0.0001;  // days

std::vector<Event> eventsOf(const EventQuery& query) {
  std::vector<Event> events;
  almanac::forEachEvent(query, [&](const Event& event) { events.push_back(event); });
  return events;
}

std::vector<Event> ofKind(EventKind kind, const Range& range,
                          const std::vector<astro::Observer>& places = {}) {
  return eventsOf({.range = range, .kinds = {kind}, .withSunAndMoon = {}, .places = places});
}

std::vector<Event> of(const std::vector<Event>& all, Body body, Body other = Body::count) {
  std::vector<Event> some;
  for (const Event& event : all) {
    if (event.body == body && event.other == other) {
      some.push_back(event);
    }
  }
  return some;
}

const std::vector<Range> years = {{.from = 0.0, .to = 360.0},
                                  {.from = 258'840.0, .to = 259'400.25},
                                  {.from = 719'640.125, .to = 720'000.0}};

void expectMoments(const std::vector<Event>& events, const std::vector<tests::PlainChange>& plain,
                   const std::string& what) {
  ASSERT_EQ(events.size(), plain.size()) << what;
  for (std::size_t i = 0; i < events.size(); ++i) {
    EXPECT_NEAR(events[i].baseTime, plain[i].moment, tolerance) << what << " " << i;
  }
}

std::vector<tests::PlainChange> whereItBecomes(int value, std::vector<tests::PlainChange> changes) {
  std::erase_if(changes,
                [value](const tests::PlainChange& change) { return change.after != value; });
  return changes;
}

TEST(Events, MoonsAndSeasonsAreThoseOfThePlainScan) {
  for (const Range& range : years) {
    const auto half = [](double t) {
      return std::sin(tests::plainLongitude(Body::ivro, t) -
                      tests::plainLongitude(Body::thessil, t)) > 0.0
                 ? 1
                 : 0;
    };
    const std::vector<Event> moons = ofKind(EventKind::moon, range);
    const auto plain = tests::plainChanges(half, range.from, range.to);
    expectMoments(moons, plain, "moon");
    for (std::size_t i = 0; i < moons.size(); ++i) {
      EXPECT_EQ(moons[i].isFull, plain[i].after == 0);
    }
    const auto quarter = [](double t) {
      return static_cast<int>(tests::plainLongitude(Body::thessil, t) / astro::halfPi) % 4;
    };
    const std::vector<Event> seasons = ofKind(EventKind::season, range);
    const auto quarters = tests::plainChanges(quarter, range.from, range.to);
    expectMoments(seasons, quarters, "season");
    for (std::size_t i = 0; i < seasons.size(); ++i) {
      EXPECT_EQ(seasons[i].quarter, quarters[i].after);
    }
  }
}

TEST(Events, EclipsesAreTheNodeCrossingsThatCount) {
  for (const double from : {0.0, 258'840.0, 716'000.0}) {
    const Range range{.from = from, .to = from + 3600.0};
    std::vector<tests::PlainChange> plain = tests::plainChanges(
        [](double t) { return astro::moonLatitude(t) > 0.0 ? 1 : 0; }, range.from, range.to);
    std::erase_if(plain, [](const tests::PlainChange& crossing) {
      return astro::lunarEventText(crossing.moment).empty();
    });
    const std::vector<Event> eclipses = ofKind(EventKind::eclipse, range);
    expectMoments(eclipses, plain, "eclipse");
    EXPECT_FALSE(eclipses.empty());
    for (const Event& eclipse : eclipses) {
      const std::string text = astro::lunarEventText(eclipse.baseTime);
      EXPECT_NE(text.substr(0, 5).find(eclipse.code), std::string::npos);
      EXPECT_EQ(eclipse.body,
                eclipse.code == "TS" || eclipse.code == "PS" ? Body::thessil : Body::ivro);
    }
  }
}

TEST(Events, SignsAreThoseOfThePlainScan) {
  for (const Range& range : years) {
    const std::vector<Event> all = ofKind(EventKind::sign, range);
    for (const Body body : almanac::allBodies) {
      const auto sign = [body](double t) {
        return static_cast<int>(&reports::signAt(tests::plainLongitude(body, t)) -
                                reports::zodiacSigns.data());
      };
      const auto plain = tests::plainChanges(sign, range.from, range.to);
      const std::vector<Event> events = of(all, body);
      expectMoments(events, plain, std::string(wordOf(body)));
      for (std::size_t i = 0; i < std::min(events.size(), plain.size()); ++i) {
        EXPECT_EQ(events[i].sign, &reports::zodiacSigns[static_cast<std::size_t>(plain[i].after)]);
        EXPECT_EQ(events[i].isForward, (plain[i].after - plain[i].before + 12) % 12 == 1);
      }
    }
  }
}

TEST(Events, StationsTurnOneWayAndTheOther) {
  const std::vector<Event> all = ofKind(EventKind::station, {.from = 0.0, .to = 3600.0});
  for (const Body body : almanac::allBodies) {
    const std::vector<Event> events = of(all, body);
    EXPECT_EQ(!events.empty(), planetOf(body).has_value()) << wordOf(body);
    for (std::size_t i = 0; i < events.size(); ++i) {
      const auto rate = [&](double t) {
        return std::remainder(
            tests::plainLongitude(body, t + 0.01) - tests::plainLongitude(body, t), astro::twoPi);
      };
      EXPECT_EQ(events[i].isForward, rate(events[i].baseTime + 0.1) > 0.0);
      EXPECT_EQ(events[i].isForward, rate(events[i].baseTime - 0.2) < 0.0);
    }
  }
}

TEST(Events, AStationIsToldOnce) {
  const std::vector<Event> stations =
      ofKind(EventKind::station, {.from = 0.0, .to = 1000.0 * 360.0});
  for (const Body body : almanac::allBodies) {
    const std::vector<Event> turns = of(stations, body);
    for (std::size_t i = 1; i < turns.size(); ++i) {
      EXPECT_GT(turns[i].baseTime, turns[i - 1].baseTime + 1.0) << wordOf(body);
      EXPECT_NE(turns[i].isForward, turns[i - 1].isForward) << wordOf(body);
    }
  }
}

TEST(Events, PairsAreThoseOfThePlainScan) {
  for (const double from : {0.0, 258'840.0, 719'640.125}) {
    const Range range{.from = from, .to = from + 100.0};
    for (const EventKind kind : {EventKind::conjunction, EventKind::opposition}) {
      const std::vector<Event> all =
          eventsOf({.range = range, .kinds = {kind}, .withSunAndMoon = {kind}, .places = {}});
      for (const Body body : almanac::allBodies) {
        for (const Body other : almanac::allBodies) {
          if (!(body < other)) {
            continue;
          }
          const std::string what = std::string(wordOf(body)).append(" ").append(wordOf(other));
          const auto together = [&](double t) {
            return tests::plainSeparation(kind, body, other, t) < 2.0 * astro::pi / 180.0 ? 1 : 0;
          };
          // One that has begun already, or has not ended yet, is listed whole.
          const auto plain = tests::plainChanges(together, range.from, range.to);
          const std::vector<Event> events = of(all, body, other);
          std::vector<double> begins;
          std::vector<double> ends;
          for (const Event& event : events) {
            EXPECT_LT(*event.begin, range.to);
            EXPECT_GT(*event.end, range.from);
            EXPECT_LE(*event.begin, event.baseTime);
            EXPECT_LE(event.baseTime, *event.end);
            EXPECT_EQ(together(*event.begin - 0.001), 0) << what;
            EXPECT_EQ(together(*event.begin + 0.001), 1) << what;
            EXPECT_EQ(together(*event.end - 0.001), 1) << what;
            EXPECT_EQ(together(*event.end + 0.001), 0) << what;
            if (*event.begin >= range.from) {
              begins.push_back(*event.begin);
            }
            if (*event.end < range.to) {
              ends.push_back(*event.end);
            }
            // No minute of it is closer, and none before it as close.
            double least = 10.0;
            for (const double t : tests::evenly(*event.begin, *event.end, 1.0 / 1440.0)) {
              least = std::min(least, tests::plainSeparation(kind, body, other, t));
            }
            EXPECT_LE(event.separation, least + 1e-7) << what;
            EXPECT_NEAR(event.separation, tests::plainSeparation(kind, body, other, event.baseTime),
                        1e-6);  // a tenth of a second
          }
          const auto plainBegins = whereItBecomes(1, plain);
          const auto plainEnds = whereItBecomes(0, plain);
          ASSERT_EQ(begins.size(), plainBegins.size()) << what;
          ASSERT_EQ(ends.size(), plainEnds.size()) << what;
          for (std::size_t i = 0; i < begins.size(); ++i) {
            EXPECT_NEAR(begins[i], plainBegins[i].moment, tolerance) << what;
          }
          for (std::size_t i = 0; i < ends.size(); ++i) {
            EXPECT_NEAR(ends[i], plainEnds[i].moment, tolerance) << what;
          }
        }
      }
    }
  }
}

TEST(Events, RisingsSettingsAndCulminationsAreThoseOfThePlainScan) {
  const std::vector<astro::Observer> places = {
      {.baseTime = 0.0, .latitude = 0.7068583470577035, .longitude = -0.3647738136668149},
      {.baseTime = 0.0, .latitude = -1.2, .longitude = 2.9},
      {.baseTime = 0.0, .latitude = 1.3, .longitude = 0.0}};
  const Range range{.from = 258'840.0, .to = 258'900.0};
  for (const EventKind kind : {EventKind::rise, EventKind::set, EventKind::culmination}) {
    const std::vector<Event> all = ofKind(kind, range, places);
    for (const Body body : almanac::allBodies) {
      for (std::size_t place = 0; place < places.size(); ++place) {
        const auto side = [&](double t) {
          return kind == EventKind::culmination
                     ? (tests::plainHourAngle(body, places[place].at(t)) >= 0.0 ? 1 : 0)
                     : (tests::plainAltitude(body, places[place].at(t)) > 0.0 ? 1 : 0);
        };
        std::vector<Event> events = of(all, body);
        std::erase_if(events, [place](const Event& event) { return event.place != place; });
        expectMoments(events,
                      whereItBecomes(kind == EventKind::set ? 0 : 1,
                                     tests::plainChanges(side, range.from, range.to)),
                      std::string(wordOf(body)) + " " + std::to_string(place));
      }
    }
  }
}

std::size_t timesIn(const Range& range, const Event& event,
                    const std::vector<astro::Observer>& places) {
  std::size_t times = 0;
  for (const Event& other : ofKind(event.kind, range, places)) {
    // The very double: one that hops by its last digit is in both of two ranges, or in neither.
    times += other.baseTime == event.baseTime && other.body == event.body ? 1 : 0;
  }
  return times;
}

TEST(Events, ARangeHoldsItsBeginningAndNotItsEnd) {
  const std::vector<astro::Observer> places = {
      {.baseTime = 0.0, .latitude = 0.7, .longitude = -0.4}};
  for (const EventKind kind :
       {EventKind::eclipse, EventKind::moon, EventKind::sign, EventKind::station, EventKind::season,
        EventKind::rise, EventKind::set, EventKind::culmination}) {
    const bool isOften = almanac::entryOf(kind).needsPlace;
    const std::vector<Event> events =
        ofKind(kind, {.from = 258'840.0, .to = 258'840.0 + (isOften ? 20.0 : 3600.0)}, places);
    EXPECT_GE(events.size(), 5U) << almanac::entryOf(kind).word;
    for (const Event& event : events) {
      const double t = event.baseTime;
      const std::string what = std::string(almanac::entryOf(kind).word) + " " + std::to_string(t);
      for (const double days : {1e-6, 0.01, 0.3, 7.77}) {
        EXPECT_EQ(timesIn({.from = t, .to = t + days}, event, places), 1U) << what;
        EXPECT_EQ(ofKind(kind, {.from = t - days, .to = t}, places).size() +
                      ofKind(kind, {.from = t, .to = t + 1.0}, places).size(),
                  ofKind(kind, {.from = t - days, .to = t + 1.0}, places).size())
            << what;
      }
      EXPECT_EQ(timesIn({.from = t, .to = t}, event, places), 0U) << what;
    }
  }
}

TEST(Events, ComeInTheOrderOfTheirMoments) {
  const std::vector<Event> all = eventsOf(
      {.range = {.from = 5000.0, .to = 5360.0},
       .kinds = {EventKind::eclipse, EventKind::moon, EventKind::conjunction, EventKind::opposition,
                 EventKind::sign, EventKind::station, EventKind::season, EventKind::rise,
                 EventKind::set, EventKind::culmination},
       .withSunAndMoon = {EventKind::conjunction},
       .places = {{.baseTime = 0.0, .latitude = 0.5, .longitude = 1.0}}});
  EXPECT_GT(all.size(), 6000U);
  for (std::size_t i = 1; i < all.size(); ++i) {
    EXPECT_LE(all[i - 1].baseTime, all[i].baseTime);
  }
}

TEST(Events, SightIsThatOfTheSky) {
  const astro::Observer place{.baseTime = 0.0, .latitude = 0.7, .longitude = -0.4};
  for (const Event& event : ofKind(EventKind::station, {.from = 0.0, .to = 7200.0})) {
    const almanac::Sight sight = sightOf(event, place);
    const double altitude = tests::plainAltitude(event.body, place.at(event.baseTime));
    const bool isNight = tests::plainAltitude(Body::thessil, place.at(event.baseTime)) < 0.0;
    EXPECT_NEAR(sight.altitude, altitude, 1e-9);
    EXPECT_EQ(sight.isSeen, altitude > 0.0 && isNight);
  }
}

}  // namespace
}  // namespace veyruna
