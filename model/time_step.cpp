#include "model/time_step.h"

#include <algorithm>

#include "astro/calendar.h"
#include "astro/invariant.h"
#include "astro/sun.h"

namespace veyruna::model {

constexpr std::array<TimeStepEntry, timeStepCount> allTimeSteps = {{
    {TimeStep::quarter, u"quarter", u"Quarter of an hour", 1.0 / 96.0, true},
    {TimeStep::hour, u"hour", u"Hour", 1.0 / 24.0, true},
    {TimeStep::day, u"day", u"Day", 1.0, false},
    {TimeStep::sameStars, u"sameStars", u"Same stars", 1.0 / astro::siderealRate, false},
    {TimeStep::month, u"month", u"Month", astro::daysPerMonth, false},
    {TimeStep::year, u"year", u"Year", astro::daysPerYear, false},
}};

namespace {

constexpr bool everyStepHasItsRowInOrder() {
  for (std::size_t i = 0; i < allTimeSteps.size(); ++i) {
    if (allTimeSteps[i].step != static_cast<TimeStep>(i) || !(allTimeSteps[i].days > 0.0)) {
      return false;
    }
  }
  return true;
}
static_assert(everyStepHasItsRowInOrder());

}  // namespace

const TimeStepEntry& entryOf(TimeStep step) {
  const auto row = static_cast<std::size_t>(step);
  astro::requireInvariant(row < allTimeSteps.size(), "a step of time has its row");
  return allTimeSteps[row];
}

std::optional<TimeStep> timeStepOf(QStringView word) {
  const auto* const found = std::ranges::find(allTimeSteps, word, &TimeStepEntry::word);
  return found == allTimeSteps.end() ? std::nullopt : std::optional(found->step);
}

}  // namespace veyruna::model
