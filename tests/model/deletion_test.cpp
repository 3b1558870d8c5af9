// A window may close, and its model go, at any moment of a calculation.
#include <QThreadPool>
#include <chrono>
#include <gtest/gtest.h>
#include <random>
#include <thread>

#include "tests/model/disk.h"
#include "tests/model/fakes.h"

namespace veyruna {
namespace {

using model::AstronomyModel;
using std::chrono::microseconds;

/// How long a calculation takes here, from the request to the last signal.
microseconds oneCalculation(const AstronomyModel::Surroundings& surroundings) {
  using Clock = std::chrono::steady_clock;
  AstronomyModel model(surroundings);
  const auto begin = Clock::now();
  model.recalculate();
  while (model.isCalculating()) {
    tests::turnEventLoop();
  }
  return std::chrono::duration_cast<microseconds>(Clock::now() - begin);
}

TEST(Deletion, AtAnyMomentOfTheTaskIsSafe) {
  tests::FakeWorld world;
  auto surroundings = world.surroundings();
  surroundings.executor = model::poolExecutor();
  oneCalculation(surroundings);  // the first builds the catalogue
  double whole = static_cast<double>(oneCalculation(surroundings).count());

  const int runs = tests::times(300, 10'000);
  std::mt19937 random(20);
  std::uniform_real_distribution<double> part(0.0, 1.5);
  int published = 0;
  int running = 0;
  for (int run = 0; run < runs; ++run) {
    auto model = std::make_unique<AstronomyModel>(surroundings);
    QObject::connect(model.get(), &AstronomyModel::positionsChanged, model.get(),
                     [&published] { ++published; });
    model->setYear(run + 1);
    model->recalculate();
    const auto end = std::chrono::steady_clock::now() +
                     microseconds(static_cast<std::int64_t>(whole * part(random)));
    while (std::chrono::steady_clock::now() < end) {
      if (run % 2 == 0) {
        tests::turnEventLoop();
      }
      std::this_thread::yield();
    }
    const bool isRunning = model->isCalculating();
    running += isRunning ? 1 : 0;
    whole *= isRunning ? 1.05 : 0.95;  // however fast the machine is just now, about half are
    model.reset();
    if (run % 3 == 0) {
      tests::turnEventLoop();
    }
  }
  QThreadPool::globalInstance()->waitForDone();
  tests::turnEventLoop();
  std::printf("%d models deleted, %d of them during their calculation, %d after it\n", runs,
              running, published);
  EXPECT_EQ(running + published, runs);
  EXPECT_GT(running, runs / 10);
  EXPECT_GT(published, 0);
}

}  // namespace
}  // namespace veyruna
