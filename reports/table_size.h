#pragma once

#include <cstdint>

namespace veyruna::reports {

/// How long a table is: its rows, and the days from one to the next.
struct TableSize {
  std::int64_t rows = 0;  ///< not below 0; a negative number is a broken invariant
  double stepDays = 0.0;  ///< added to the moment from row to row, of either sign
};

}  // namespace veyruna::reports
