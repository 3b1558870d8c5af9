// What the almanac's answers cost: searches of 100 years, and events of long stretches.
#include <benchmark/benchmark.h>

#include "almanac/events/events.h"
#include "almanac/search/condition_reader.h"
#include "almanac/search/search.h"
#include "astro/angle.h"

namespace veyruna {
namespace {

using almanac::EventKind;

constexpr double begin = 719.0 * 360.0 - 0.5;
constexpr double year = 360.0;

const astro::Observer& place() {
  static const astro::Observer ebb{
      .baseTime = 0.0, .latitude = astro::radiansOf(40.5), .longitude = astro::radiansOf(-20.9)};
  return ebb;
}

/// 100 years at a place, by their conditions.
void searchOf(benchmark::State& state, const char* conditions) {
  const almanac::Query query{.condition = almanac::allOf(almanac::readConditions(conditions)),
                             .range = {begin, begin + 100.0 * year},
                             .place = place(),
                             .isLocal = false};
  std::int64_t spans = 0;
  for ([[maybe_unused]] const auto run : state) {
    spans = 0;
    almanac::search(query, [&spans](const almanac::Span&) {
      ++spans;
      return true;
    });
  }
  state.counters["spans"] = static_cast<double>(spans);
}

void eventsOf(benchmark::State& state, const almanac::EventQuery& query) {
  std::int64_t events = 0;
  for ([[maybe_unused]] const auto run : state) {
    events = 0;
    almanac::forEachEvent(query, [&events](const almanac::Event&) { ++events; });
  }
  state.counters["events"] = static_cast<double>(events);
}

void birth(benchmark::State& state) {
  searchOf(state, "keep twisted\nascending sign Wen\nbralo natal strong\nzerathe exceptional");
}

void omen(benchmark::State& state) {
  searchOf(state, "night\nmoon waxing\nivro above 30\nnot galvi backward");
}

/// Nothing here changes seldom enough to pass long times by.
void restless(benchmark::State& state) {
  searchOf(state,
           "any of (bralo natal weak; pallox natal weak)\nany of (twilight; dominant sphere fate)\n"
           "not hathel above 41\nany of (hour 22:00 to 4:00; thessil above 10; ivro above 5)");
}

void eclipsesAndMoons(benchmark::State& state) {
  eventsOf(state, {.range = {-0.5, 2000.0 * year},
                   .kinds = {EventKind::eclipse, EventKind::moon},
                   .withSunAndMoon = {},
                   .places = {}});
}

void everyKind(benchmark::State& state) {
  almanac::EventQuery query{
      .range = {begin, begin + year}, .kinds = {}, .withSunAndMoon = {}, .places = {place()}};
  for (const almanac::EventKindEntry& entry : almanac::allEventKinds) {
    query.kinds.insert(entry.kind);
  }
  eventsOf(state, query);
}

BENCHMARK(birth)->Unit(benchmark::kMillisecond);
BENCHMARK(omen)->Unit(benchmark::kMillisecond);
BENCHMARK(restless)->Unit(benchmark::kMillisecond);
BENCHMARK(eclipsesAndMoons)->Unit(benchmark::kMillisecond);
BENCHMARK(everyKind)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veyruna
