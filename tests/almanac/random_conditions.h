#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

#include "almanac/search/condition.h"

namespace veyruna::tests {

/// Conditions by chance, the same for the same seed.
class RandomConditions {
 public:
  explicit RandomConditions(std::uint64_t seed) : engine_(seed) {}

  /// How many forms there are that have no parts.
  static constexpr std::size_t leafForms = std::variant_size_v<almanac::AnyForm> - 3;

  /// A form without parts, by its number.
  almanac::Condition leaf(std::size_t form);
  /// A tree in which groups stand in groups up to so many times. `form` is among its leaves.
  almanac::Condition tree(std::size_t form, int nesting);

  /// A whole number in [0, count).
  std::size_t below(std::size_t count) { return engine_() % count; }

 private:
  std::mt19937_64 engine_;
};

}  // namespace veyruna::tests
