#pragma once

#include <stdexcept>

namespace veyruna::words {

/// What a person typed cannot be used; the message quotes it and says what is accepted.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace veyruna::words
