#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

namespace veyruna::almanac {

/// A condition that cannot be read: which word of which line it is, and what could stand there.
class ConditionError : public std::runtime_error {
 public:
  /// What is not understood. Offset and length are bytes of the line; a length of 0 at its end is a
  /// word that is missing.
  struct Spot {
    std::string line;
    std::size_t lineNumber = 1;  ///< from 1
    std::size_t offset = 0;
    std::size_t length = 0;
  };

  /// `nearest` is the spelling among the accepted words that comes nearest; empty for none.
  ConditionError(const std::string& message, Spot spot, std::string accepted, std::string nearest)
      : std::runtime_error(message),
        spot_(std::move(spot)),
        accepted_(std::move(accepted)),
        nearest_(std::move(nearest)) {}

  [[nodiscard]] const Spot& spot() const { return spot_; }
  /// What could stand there, in words.
  [[nodiscard]] const std::string& accepted() const { return accepted_; }
  [[nodiscard]] const std::string& nearest() const { return nearest_; }

 private:
  Spot spot_;
  std::string accepted_;
  std::string nearest_;
};

}  // namespace veyruna::almanac
