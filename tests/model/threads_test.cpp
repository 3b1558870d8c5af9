// What runs beside the interface thread, and what it must not touch.
#include <QSemaphore>
#include <QSignalSpy>
#include <QThreadPool>
#include <gtest/gtest.h>
#include <thread>

#include "tests/model/change_log.h"
#include "tests/model/fakes.h"

namespace veyruna {
namespace {

using model::AstronomyModel;
using tests::ChangeLog;

TEST(Threads, ThePoolWorksAndTheInterfaceThreadPublishes) {
  tests::FakeWorld world;
  auto surroundings = world.surroundings();
  surroundings.executor = model::poolExecutor();
  AstronomyModel model(surroundings);
  ChangeLog log(model);
  QSignalSpy done(&model, &AstronomyModel::isCalculatingChanged);
  model.recalculate();
  while (model.isCalculating() && done.wait(60'000)) {
  }
  EXPECT_FALSE(model.isCalculating());
  EXPECT_TRUE(log.isOnOneThread());
  EXPECT_EQ(model.horoscopeSVG(),
            model::calculateHoroscope({.observer = model.observer(), .blackAndWhite = false}));
}

TEST(Threads, ThePoolServesThePersonFirst) {
  QThreadPool& pool = *QThreadPool::globalInstance();
  pool.waitForDone();
  const int threads = pool.maxThreadCount();
  pool.setMaxThreadCount(1);
  QSemaphore gate;
  std::vector<int> order;
  pool.start([&gate] { gate.acquire(); });
  pool.start([&order] { order.push_back(2); });
  model::poolExecutor()([&order] { order.push_back(1); });
  gate.release();
  pool.waitForDone();
  pool.setMaxThreadCount(threads);
  EXPECT_EQ(order, (std::vector<int>{1, 2}));
}

/// The thread sanitizer sees a plain thread begin and end, which it does not of Qt's pool: here it
/// would report a task that touches the model.
TEST(Threads, TheTaskTouchesNothingOfTheModel) {
  tests::FakeWorld world;
  std::thread worker;
  auto surroundings = world.surroundings();
  surroundings.executor = [&worker](std::function<void()> task) {
    worker = std::thread(std::move(task));
  };
  for (int run = 0; run < 20; ++run) {
    auto model = std::make_unique<AstronomyModel>(surroundings);
    model->setYear(720);
    model->recalculate();
    for (int change = 0; change < 200; ++change) {
      model->setYear(change);
      model->setManualLatDeg(0.25 * change);
      model->setHoroscopeBlackAndWhite(change % 2 == 0);
      model->addCity(QString::number(change % 7));
    }
    if (run % 2 == 0) {
      model.reset();
    }
    worker.join();
    tests::turnEventLoop();
    if (model) {
      EXPECT_EQ(model->dateLabel(), QStringLiteral("720-01-01 12:00 OST"));
    }
  }
}

TEST(Threads, CalculationsAtOnceAgree) {
  const model::CalculationInput input{{258840.0, 0.5, -0.25}, false};
  std::array<model::CalculationResult, 4> results;
  std::vector<std::thread> workers;
  for (model::CalculationResult& result : results) {
    workers.emplace_back(
        [&result, &input] { result = model::calculate(input, model::heldDocuments()); });
  }
  for (std::thread& worker : workers) {
    worker.join();
  }
  for (const model::CalculationResult& result : results) {
    EXPECT_EQ(result.texts, results[0].texts);
  }
}

}  // namespace
}  // namespace veyruna
