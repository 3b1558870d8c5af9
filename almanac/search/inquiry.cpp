#include "almanac/search/inquiry.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <type_traits>

#include "almanac/motion/motion.h"
#include "almanac/search/overloaded.h"

namespace veyruna::almanac {

namespace {

constexpr double aDay = 1.0;

/// About how many days pass from one change of a leaf to the next; only the order matters.
double paceOf(const Condition& leaf) {
  return std::visit(
      Overloaded{
          [](const InSign& in) { return 0.5 / speedOf(in.body); },
          [](const Together& pair) { return 3.0 / (speedOf(pair.body) + speedOf(pair.other)); },
          [](const MoonIs&) { return 10.0; },
          [](const Running&) { return 100.0; },
          [](const EclipseLasts&) { return 200.0; },
          [](const PowerIs&) { return 7.0; },
          [](const KeepIs&) { return 50.0; },
          [](const ElementIs&) { return 60.0; },
          [](const Favours&) { return 8.0; },
          [](const MonthIs&) { return 150.0; },
          [](const DayIs&) { return 15.0; },
          [](const auto&) { return 0.3; },
      },
      leaf.form);
}

Question questionFor(const Condition& leaf, const astro::Observer& place, const Clock& clock) {
  return std::visit(
      [&](const auto& form) -> Question {
        if constexpr (requires { question(form); }) {
          return question(form);
        } else if constexpr (requires { question(form, place); }) {
          return question(form, place);
        } else if constexpr (requires { question(form, clock); }) {
          return question(form, clock);
        } else {
          using Form = std::decay_t<decltype(form)>;
          static_assert(std::is_same_v<Form, AnyOf> || std::is_same_v<Form, AllOf> ||
                            std::is_same_v<Form, Not>,
                        "a form of condition has no question");
          return {};  // a group, which is no leaf
        }
      },
      leaf.form);
}

}  // namespace

Inquiry::Inquiry(const Condition& condition, const astro::Observer& place, bool isLocal)
    : knownUntil_(-std::numeric_limits<double>::infinity()) {
  const auto take = [&](Kind kind, const std::vector<Condition>& parts) {
    kind_ = kind;
    for (const Condition& part : parts) {
      parts_.emplace_back(part, place, isLocal);
    }
    std::ranges::stable_sort(parts_, std::greater{}, &Inquiry::pace_);
    pace_ = parts_.back().pace_;
  };
  if (const auto* const any = std::get_if<AnyOf>(&condition.form)) {
    take(Kind::any, any->parts);
  } else if (const auto* const all = std::get_if<AllOf>(&condition.form)) {
    take(Kind::all, all->parts);
  } else if (const auto* const negation = std::get_if<Not>(&condition.form)) {
    take(Kind::negation, negation->parts);
  } else {
    ask_ = questionFor(condition, place, {.isLocal = isLocal, .longitude = place.longitude});
    pace_ = paceOf(condition);
  }
}

State Inquiry::at(double t) {
  switch (kind_) {
    case Kind::any:
      return ofParts(t, true);
    case Kind::all:
      return ofParts(t, false);
    case Kind::negation: {
      const State state = parts_.front().at(t);
      return {!state.holds, state.unchangedFor};
    }
    case Kind::leaf:
      break;
  }
  // Just before it can change a part is asked anew, so that parts that change at one moment do so
  // together, whatever the roundings.
  if (t < askedAt_ || t > knownUntil_ - leastStepDays) {
    const State state = ask_(t);
    held_ = state.holds;
    askedAt_ = t;
    knownUntil_ = t + state.unchangedFor;
  }
  return {held_, knownUntil_ - t};
}

/// Of any, one part that holds decides; of all, one that fails.
State Inquiry::ofParts(double t, bool decisive) {
  double least = std::numeric_limits<double>::infinity();
  double longest = -1.0;
  for (Inquiry& part : parts_) {
    if (longest > std::max(part.pace_, aDay)) {
      break;
    }
    const State state = part.at(t);
    if (state.holds == decisive) {
      longest = std::max(longest, state.unchangedFor);
    } else {
      least = std::min(least, state.unchangedFor);
    }
  }
  return longest < 0.0 ? State{!decisive, least} : State{decisive, longest};
}

}  // namespace veyruna::almanac
