#pragma once

#include <QCoreApplication>
#include <QMap>
#include <deque>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "model/astronomy_model.h"
#include "model/unhurried_store.h"
#include "tests/model/printing.h"

/// What a model is surrounded by in a test: nothing of it is the user's.
namespace veyruna::tests {

/// Preferences in memory. Remembers every group that was stored.
class MemorySettings final : public model::SettingsStore {
 public:
  [[nodiscard]] QVariant stored(const QString& key) const override { return values.value(key); }
  void store(const Group& group) override {
    groups.push_back(group);
    for (const auto& [key, value] : group) {
      values.insert(key, value);
    }
  }

  QMap<QString, QVariant> values;
  std::vector<Group> groups;
};

/// Ids that count up from one: 00000000-0001-0000-0000-000000000000 and so on.
inline model::IdSource countingIds() {
  return [last = ushort{0}]() mutable {
    ++last;
    return QUuid(0, last, 0, 0, 0, 0, 0, 0, 0, 0, 0);
  };
}

/// Runs the task before it returns.
inline model::Executor immediateExecutor() {
  return [](const std::function<void()>& task) { task(); };
}

/// Holds its tasks until it is told to run them.
class HeldTasks {
 public:
  [[nodiscard]] model::Executor executor() const {
    return [tasks = tasks_](std::function<void()> task) { tasks->push_back(std::move(task)); };
  }
  [[nodiscard]] std::size_t count() const { return tasks_->size(); }
  void runNext() {
    const std::function<void()> task = std::move(tasks_->front());
    tasks_->pop_front();
    task();
  }

 private:
  std::shared_ptr<std::deque<std::function<void()>>> tasks_ =
      std::make_shared<std::deque<std::function<void()>>>();
};

/// One turn of the event loop: whatever was posted is delivered.
inline void turnEventLoop() {
  QCoreApplication::processEvents();
}

/// Preferences in memory, no file of places, counted ids and tasks that wait.
struct FakeWorld {
  std::shared_ptr<MemorySettings> settings = std::make_shared<MemorySettings>();
  /// What the model stores in; in front of the preferences.
  std::shared_ptr<model::UnhurriedStore> store = std::make_shared<model::UnhurriedStore>(settings);
  HeldTasks tasks;

  [[nodiscard]] model::AstronomyModel::Surroundings surroundings() const {
    return {store, std::nullopt, countingIds(), tasks.executor()};
  }
};

/// A model in such a world, calculated when it is told to.
struct FakeModel : FakeWorld {
  model::AstronomyModel model{surroundings()};

  void calculate() {
    model.recalculate();
    tasks.runNext();
    turnEventLoop();
  }
};

}  // namespace veyruna::tests
