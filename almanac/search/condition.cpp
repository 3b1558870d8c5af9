#include "almanac/search/condition.h"

#include <utility>

#include "almanac/search/overloaded.h"
#include "astro/invariant.h"

namespace veyruna::almanac {

namespace {

Uses joinedUses(const std::vector<Condition>& parts) {
  Uses all;
  for (const Condition& part : parts) {
    const Uses uses = usesOf(part);
    all.sky |= uses.sky;
    all.horizon |= uses.horizon;
    all.ascendant |= uses.ascendant;
    all.light |= uses.light;
    all.hour |= uses.hour;
    all.date |= uses.date;
  }
  return all;
}

}  // namespace

Uses usesOf(const Condition& condition) {
  return std::visit(Overloaded{
                        [](const AnyOf& any) { return joinedUses(any.parts); },
                        [](const AllOf& all) { return joinedUses(all.parts); },
                        [](const Not& negation) { return joinedUses(negation.parts); },
                        [](const BodyAbove&) { return Uses{.horizon = true}; },
                        [](const StarAbove&) { return Uses{.horizon = true}; },
                        [](const LightIs&) { return Uses{.light = true}; },
                        [](const RisingSign&) { return Uses{.ascendant = true}; },
                        [](const NatalIs&) { return Uses{.sky = true, .ascendant = true}; },
                        [](const DominantSphere&) { return Uses{.sky = true, .ascendant = true}; },
                        [](const HourBetween&) { return Uses{.hour = true}; },
                        [](const MonthIs&) { return Uses{.date = true}; },
                        [](const DayIs&) { return Uses{.date = true}; },
                        [](const auto&) { return Uses{.sky = true}; },
                    },
                    condition.form);
}

Condition allOf(std::vector<Condition> conditions) {
  astro::requireInvariant(!conditions.empty(), "something is asked");
  return conditions.size() == 1 ? std::move(conditions.front())
                                : Condition{AllOf{std::move(conditions)}};
}

bool needsPlace(const Condition& condition, bool isLocal) {
  const Uses uses = usesOf(condition);
  return uses.horizon || uses.ascendant || uses.light || (isLocal && (uses.hour || uses.date));
}

}  // namespace veyruna::almanac
