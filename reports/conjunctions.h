#pragma once

#include <cstdint>
#include <string>

#include "reports/text_sink.h"

namespace veyruna::reports {

/// Whether two ecliptic longitudes (radians, any finite values) stand less than 2° apart.
bool isConjunct(double a, double b);

/// The positions of moon, sun and planets, one line a moment, with a mark for every pair of planets
/// that stand together. The planets' columns stand crossed: their longitudes in the first block,
/// their right ascensions in the second.
/// `rows` ≥ 0 (a negative count is a broken invariant), `start` and `step` in days of base time.
std::string conjunctionTable(std::int64_t rows, double start, double step);

/// The same table piece by piece; both header lines come in one piece.
void writeConjunctionTable(std::int64_t rows, double start, double step, const TextSink& sink);

}  // namespace veyruna::reports
