#include "tests/support/memory_use.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/support/heap.h"

namespace veyruna::tests {

MemoryUse memoryUse() {
  constexpr double megabyte = 1e6;
  std::ifstream status("/proc/self/statm");
  double all = 0.0;
  double resident = 0.0;
  status >> all >> resident;
  const std::filesystem::directory_iterator files("/proc/self/fd");
  return {.heapMB = static_cast<double>(heapBytes()) / megabyte,
          .residentMB = resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / megabyte,
          .openFiles = static_cast<int>(std::distance(begin(files), end(files)))};
}

void expectFlat(const std::vector<MemoryUse>& uses, double allowanceMB) {
  const auto quarter = static_cast<std::ptrdiff_t>(uses.size() / 4);
  const auto mostOf = [&](std::ptrdiff_t which, auto member) {
    const auto from = uses.begin() + which * quarter;
    return std::ranges::max(std::ranges::subrange(from, which == 3 ? uses.end() : from + quarter),
                            {}, member).*
           member;
  };
  EXPECT_LT(mostOf(3, &MemoryUse::heapMB), mostOf(1, &MemoryUse::heapMB) + allowanceMB);
  EXPECT_LE(mostOf(3, &MemoryUse::openFiles), mostOf(1, &MemoryUse::openFiles) + 4);
}

}  // namespace veyruna::tests
