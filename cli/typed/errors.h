#pragma once

#include <stdexcept>

namespace veyruna::cli {

/// A document could not be written; the message names the file and the reason.
class WriteError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace veyruna::cli
