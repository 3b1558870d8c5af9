#pragma once

#include <QList>
#include <cstdint>
#include <random>

namespace veyruna::tests {

/// What decides, the same again from the same seed.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : random_(seed) {}

  /// From 0 on, less than `count`, which is not 0.
  [[nodiscard]] int below(int count) {
    return static_cast<int>(random_() % static_cast<std::uint64_t>(count));
  }
  [[nodiscard]] bool oneIn(int count) { return below(count) == 0; }

  /// One of them; there is one.
  template <class Item>
  [[nodiscard]] Item oneOf(const QList<Item>& items) {
    return items.at(below(static_cast<int>(items.size())));
  }

 private:
  std::mt19937_64 random_;
};

}  // namespace veyruna::tests
