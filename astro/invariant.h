#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>

namespace veyruna::astro {

/// A number as a broken invariant prints it.
class InvariantValue {
 public:
  explicit InvariantValue(std::floating_point auto value)
      : isWhole_(false), real_(static_cast<double>(value)) {}
  explicit InvariantValue(std::integral auto value)
      : isWhole_(true), whole_(static_cast<std::int64_t>(value)) {}

  /// Writes the shortest text that reads back the same to standard error.
  void print() const noexcept;

 private:
  bool isWhole_;
  double real_ = 0.0;
  std::int64_t whole_ = 0;
};

/// Stops the program with "veyruna: broken invariant: <what>" on standard error, followed by the
/// values in parentheses where there are any. For mistakes in the program itself, never for bad
/// input; works in every build.
[[noreturn]] void stopOnBrokenInvariant(const char* what,
                                        std::initializer_list<InvariantValue> values = {}) noexcept;

/// Stops the program unless `holds`. `what` says in words what must be true, `values` are the
/// numbers of which it must be.
template <class... Values>
void requireInvariant(bool holds, const char* what, Values... values) noexcept {
  if (!holds) [[unlikely]] {
    stopOnBrokenInvariant(what, {InvariantValue(values)...});
  }
}

}  // namespace veyruna::astro
