// What the search hands on at the edges of ranges and of the world.
#include "almanac/search/search.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "almanac/events/events.h"
#include "almanac/search/condition_reader.h"
#include "almanac/search/inquiry.h"
#include "astro/calendar.h"
#include "tests/almanac/plain_conditions.h"

namespace veyruna {
namespace {

using almanac::Range;
using almanac::Span;

constexpr double edgeTolerance = 1e-4;

const astro::Observer ebb = {
    .baseTime = 0.0, .latitude = astro::radiansOf(40.5), .longitude = astro::radiansOf(-20.9)};

std::vector<Span> spansOf(const std::string& text, const Range& range,
                          const astro::Observer& place = ebb, bool isLocal = false) {
  std::vector<Span> spans;
  almanac::search({.condition = almanac::allOf(almanac::readConditions(text)),
                   .range = range,
                   .place = place,
                   .isLocal = isLocal},
                  [&](const Span& span) {
                    spans.push_back(span);
                    return true;
                  });
  return spans;
}

void expectSpan(const std::vector<Span>& spans, std::size_t i, double begin, double end) {
  ASSERT_LT(i, spans.size());
  EXPECT_NEAR(spans[i].begin, begin, edgeTolerance);
  EXPECT_NEAR(spans[i].end, end, edgeTolerance);
}

constexpr double newYear = 719.0 * 360.0 - 0.5;  // midnight, year 720

TEST(Search, CutsWhatItFindsAtTheRange) {
  const auto spans = spansOf("hour 22:00 to 4:00", {newYear, newYear + 1.0});
  ASSERT_EQ(spans.size(), 2U);
  EXPECT_EQ(spans[0].begin, newYear);
  EXPECT_EQ(spans[1].end, newYear + 1.0);
  expectSpan(spans, 0, newYear, newYear + 4.0 / 24.0);
  expectSpan(spans, 1, newYear + 22.0 / 24.0, newYear + 1.0);
}

TEST(Search, ARangeEndsBeforeItsEnd) {
  const double ten = newYear + 22.0 / 24.0;
  EXPECT_TRUE(spansOf("hour 22:00 to 4:00", {newYear + 0.5, ten}).empty());
  EXPECT_EQ(spansOf("hour 22:00 to 4:00", {ten, ten + 0.01}).size(), 1U);
  EXPECT_EQ(spansOf("hour 22:00 to 4:00", {ten, ten + 0.01}).front().begin, ten);
  EXPECT_TRUE(spansOf("hour 20:00 to 22:00", {ten, ten + 0.01}).empty());
  EXPECT_TRUE(spansOf("any of (night; not night)", {ten, ten}).empty());
  EXPECT_TRUE(spansOf("any of (night; not night)", {ten, ten - 1.0}).empty());
}

TEST(Search, WhatAlwaysHoldsIsOneSpanAndWhatNeverHoldsNone) {
  const Range century{newYear, newYear + 36'000.0};
  for (const char* always :
       {"any of (moon waxing; moon waning)", "hour 0 to 24", "not all of (month 3; month 4)",
        "any of (day; twilight; night)", "any of (galvi backward; galvi forward)",
        "any of (keep twisted; keep straight)", "ivro above -90",
        "any of (zerathe exceptional; zerathe strong; zerathe neutral; zerathe weak; zerathe "
        "feeble; zerathe impotent)",
        "any of (hour 22:00 to 23:00; hour 23:00 to 5:30; hour 5:30 to 22:00)"}) {
    const auto spans = spansOf(always, century);
    ASSERT_EQ(spans.size(), 1U) << always;
    EXPECT_EQ(spans.front().begin, century.from) << always;
    EXPECT_EQ(spans.front().end, century.to) << always;
  }
  for (const char* never :
       {"bralo in Wen\nbralo in Voni", "day\nnight", "thessil above 80", "ivro above 90",
        "moon full\nmoon waxing\nmoon new", "power superior\neclipse"}) {
    EXPECT_TRUE(spansOf(never, century).empty()) << never;
  }
}

TEST(Search, SpansThatTouchAreOne) {
  std::string anySign = "any of:\n";
  std::string anyAscendant = "any of:\n";
  for (const reports::ZodiacSign& sign : reports::zodiacSigns) {
    anySign.append("  galvi in ").append(sign.name).append("\n");
    anyAscendant.append("  ascending sign ").append(sign.name).append("\n");
  }
  EXPECT_EQ(spansOf(anySign, {newYear, newYear + 10'000.0}).size(), 1U);
  for (const double latitude : {0.0, 66.0, 69.0, 80.0, -89.9, 90.0}) {
    const astro::Observer place{
        .baseTime = 0.0, .latitude = astro::radiansOf(latitude), .longitude = 1.0};
    EXPECT_EQ(spansOf(anyAscendant, {newYear, newYear + 400.0}, place).size(), 1U) << latitude;
    EXPECT_EQ(
        spansOf("any of (dominant sphere will; dominant sphere fate; dominant sphere balanced)",
                {newYear, newYear + 400.0}, place)
            .size(),
        1U)
        << latitude;
  }
}

TEST(Search, ARangeOfAMinuteIsARange) {
  const double minute = 1.0 / 1440.0;
  const double rise = [] {
    double found = 0.0;
    almanac::forEachEvent({.range = {newYear, newYear + 1.0},
                           .kinds = {almanac::EventKind::rise},
                           .withSunAndMoon = {},
                           .places = {ebb}},
                          [&](const almanac::Event& event) {
                            found = event.body == almanac::Body::thessil ? event.baseTime : found;
                          });
    return found;
  }();
  const Range within{rise - minute / 2.0, rise + minute / 2.0};
  expectSpan(spansOf("day", within), 0, rise, within.to);
  expectSpan(spansOf("twilight", within), 0, within.from, rise);
  EXPECT_TRUE(spansOf("night", within).empty());
}

TEST(Search, BeforeTheFirstMidnightThereIsNoCalendar) {
  const Range range{-40.5, 0.5};
  for (const char* text : {"hour 0 to 24", "month Brenwic", "day 1"}) {
    const auto spans = spansOf(text, range);
    ASSERT_EQ(spans.size(), 1U) << text;
    EXPECT_NEAR(spans.front().begin, astro::firstMidnight, edgeTolerance) << text;
  }
  expectSpan(spansOf("not day 1", range), 0, -40.5, astro::firstMidnight);
  EXPECT_FALSE(spansOf("moon full", range).empty());
}

TEST(Search, ALocalClockIsThePlaces) {
  // From noon to noon: no edge of the range cuts one.
  const auto spans = spansOf("hour 22:00 to 23:00", {newYear + 0.5, newYear + 30.5}, ebb, true);
  EXPECT_EQ(spans.size(), 30U);
  for (const Span& span : spans) {
    const tests::PlainSky sky(span.begin);
    const tests::PlainHorizon horizon(sky, ebb);
    EXPECT_NEAR(std::remainder(horizon.localDays - 22.0 / 24.0, 1.0), 0.0, edgeTolerance);
  }
  const auto days = spansOf("day 15", {newYear, newYear + 30.0}, ebb, true);
  ASSERT_EQ(days.size(), 1U);
  EXPECT_NEAR(days.front().begin, newYear + 14.0 + 20.9 / 360.0, 0.01);
}

TEST(Search, AnEclipseLastsWhileItIsListed) {
  const Range range{newYear, newYear + 3600.0};
  const auto spans = spansOf("eclipse", range);
  std::size_t i = 0;
  almanac::forEachEvent(
      {.range = range, .kinds = {almanac::EventKind::eclipse}, .withSunAndMoon = {}, .places = {}},
      [&](const almanac::Event& event) {
        ASSERT_LT(i, spans.size());
        EXPECT_LE(spans[i].begin, event.baseTime);
        EXPECT_LE(event.baseTime, spans[i].end);
        const bool isSolar = event.body == almanac::Body::thessil;
        const double degrees = isSolar ? 2.54 : 180.0 - 178.42;
        EXPECT_NEAR(spans[i].end - spans[i].begin, 2.0 * degrees / 12.0, 0.001);
        ++i;
      });
  EXPECT_EQ(i, spans.size());
}

TEST(Search, WhatStandsExactlyInTheHorizonMayBeAboutToRise) {
  // One of the search's steps ends where the sine of the sun's altitude is 0 to the last bit.
  const astro::Observer place{
      .baseTime = 0.0, .latitude = astro::radiansOf(69.0), .longitude = 0.0};
  const Range year{259'919.5, 260'279.5};
  const auto alone = spansOf("thessil above horizon", year, place);
  const auto together = spansOf(
      "any of (any of (Bessim above horizon; thessil above horizon); month Dovri; month Oskam; "
      "all of (not power balanced; not ivro in Lothac; galvi natal feeble; night))",
      year, place, true);
  const auto beginsAt = [](const std::vector<Span>& spans, double moment) {
    return std::ranges::any_of(spans, [moment](const Span& span) {
      return std::abs(span.begin - moment) < edgeTolerance;
    });
  };
  EXPECT_TRUE(beginsAt(alone, 260'246.844308));
  EXPECT_TRUE(beginsAt(together, 260'246.844308));
}

TEST(Search, StopsWhenNothingMoreIsWanted) {
  int taken = 0;
  double furthest = 0.0;
  almanac::search(
      {.condition = almanac::allOf(almanac::readConditions("moon full")),
       .range = {0.0, 1e9},
       .place = {},
       .isLocal = false},
      [&](const Span&) { return ++taken < 3; },
      [&](double t) { furthest = std::max(furthest, t); });
  EXPECT_EQ(taken, 3);
  EXPECT_LT(furthest, 120.0);
}

TEST(Search, FarFromTheEpochItStillFindsAndEnds) {
  for (const double from : {1e9 - 360.0, -1e9}) {
    const auto spans = spansOf("not galvi favours will\nnight\nnot moon new", {from, from + 360.0});
    EXPECT_GT(spans.size(), 10U);
    for (const Span& span : spans) {
      const double t = (span.begin + span.end) / 2.0;
      const tests::PlainSky sky(t);
      EXPECT_TRUE(
          plainHolds(almanac::allOf(almanac::readConditions("not galvi favours will\nnight")), sky,
                     {sky, ebb}, false));
    }
  }
}

TEST(Search, WhatFailsForLongIsPassedAtOneStride) {
  // The sky is asked a handful of times a revolution of the slow planet, not a handful a night.
  int asked = 0;
  almanac::search(
      {.condition = almanac::allOf(almanac::readConditions("night\npallox in Wen\nivro above 30")),
       .range = {0.0, 360'000.0},
       .place = ebb,
       .isLocal = false},
      [](const Span&) { return true; }, [&](double t) { asked += t < 1.0 ? 1 : 0; });
  EXPECT_LT(asked, 100);
  int inAll = 0;
  almanac::search(
      {.condition = almanac::allOf(almanac::readConditions(
           "night\npallox in Wen\nbralo in Voni\ndunmor in Pemi\ngalvi in Voni")),
       .range = {0.0, 360'000.0},
       .place = ebb,
       .isLocal = false},
      [](const Span&) { return true; }, [&](double) { ++inAll; });
  EXPECT_LT(inAll, 100'000);
}

}  // namespace
}  // namespace veyruna
