#pragma once

#include <cstddef>
#include <functional>

namespace veyruna::cli {

/// How many threads calculate at a time: one a core.
std::size_t coreCount();

/// Work that consists of many tasks.
struct Tasks {
  std::size_t count = 0;
  std::function<void(std::size_t number)> run;      ///< one of them; throws nothing
  std::function<void(std::size_t done)> isReached;  ///< told now and then, on the calling thread
};

/// Runs all tasks on several threads a core, because whoever writes waits for the disk most of the
/// time. They begin in their order; it returns when all are done.
void doSideBySide(const Tasks& tasks);

}  // namespace veyruna::cli
