#include "almanac/search/search.h"

#include "almanac/motion/change.h"
#include "almanac/search/inquiry.h"
#include "astro/invariant.h"

namespace veyruna::almanac {

void search(const Query& query, const std::function<bool(const Span&)>& take,
            const std::function<void(double)>& reached) {
  astro::requireInvariant(query.place || !needsPlace(query.condition, query.isLocal),
                          "a place is given where one is asked of");
  const auto [from, to] = query.range;
  if (!(from < to)) {
    return;
  }
  Inquiry inquiry(query.condition, query.place.value_or(astro::Observer{}), query.isLocal);
  const auto state = [&](double t) {
    if (reached) {
      reached(t);
    }
    return inquiry.at(t);
  };
  bool holds = state(from).holds;
  double begin = from;
  double last = from;
  while (const auto change = nextChange(state, last, to)) {
    last = *change;
    if (holds && !take({begin, last})) {
      return;
    }
    begin = last;
    holds = !holds;
  }
  if (holds && begin < to) {
    take({begin, to});
  }
}

}  // namespace veyruna::almanac
