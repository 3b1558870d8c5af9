#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "astro/calendar.h"
#include "cli/batch/row_places.h"
#include "cli/typed/sky.h"

namespace veyruna::cli {

/// A person or a scene: one row of a table.
struct BatchRow {
  std::int64_t line = 1;  ///< of the file
  std::string name;       ///< as it stands there, as the next two
  std::string date;
  std::string place;
  astro::CalendarReading reading{};  ///< the clock as it was given
  Sky sky{};
  std::vector<std::string>
      problems;  ///< of each column; what stands above is to be had without any
};

/// What rows are where they leave it open.
struct RowDefaults {
  double hour = 12.0;
  bool isLocal = false;
  std::optional<Place> place;
};

/// The rows of a table with separated values, in their order. A row that cannot be used has its
/// problems, each of which names the column and says what is accepted. Throws UsageError where
/// there is no header, or one that does not do; a place is needed where the defaults have none.
std::vector<BatchRow> readRows(std::string_view bytes, const RowDefaults& defaults,
                               const PlaceFinder& placeNamed);

}  // namespace veyruna::cli
