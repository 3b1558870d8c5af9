// A moment put into the inputs, as that of the next full moon.
#include <cmath>
#include <gtest/gtest.h>

#include "astro/calendar.h"
#include "astro/local_time.h"
#include "tests/model/change_log.h"
#include "tests/model/fakes.h"

namespace veyruna {
namespace {

using model::AstronomyModel;
using tests::ChangeLog;
using tests::FakeModel;
using Names = tests::ChangeLog::Names;

constexpr double minute = 1.0 / 1440.0;

TEST(Moment, MoonsAreNothingBeforeTheFirstCalculation) {
  FakeModel world;
  EXPECT_EQ(world.model.nextFullMoonBaseTime(), std::nullopt);
  EXPECT_EQ(world.model.nextNewMoonBaseTime(), std::nullopt);
}

TEST(Moment, MoonsAreWhatTheirLabelsRead) {
  FakeModel world;
  AstronomyModel& model = world.model;
  const auto label = [&](std::optional<double> moon) {
    return QString::fromStdString(
        moon ? astro::calendarLabelWithLocalClock(model.observer().at(*moon)) : "none");
  };
  QStringList heard;  // both are there when either label is signalled
  for (const auto signal :
       {&AstronomyModel::nextFullMoonLabelChanged, &AstronomyModel::nextNewMoonLabelChanged}) {
    QObject::connect(&model, signal, &model, [&] {
      heard << label(model.nextFullMoonBaseTime()) << label(model.nextNewMoonBaseTime());
    });
  }
  world.calculate();
  const QString full = model.nextFullMoonLabel();
  const QString dark = model.nextNewMoonLabel();
  ASSERT_NE(full, dark);
  EXPECT_EQ(heard, (QStringList{full, dark, full, dark}));
}

TEST(Moment, ASetMomentReadsAsTheLabelOfTheMoon) {
  FakeModel world;
  AstronomyModel& model = world.model;
  world.calculate();
  const double moon = model.nextFullMoonBaseTime().value();
  ASSERT_TRUE(model.setMoment(moon));
  EXPECT_NEAR(model.baseTime(), moon, minute);
  EXPECT_EQ(astro::calendarLabel(model.baseTime()), astro::calendarLabel(moon));
  EXPECT_EQ(world.tasks.count(), 0U);
  EXPECT_FALSE(model.isCalculating());
}

TEST(Moment, InLocalTimeTheHourIsThePlaces) {
  FakeModel world;
  AstronomyModel& model = world.model;
  model.setUseLocalTime(true);
  world.calculate();
  const double moon = model.nextNewMoonBaseTime().value();
  ASSERT_TRUE(model.setMoment(moon));
  EXPECT_NEAR(model.baseTime(), moon, minute / 2.0 + 0.5 / 86400.0);
  EXPECT_EQ(astro::localClockLabel(model.observer()),
            astro::localClockLabel(model.observer().at(moon)));
  // 20.9 degrees west the place's clock is well behind.
  const auto standard = astro::calendarReading(moon);
  ASSERT_TRUE(standard.has_value());
  EXPECT_GT(std::abs(std::remainder(standard->hour - model.hour(), 24.0)), 1.0);
}

TEST(Moment, IsStoredOnceAndSignalsWhatChanges) {
  FakeModel world;
  AstronomyModel& model = world.model;
  ChangeLog log(model);
  const std::size_t stored = world.settings->groups.size();
  ASSERT_TRUE(model.setMoment(astro::standardBaseTime({721, 4, 9, 18.25})));
  EXPECT_EQ(log.taken(), (Names{"monthIndex", "dayIndex", "year", "hour"}));
  ASSERT_EQ(world.settings->groups.size(), stored + 1);
  EXPECT_EQ(world.settings->values[QStringLiteral("AstronomyModel.year")], QVariant(qint64{721}));
  EXPECT_EQ(world.settings->values[QStringLiteral("AstronomyModel.monthIndex")],
            QVariant(qint64{4}));
  EXPECT_EQ(world.settings->values[QStringLiteral("AstronomyModel.dayIndex")], QVariant(qint64{9}));
  EXPECT_EQ(world.settings->values[QStringLiteral("AstronomyModel.hour")], QVariant(18.25));

  ASSERT_TRUE(model.setMoment(astro::standardBaseTime({721, 4, 9, 19.0})));
  EXPECT_EQ(log.taken(), Names{"hour"});
  ASSERT_TRUE(model.setMoment(model.baseTime()));
  EXPECT_EQ(log.taken(), Names{});
}

TEST(Moment, EveryInputIsSetWhenTheFirstSignalComes) {
  FakeModel world;
  AstronomyModel& model = world.model;
  const double moment = astro::standardBaseTime({721, 4, 9, 18.25});
  double heard = 0.0;
  QObject::connect(&model, &AstronomyModel::monthIndexChanged, &model,
                   [&] { heard = model.baseTime(); });
  ASSERT_TRUE(model.setMoment(moment));
  EXPECT_EQ(heard, moment);
}

TEST(Moment, WhatNoInputsNameIsRefused) {
  FakeModel world;
  AstronomyModel& model = world.model;
  for (const bool isLocal : {false, true}) {
    model.setUseLocalTime(isLocal);
    ChangeLog log(model);
    const double before = model.baseTime();
    const std::size_t stored = world.settings->groups.size();
    for (const double t : {-3.0, 1.1e9, -1e300, std::nan("")}) {
      EXPECT_FALSE(model.setMoment(t)) << t;
    }
    EXPECT_EQ(model.baseTime(), before);
    EXPECT_EQ(world.settings->groups.size(), stored);
    EXPECT_EQ(log.taken(), Names{});
  }
}

TEST(Moment, APlaceBeyondTheGlobeHasStandardTimeAlone) {
  FakeModel world;
  AstronomyModel& model = world.model;
  model.setManualLongDeg(1e9);
  model.setUseLocalTime(true);
  const double moment = astro::standardBaseTime({721, 4, 9, 18.25});
  ASSERT_TRUE(model.setMoment(moment));
  EXPECT_EQ(model.baseTime(), moment);
}

}  // namespace
}  // namespace veyruna
