#pragma once

#include <vector>

namespace veyruna::tests {

/// What the program holds at a moment.
struct MemoryUse {
  double heapMB;      ///< of its heap, not given back
  double residentMB;  ///< of the machine's memory
  int openFiles;
};

MemoryUse memoryUse();

/// Expects of uses at even intervals that the last quarter holds no more than the second, but for
/// the allowance: what is filled once, fonts and caches, is filled by then.
void expectFlat(const std::vector<MemoryUse>& uses, double allowanceMB);

}  // namespace veyruna::tests
