// The table of steps: how long they are, and their words.
#include "model/time_step.h"

#include <gtest/gtest.h>

#include "tests/model/printing.h"
#include "tests/support/expect_stop.h"

namespace veyruna {
namespace {

using model::TimeStep;

TEST(TimeSteps, AreAsLongAsTheCalendarHasThem) {
  EXPECT_EQ(entryOf(TimeStep::quarter).days, 0.25 / 24.0);
  EXPECT_EQ(entryOf(TimeStep::hour).days, 1.0 / 24.0);
  EXPECT_EQ(entryOf(TimeStep::day).days, 1.0);
  EXPECT_EQ(entryOf(TimeStep::month).days, 30.0);
  EXPECT_EQ(entryOf(TimeStep::year).days, 360.0);
  // A year of 360 days has a turn of the stars more: 23 h 56 min.
  EXPECT_NEAR(entryOf(TimeStep::sameStars).days * 361.0, 360.0, 0.01);
}

TEST(TimeSteps, HaveEachAWordAndATitleOfTheirOwn) {
  for (const model::TimeStepEntry& entry : model::allTimeSteps) {
    EXPECT_EQ(model::timeStepOf(entry.word), entry.step);
    EXPECT_FALSE(entry.title.isEmpty());
  }
  EXPECT_EQ(model::timeStepOf(u"fortnight"), std::nullopt);
  EXPECT_EQ(model::timeStepOf(u""), std::nullopt);
}

TEST(TimeStepsDeath, NoneHasNoRow) {
  EXPECT_STOP(model::entryOf(TimeStep::count), "a step of time has its row");
}

}  // namespace
}  // namespace veyruna
