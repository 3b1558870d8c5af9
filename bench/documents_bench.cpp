// What the documents of one moment cost: all together, each by itself, and a table for a campaign.
#include <benchmark/benchmark.h>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"
#include "reports/positions.h"

namespace veyruna {
namespace {

/// The moment and place of a first start.
const double baseTime = astro::standardBaseTime({720, 0, 0, 12.0});
constexpr double latitude = 40.5 * astro::pi / 180.0;
constexpr double longitude = -20.9 * astro::pi / 180.0;

std::string starMap() {
  return charts::starMap({baseTime, latitude, longitude}, charts::builtInCatalogue());
}

std::string horoscope() {
  return charts::horoscope(false, {baseTime, latitude, longitude}, charts::builtInCatalogue());
}

std::string hourly() {
  return reports::ephemerisTable({baseTime, latitude}, {24, 1.0 / 24.0});
}
std::string monthly() {
  return reports::ephemerisTable({baseTime, latitude}, {30, 1.0});
}
std::string daily() {
  return reports::conjunctionTable(baseTime, {144, 1.0 / 144.0});
}
std::string yearly() {
  return reports::conjunctionTable(baseTime, {360, 1.0});
}

std::string positions() {
  return reports::positionsTableText(reports::positionRows({baseTime, latitude, longitude}));
}

std::string labels() {
  std::string text = astro::calendarLabel(baseTime);
  for (const double target : {astro::fullMoonElongation, astro::newMoonElongation}) {
    text += astro::calendarLabelWithLocalClock(
        {.baseTime = astro::nextPhase({.start = baseTime, .elongation = target}),
         .longitude = longitude});
  }
  return text;
}

void measure(benchmark::State& state, std::string (*document)()) {
  for ([[maybe_unused]] const auto run : state) {
    benchmark::DoNotOptimize(document());
  }
}

/// Everything a recalculation makes, in its order, in one thread.
void recalculation(benchmark::State& state) {
  for ([[maybe_unused]] const auto run : state) {
    for (const auto document :
         {starMap, horoscope, hourly, monthly, daily, yearly, positions, labels}) {
      benchmark::DoNotOptimize(document());
    }
  }
}

/// 720,000 rows to a sink that keeps none.
void campaign(benchmark::State& state) {
  constexpr std::int64_t rows = 720'000;
  for ([[maybe_unused]] const auto run : state) {
    std::size_t written = 0;
    reports::writeConjunctionTable(baseTime, {rows, 1.0},
                                   [&written](std::string_view row) { written += row.size(); });
    benchmark::DoNotOptimize(written);
  }
  state.SetItemsProcessed(state.iterations() * rows);
}

BENCHMARK(recalculation)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(measure, star_map, starMap)->Name("star_map")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(measure, horoscope, horoscope)->Name("horoscope")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(measure, hourly, hourly)->Name("hourly")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(measure, monthly, monthly)->Name("monthly")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(measure, daily, daily)->Name("daily")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(measure, yearly, yearly)->Name("yearly")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(measure, positions, positions)->Name("positions")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(measure, labels, labels)->Name("labels")->Unit(benchmark::kMicrosecond);
BENCHMARK(campaign)->Name("rows_720000")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veyruna
