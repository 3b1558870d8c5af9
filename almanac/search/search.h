#pragma once

#include <functional>
#include <optional>

#include "almanac/motion/range.h"
#include "almanac/search/condition.h"
#include "astro/observer.h"

namespace veyruna::almanac {

/// What is sought, and where and when.
struct Query {
  Condition condition;
  Range range;
  /// Whose horizon and ascendant are meant, and whose clock where `isLocal`; its moment does not
  /// matter. None where needsPlace says that there must be one is a broken invariant.
  std::optional<astro::Observer> place;
  bool isLocal = false;
};

/// A condition holds from `begin` on, and not at `end` any more.
struct Span {
  double begin = 0.0;  ///< days
  double end = 0.0;
};

/// Hands on the spans of the range in which the condition holds, cut at its ends, in the order of
/// time, until `take` says false. Their edges are good to a tenth of a second; shorter ones may be
/// left out, and so may shorter gaps between them. One at a time: memory does not grow with the
/// range. `reached` is told the moments that the search comes to.
void search(const Query& query, const std::function<bool(const Span&)>& take,
            const std::function<void(double)>& reached = {});

}  // namespace veyruna::almanac
