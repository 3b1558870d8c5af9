#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "astro/invariant.h"
#include "reports/text_sink.h"

namespace veyruna::reports {

/// Writes a table to a sink: the header in one piece, then a piece a row. `appendRow(row, t)`
/// appends the line of the moment `t`, which begins at `start` and advances by `step` (days) from
/// row to row. A negative number of rows is a broken invariant.
template <class AppendRow>
void writeRows(std::string_view header, std::int64_t rows, double start, double step,
               const TextSink& sink, AppendRow appendRow) {
  astro::requireInvariant(rows >= 0, "a table has no negative number of rows");
  sink(header);
  std::string row;
  double t = start;
  for (std::int64_t i = 0; i < rows; ++i) {
    row.clear();
    appendRow(row, t);
    sink(row);
    t += step;
  }
}

}  // namespace veyruna::reports
