// The catalogue is made when it is first asked for, and several charts may ask at once.
#include <array>
#include <barrier>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <thread>

#include "charts/horoscope.h"
#include "charts/star_map.h"

namespace veyruna::charts {
namespace {

/// Draws in several threads that all begin at once; true where all drew the same charts.
bool drawAtOnce() {
  constexpr std::size_t threadCount = 8;
  std::array<std::string, threadCount> documents;
  std::array<const StarCatalogue*, threadCount> catalogues{};
  std::barrier start(static_cast<std::ptrdiff_t>(threadCount));
  std::array<std::thread, threadCount> threads;
  for (std::size_t i = 0; i < threadCount; ++i) {
    threads[i] = std::thread([&, i] {
      start.arrive_and_wait();
      catalogues[i] = &builtInCatalogue();
      documents[i] = starMap({258840.0, 0.7, -0.36}, *catalogues[i]) +
                     horoscope(false, {258840.0, 0.7, -0.36}, *catalogues[i]);
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  bool areEqual = true;
  for (std::size_t i = 0; i < threadCount; ++i) {
    areEqual = areEqual && catalogues[i] == catalogues[0] && documents[i] == documents[0];
  }
  return areEqual && !builtInCatalogue().lines().empty();
}

// In a program of its own, where no other test has asked for the catalogue yet.
TEST(CatalogueThreadsDeathTest, TheFirstAskersGetOneCatalogueAndEqualCharts) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto drawAndReport = [] {
    std::fputs(drawAtOnce() ? "equal charts" : "charts differ", stderr);
    std::exit(EXIT_SUCCESS);
  };
  EXPECT_EXIT(drawAndReport(), testing::ExitedWithCode(EXIT_SUCCESS), "^equal charts$");
}

TEST(CatalogueThreads, LaterAskersShareItToo) {
  EXPECT_TRUE(drawAtOnce());
}

}  // namespace
}  // namespace veyruna::charts
