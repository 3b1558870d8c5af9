// What other code left in the upper halves of the vector registers does not slow the sky down.
#include "astro/vector_registers.h"

#include <functional>
#include <gtest/gtest.h>

#include "almanac/events/events.h"
#include "documents/documents.h"
#include "reports/ephemeris.h"

namespace veyruna {
namespace {

#if defined(__x86_64__)

/// Whether the processor says which registers are in use: XGETBV with 1.
bool tellsWhatIsInUse() {
  unsigned a = 0xD;
  unsigned b = 0;
  unsigned c = 1;
  unsigned d = 0;
  asm volatile("cpuid" : "+a"(a), "=b"(b), "+c"(c), "=d"(d));
  return __builtin_cpu_supports("avx") != 0 && (a & 4U) != 0;
}

bool areUpperHalvesInUse() {
  unsigned a = 0;
  unsigned d = 0;
  asm volatile("xgetbv" : "=a"(a), "=d"(d) : "c"(1));
  return (a & 4U) != 0;
}

void useUpperHalves() {
  asm volatile("vcmpps $0xf, %%ymm15, %%ymm15, %%ymm15" ::: "xmm15");
}

TEST(VectorRegisters, AreReleasedWhereLongCalculationsBegin) {
  if (!tellsWhatIsInUse()) {
    GTEST_SKIP() << "this processor does not tell which registers are in use";
  }
  const astro::Observer observer{.baseTime = 258840.0, .latitude = 0.7, .longitude = -0.4};
  const std::vector<std::function<void()>> beginnings = {
      [] { astro::releaseUpperRegisters(); },
      [&] { documents::textOf(documents::Document::date, observer); },
      [&] { documents::marksOf(documents::Document::date, observer); },
      [&] { reports::ephemerisTable(observer, {.rows = 1, .stepDays = 1.0}); },
      [] {
        almanac::forEachEvent({.range = {0.0, 1.0}, .kinds = {almanac::EventKind::season}},
                              [](const almanac::Event&) {});
      },
  };
  for (std::size_t i = 0; i < beginnings.size(); ++i) {
    useUpperHalves();
    ASSERT_TRUE(areUpperHalvesInUse()) << i;
    beginnings[i]();
    EXPECT_FALSE(areUpperHalvesInUse()) << i;
  }
}

#endif

}  // namespace
}  // namespace veyruna
