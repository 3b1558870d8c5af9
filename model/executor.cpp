#include "model/executor.h"

#include <QThreadPool>
#include <utility>

namespace veyruna::model {

Executor poolExecutor() {
  return [](std::function<void()> task) {
    constexpr int userInitiated = 1;  // the pool's default is 0
    QThreadPool::globalInstance()->start(std::move(task), userInitiated);
  };
}

}  // namespace veyruna::model
