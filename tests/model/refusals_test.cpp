// Moments and places beyond what is calculated, which preferences edited by hand may hold.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "tests/model/change_log.h"
#include "tests/model/fakes.h"

namespace veyruna {
namespace {

using model::AstronomyModel;
using tests::ChangeLog;
using tests::FakeModel;
using Names = tests::ChangeLog::Names;

const QString tooFar = QStringLiteral("This moment is too far away to calculate.");
const QString noPlace = QStringLiteral("This place is not on the globe.");

struct Refusal {
  const char* name;
  std::function<void(AstronomyModel&)> enter;
  QString message;
};

class Refused : public testing::TestWithParam<Refusal> {};

TEST_P(Refused, SaysSoAndChangesNothingElse) {
  FakeModel world;
  world.calculate();
  const double before = *world.model.lastHoroscopeBasetime();
  const QString starMap = world.model.starMapSVG();
  const QUuid firstRow = world.model.positions().front().id;
  GetParam().enter(world.model);

  ChangeLog log(world.model);
  world.model.recalculate();
  EXPECT_EQ(world.tasks.count(), 0U);
  EXPECT_EQ(log.taken(), (Names{"isCalculating", "errorMessage", "isCalculating"}));
  EXPECT_EQ(world.model.errorMessage(), GetParam().message);
  world.model.recalculate();
  tests::turnEventLoop();
  // Asked again, it is told again.
  EXPECT_EQ(log.taken(), (Names{"isCalculating", "errorMessage", "errorMessage", "isCalculating"}));
  EXPECT_EQ(world.model.errorMessage(), GetParam().message);
  EXPECT_EQ(world.tasks.count(), 0U);
  EXPECT_FALSE(world.model.isCalculating());
  EXPECT_EQ(world.model.lastHoroscopeBasetime(), before);
  EXPECT_EQ(world.model.starMapSVG(), starMap);
  EXPECT_EQ(world.model.positions().front().id, firstRow);

  world.model.setHoroscopeBlackAndWhite(true);
  world.model.regenerateHoroscope();
  EXPECT_EQ(world.model.errorMessage(), GetParam().message);

  world.model.setYear(720);
  world.model.setMonthIndex(0);
  world.model.setDayIndex(0);
  world.model.setHour(12.0);
  world.model.setManualLatDeg(40.5);
  world.model.setManualLongDeg(20.9);
  log.taken();
  world.model.recalculate();
  EXPECT_EQ(log.taken(), (Names{"isCalculating", "errorMessage"}));
  EXPECT_EQ(world.model.errorMessage(), std::nullopt);
  world.tasks.runNext();
  tests::turnEventLoop();
  EXPECT_EQ(world.model.errorMessage(), std::nullopt);
}

constexpr qint64 most = std::numeric_limits<qint64>::max();
constexpr qint64 least = std::numeric_limits<qint64>::min();

void localHour(AstronomyModel& model, double hour) {
  model.setUseLocalTime(true);
  model.setHour(hour);
}

INSTANTIATE_TEST_SUITE_P(
    Moments, Refused,
    testing::Values(Refusal{"LastYear", [](auto& m) { m.setYear(most); }, tooFar},
                    Refusal{"FirstYear", [](auto& m) { m.setYear(least); }, tooFar},
                    // Day one of year 2,777,779 is day 1,000,000,080.
                    Refusal{"JustTooLate", [](auto& m) { m.setYear(2'777'779); }, tooFar},
                    Refusal{"JustTooEarly", [](auto& m) { m.setYear(-2'777'777); }, tooFar},
                    Refusal{"LastMonth", [](auto& m) { m.setMonthIndex(most); }, tooFar},
                    Refusal{"FirstMonth", [](auto& m) { m.setMonthIndex(least); }, tooFar},
                    Refusal{"LastDay", [](auto& m) { m.setDayIndex(most); }, tooFar},
                    Refusal{"FirstDay", [](auto& m) { m.setDayIndex(least); }, tooFar},
                    Refusal{"Hour", [](auto& m) { m.setHour(1e308); }, tooFar},
                    Refusal{"LocalHour", [](auto& m) { localHour(m, 1e308); }, tooFar},
                    Refusal{"LocalHourBefore", [](auto& m) { localHour(m, -1.7e308); }, tooFar},
                    Refusal{"LocalYear",
                            [](auto& m) {
                              m.setUseLocalTime(true);
                              m.setYear(most);
                            },
                            tooFar}),
    [](const auto& test) { return test.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Places, Refused,
    testing::Values(Refusal{"Latitude", [](auto& m) { m.setManualLatDeg(57'300.0); }, noPlace},
                    Refusal{"SouthernLatitude",
                            [](auto& m) {
                              m.setManualLatDeg(57'300.0);
                              m.setLatNorth(false);
                            },
                            noPlace},
                    Refusal{"Longitude", [](auto& m) { m.setManualLongDeg(-57'300.0); }, noPlace},
                    Refusal{"HugeLatitude", [](auto& m) { m.setManualLatDeg(1.7e308); }, noPlace},
                    Refusal{"HugeLongitudeInLocalTime",
                            [](auto& m) {
                              m.setManualLongDeg(1.7e308);
                              m.setUseLocalTime(true);
                            },
                            noPlace},
                    Refusal{"HugeLatitudeInLocalTime",
                            [](auto& m) {
                              m.setManualLatDeg(-1.7e308);
                              m.setUseLocalTime(true);
                            },
                            noPlace}),
    [](const auto& test) { return test.param.name; });

/// Exactly 1,000 radians, of either sign, are a place still; the next number is none.
TEST(Refused, ThousandRadiansAreTheLastPlace) {
  constexpr double last = 1000.0;
  const double next = std::nextafter(last, 1e9);
  for (const double sign : {1.0, -1.0}) {
    EXPECT_TRUE(model::isPlaceWithinReach(sign * last, 0.0));
    EXPECT_TRUE(model::isPlaceWithinReach(0.0, sign * last));
    EXPECT_FALSE(model::isPlaceWithinReach(sign * next, 0.0));
    EXPECT_FALSE(model::isPlaceWithinReach(0.0, sign * next));
  }
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(model::isPlaceWithinReach(none, 0.0));
  EXPECT_FALSE(model::isPlaceWithinReach(0.0, none));
  const model::CalculationResult result =
      model::calculate({.observer = {.baseTime = 0.25, .latitude = last, .longitude = -last}},
                       model::heldDocuments());
  EXPECT_TRUE(model::textIn(result.texts, documents::Document::starMap)
                  .endsWith(QStringLiteral("</svg>\n")));
}

TEST(Refused, ABillionDaysAreTheLastMoment) {
  constexpr double last = 1e9;
  for (const double sign : {1.0, -1.0}) {
    EXPECT_TRUE(model::isMomentWithinReach(sign * last));
    EXPECT_FALSE(model::isMomentWithinReach(sign * std::nextafter(last, 1e10)));
  }
  EXPECT_FALSE(model::isMomentWithinReach(std::numeric_limits<double>::quiet_NaN()));
}

TEST(Refused, WhatIsHandedInWhenItBeginsIsRefusedToo) {
  FakeModel world;
  QObject::connect(&world.model, &AstronomyModel::isCalculatingChanged, &world.model,
                   [&world] { world.model.setYear(most); });
  world.model.recalculate();
  EXPECT_EQ(world.tasks.count(), 0U);
  EXPECT_EQ(world.model.errorMessage(), tooFar);
  EXPECT_FALSE(world.model.isCalculating());
}

TEST(Refused, AtTheVeryStartOutputsStayEmpty) {
  FakeModel world;
  world.model.setYear(most);
  ChangeLog log(world.model);
  world.model.recalculate();
  EXPECT_EQ(log.taken(), (Names{"isCalculating", "errorMessage", "isCalculating"}));
  EXPECT_EQ(world.model.errorMessage(), tooFar);
  world.model.regenerateHoroscope();
  EXPECT_EQ(world.model.horoscopeSVG(), QString());
}

TEST(Refused, NotWhileACalculationRuns) {
  FakeModel world;
  world.model.recalculate();
  world.model.setYear(most);
  world.model.recalculate();
  EXPECT_EQ(world.model.errorMessage(), std::nullopt);
  world.tasks.runNext();
  tests::turnEventLoop();
  EXPECT_EQ(world.model.errorMessage(), std::nullopt);
  EXPECT_EQ(world.model.dateLabel(), QStringLiteral("720-01-01 12:00 OST"));
}

/// The ends of what is calculated, local time included, come out whole.
TEST(Reach, TheEndsAreCalculated) {
  FakeModel world;
  for (const qint64 year : {qint64{2'777'778}, qint64{-2'777'776}}) {
    for (const double degrees : {0.0, 90.0, 57'295.0}) {
      world.model.setYear(year);
      world.model.setManualLatDeg(degrees);
      world.model.setManualLongDeg(degrees);
      world.model.setUseLocalTime(degrees != 0.0);
      world.calculate();
      EXPECT_EQ(world.model.errorMessage(), std::nullopt) << year << " " << degrees;
      EXPECT_FALSE(world.model.isCalculating());
      EXPECT_NEAR(*world.model.lastHoroscopeBasetime(), static_cast<double>(year - 1) * 360.0, 1.0);
      EXPECT_EQ(world.model.lastHoroscopeLatitude(), degrees * 3.141592653589793 / 180.0);
    }
  }
}

}  // namespace
}  // namespace veyruna
