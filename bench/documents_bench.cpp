// What the documents of one moment cost: all together, each by itself, and a table for a campaign.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <string>

#include "astro/angle.h"
#include "astro/local_time.h"
#include "documents/documents.h"
#include "reports/conjunctions.h"

namespace veyruna {
namespace {

/// The moment and place of a first start.
const astro::Observer firstStart = {.baseTime = astro::standardBaseTime({720, 0, 0, 12.0}),
                                    .latitude = 40.5 * astro::pi / 180.0,
                                    .longitude = -20.9 * astro::pi / 180.0};

/// One benchmark a document that has a word for it: the other form of the horoscope costs the same,
/// and the labels are the moment.
[[maybe_unused]] const bool areRegistered = [] {
  for (const documents::Entry& entry : documents::allDocuments) {
    if (!entry.command.empty()) {
      std::string name(entry.command);
      std::ranges::replace(name, '-', '_');
      benchmark::RegisterBenchmark(name.c_str(), [&entry](benchmark::State& state) {
        for ([[maybe_unused]] const auto run : state) {
          benchmark::DoNotOptimize(documents::textOf(entry.document, firstStart));
        }
      })->Unit(benchmark::kMicrosecond);
    }
  }
  return true;
}();

/// Everything a recalculation makes, in its order, in one thread.
void recalculation(benchmark::State& state) {
  for ([[maybe_unused]] const auto run : state) {
    for (const documents::Entry& entry : documents::allDocuments) {
      if (!entry.command.empty()) {
        benchmark::DoNotOptimize(documents::textOf(entry.document, firstStart));
      }
    }
  }
}

/// 720,000 rows to a sink that keeps none.
void campaign(benchmark::State& state) {
  constexpr std::int64_t rows = 720'000;
  for ([[maybe_unused]] const auto run : state) {
    std::size_t written = 0;
    reports::writeConjunctionTable(firstStart.baseTime, {rows, 1.0},
                                   [&written](std::string_view row) { written += row.size(); });
    benchmark::DoNotOptimize(written);
  }
  state.SetItemsProcessed(state.iterations() * rows);
}

BENCHMARK(recalculation)->Unit(benchmark::kMicrosecond);
BENCHMARK(campaign)->Name("rows_720000")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veyruna
