#pragma once

#include <cstddef>

namespace veyruna::tests {

/// How often this program has called functions of the mathematical library. Only what is called is
/// counted, not what the compiler works out by itself.
struct LibraryCalls {
  std::size_t sines = 0;
  std::size_t cosines = 0;
  std::size_t arcTangents = 0;  ///< of one argument or two
};

/// The calls since the last time this was asked.
LibraryCalls takeLibraryCalls();

}  // namespace veyruna::tests
