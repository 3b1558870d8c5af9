#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "astro/invariant.h"
#include "astro/vector_registers.h"
#include "reports/table_size.h"
#include "reports/text_sink.h"

namespace veyruna::reports {

/// Hands on every moment of a table that begins at `start` (days of base time), one after another.
template <class Take>
void forEachMoment(double start, const TableSize& size, Take take) {
  astro::requireInvariant(size.rows >= 0, "a table has no negative number of rows", size.rows);
  double t = start;
  for (std::int64_t i = 0; i < size.rows; ++i) {
    astro::releaseUpperRegisters();
    take(t);
    t += size.stepDays;
  }
}

/// Writes a table to a sink: the header in one piece, then a piece a row. `appendRow(row, t)`
/// appends the line of the moment `t`, which begins at `start` (days of base time).
template <class AppendRow>
void writeRows(std::string_view header, double start, const TableSize& size, const TextSink& sink,
               AppendRow appendRow) {
  sink(header);
  std::string row;
  forEachMoment(start, size, [&](double t) {
    row.clear();
    appendRow(row, t);
    sink(row);
  });
}

}  // namespace veyruna::reports
