#pragma once

#include <cstdint>
#include <string>

namespace veyruna::astro {

/// An angle split into whole degrees, whole minutes and seconds for printing.
/// The magnitude is held unsigned; the sign lives in `negative` alone (−0.0 is not negative).
struct Arc {
  std::int64_t d = 0;     ///< whole degrees
  std::int64_t m = 0;     ///< whole minutes, 0 to 59
  double s = 0.0;         ///< seconds, 0 ≤ s < 60
  bool negative = false;  ///< the angle given was below zero

  Arc() = default;

  /// Splits an angle in radians. An angle a hair (1e-7) below a whole degree or minute counts as
  /// that degree or minute. A non-finite angle, or one whose degrees overflow 64 bits, is a broken
  /// invariant.
  explicit Arc(double radians);

  /// "-012:05", " 123:60", "    :30": 7 characters below 1000°. Minutes are rounded up above 30″
  /// without a carry into the degrees; an angle below 1° has its sign beside the colon.
  [[nodiscard]] std::string degMinText() const;
  void appendDegMinText(std::string& out) const;

  /// " 045:07:31", "    -07:31", "        31": 10 characters below 1000°. Seconds are rounded
  /// without a carry.
  [[nodiscard]] std::string degMinSecText() const;
  void appendDegMinSecText(std::string& out) const;
};

}  // namespace veyruna::astro
