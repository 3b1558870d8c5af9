#pragma once

#include <functional>

namespace veyruna::model {

/// Runs a task away from the interface thread, or wherever a test wants it. The task is called
/// once, or never where the program ends before.
using Executor = std::function<void(std::function<void()> task)>;

/// Runs tasks on the program's thread pool, ahead of work that nobody waits for.
Executor poolExecutor();

}  // namespace veyruna::model
