// Time that moves: what is calculated, when, and for which moment. The clock is the test's.
#include "model/live_time.h"

#include <QTest>
#include <gtest/gtest.h>

#include "astro/sun.h"
#include "documents/documents.h"
#include "tests/model/fakes.h"
#include "tests/support/expect_stop.h"
#include "tests/support/patience.h"

namespace veyruna {
namespace {

using documents::Document;
using model::AstronomyModel;
using model::LiveTime;
using model::TimeStep;
using Motion = model::LiveTime::Motion;
using namespace std::chrono_literals;

constexpr double firstStart = 258840.0;  // noon of the first day of year 720
constexpr double oneMinute = 1.0 / 1440.0;

struct LiveTimeTest : testing::Test, tests::FakeWorld {
  AstronomyModel model{surroundings()};
  std::chrono::nanoseconds clock = 7s;
  LiveTime time{model, store, [this] { return clock; }};
  QObject viewer;

  LiveTimeTest() { time.setSeen(&viewer, {Document::starMap}); }

  static bool waitFor(const std::function<bool()>& comes) {
    return QTest::qWaitFor(comes, tests::patienceMilliseconds);
  }
  /// Runs what time has begun in the background, and waits for it if nothing has.
  void letEverythingBeCalculated() {
    EXPECT_TRUE(waitFor([this] { return tasks.count() > 0; }));
    while (tasks.count() > 0) {
      tasks.runNext();
      tests::turnEventLoop();
    }
  }
  void turnOn() {
    time.setOn(true);
    letEverythingBeCalculated();
  }
  /// Lets so much time go by and waits until the picture has come to the moment.
  void playFor(std::chrono::nanoseconds duration, double moment) {
    clock += duration;
    EXPECT_TRUE(waitFor([&] { return shownMoment() == moment; }))
        << "shown " << shownMoment() << " for " << moment;
  }
  [[nodiscard]] double shownMoment() const { return model.lastHoroscopeBasetime().value_or(0.0); }
  [[nodiscard]] bool showsTheStarMapOf(double moment) const {
    return model.starMapSVG() == QString::fromStdString(documents::textOf(
                                     Document::starMap, model.observer().at(moment)));
  }
};

TEST_F(LiveTimeTest, LeavesTheModelAloneWhileItIsOff) {
  EXPECT_FALSE(time.isOn());
  model.setHour(3.0);
  model.setManualLatDeg(10.0);
  time.stepBy(1);
  time.play(Motion::forward);
  time.goBack();
  tests::turnEventLoop();
  EXPECT_EQ(time.motion(), Motion::resting);
  EXPECT_EQ(tasks.count(), 0U);
  EXPECT_EQ(model.hour(), 3.0);
  EXPECT_FALSE(model.lastHoroscopeBasetime());
  EXPECT_EQ(settings->groups.size(), 2U);  // stored at once, as ever
}

TEST_F(LiveTimeTest, CalculatesWhatHasChangedWhenItIsTurnedOn) {
  turnOn();
  EXPECT_EQ(shownMoment(), firstStart);
  EXPECT_TRUE(showsTheStarMapOf(firstStart));
  EXPECT_FALSE(model.horoscopeSVG().isEmpty());

  time.setOn(false);
  time.setOn(true);
  QTest::qWait(300);
  EXPECT_EQ(tasks.count(), 0U);  // nothing has changed
}

TEST_F(LiveTimeTest, CalculatesEveryChangeOfMomentOrPlaceAtOnce) {
  turnOn();
  const std::vector<std::function<void()>> changes = {
      [this] { model.setHour(3.0); },
      [this] { model.setDayIndex(4); },
      [this] { model.setMonthIndex(5); },
      [this] { model.setYear(700); },
      [this] { model.setUseLocalTime(true); },
      [this] { model.setManualLatDeg(10.0); },
      [this] { model.setManualLongDeg(12.0); },
      [this] { model.setLatNorth(false); },
      [this] { model.setLongWest(false); },
      [this] { model.setSelectedCityID(QUuid(0, 99, 0, 0, 0, 0, 0, 0, 0, 0, 0)); },
  };
  for (const auto& change : changes) {
    change();
    EXPECT_TRUE(model.inputsHaveChanged());
    const QString yearly = model.conjunctionYearly();
    tests::turnEventLoop();
    EXPECT_FALSE(model.inputsHaveChanged());
    EXPECT_TRUE(showsTheStarMapOf(model.baseTime()));
    EXPECT_EQ(model.conjunctionYearly(), yearly);  // not seen: it waits for a rest
    letEverythingBeCalculated();
    EXPECT_EQ(model.conjunctionYearly(),
              QString::fromStdString(documents::textOf(Document::yearly, model.observer())));
  }
}

TEST_F(LiveTimeTest, SeveralChangesAtOnceAreOnePicture) {
  turnOn();
  int pictures = 0;
  QObject::connect(&model, &AstronomyModel::published, &model, [&] { ++pictures; });
  model.setHour(3.0);
  model.setYear(700);
  model.setManualLatDeg(10.0);
  tests::turnEventLoop();
  EXPECT_EQ(pictures, 1);
}

TEST_F(LiveTimeTest, StepsCountInDaysAndTheInputsFollow) {
  turnOn();
  const std::vector<std::pair<TimeStep, const char*>> steps = {
      {TimeStep::quarter, "720-01-01 12:15 OST"}, {TimeStep::hour, "720-01-01 13:00 OST"},
      {TimeStep::day, "720-01-02 12:00 OST"},     {TimeStep::sameStars, "720-01-02 11:56 OST"},
      {TimeStep::month, "720-02-01 12:00 OST"},   {TimeStep::year, "721-01-01 12:00 OST"}};
  for (const auto& [step, label] : steps) {
    time.setStep(step);
    time.stepBy(1);
    EXPECT_EQ(model.dateLabel(), QString::fromLatin1(label));
    EXPECT_NEAR(model.baseTime(), firstStart + entryOf(step).days, oneMinute);
    EXPECT_TRUE(showsTheStarMapOf(firstStart + entryOf(step).days));
    time.stepBy(-1);
    EXPECT_EQ(model.dateLabel(), QStringLiteral("720-01-01 12:00 OST"));
    EXPECT_EQ(model.baseTime(), firstStart);
  }
}

TEST_F(LiveTimeTest, RollsOverTheEndsOfDayMonthAndYear) {
  model.setYear(719);
  model.setMonthIndex(11);
  model.setDayIndex(29);
  model.setHour(23.75);
  turnOn();
  time.setStep(TimeStep::quarter);
  time.stepBy(1);
  EXPECT_EQ(model.year(), 720);
  EXPECT_EQ(model.monthIndex(), 0);
  EXPECT_EQ(model.dayIndex(), 0);
  EXPECT_EQ(model.hour(), 0.0);
  EXPECT_EQ(model.dateLabel(), QStringLiteral("720-01-01 00:00 OST"));
}

TEST_F(LiveTimeTest, TheSameStarsStandWhereTheyStoodAfterAHundredSteps) {
  turnOn();
  const QString before = model.starMapSVG();
  time.setStep(TimeStep::sameStars);
  for (int i = 0; i < 100; ++i) {
    time.stepBy(1);
  }
  // The lines between stars are drawn to a tenth of a unit.
  const auto figures = [](const QString& chart) {
    QStringList lines = chart.split(QLatin1Char('\n')).filter(QStringLiteral("<line"));
    return lines.filter(QStringLiteral("opacity=\"0.5\""));
  };
  ASSERT_GT(figures(before).size(), 30);
  EXPECT_EQ(figures(model.starMapSVG()), figures(before));
  EXPECT_NEAR(model.baseTime(), firstStart + 100.0 / astro::siderealRate, oneMinute);
}

TEST_F(LiveTimeTest, RestsOnTheMinuteThatTheInputsName) {
  turnOn();
  time.setStep(TimeStep::sameStars);
  time.stepBy(1);
  EXPECT_NE(shownMoment(), model.baseTime());
  EXPECT_FALSE(model.inputsHaveChanged());
  letEverythingBeCalculated();
  EXPECT_EQ(shownMoment(), model.baseTime());
  EXPECT_TRUE(showsTheStarMapOf(model.baseTime()));
  time.stepBy(1);  // and goes on from the very moment
  EXPECT_EQ(shownMoment(), firstStart + 1.0 / astro::siderealRate + 1.0 / astro::siderealRate);
}

TEST_F(LiveTimeTest, PlaysForwardsAndBackwards) {
  turnOn();
  time.setStep(TimeStep::hour);
  time.setSpeed(2.0);
  time.play(Motion::forward);
  EXPECT_EQ(time.motion(), Motion::forward);
  playFor(1s, firstStart + 2.0 / 24.0);
  playFor(250ms, firstStart + 2.5 / 24.0);  // flows
  EXPECT_TRUE(showsTheStarMapOf(firstStart + 2.5 / 24.0));
  EXPECT_EQ(model.hour(), 14.5);

  time.play(Motion::backward);
  playFor(1s, firstStart + 2.5 / 24.0 - 2.0 / 24.0);
  EXPECT_EQ(tasks.count(), 0U);
  time.pause();
  EXPECT_EQ(time.motion(), Motion::resting);
  EXPECT_FALSE(model.inputsHaveChanged());
  letEverythingBeCalculated();
  EXPECT_EQ(model.hour(), 12.5);
}

TEST_F(LiveTimeTest, LeapsFromDayToDay) {
  turnOn();
  time.setStep(TimeStep::day);
  time.setSpeed(4.0);
  time.play(Motion::forward);
  clock += 240ms;
  QTest::qWait(100);
  EXPECT_EQ(shownMoment(), firstStart);
  playFor(20ms, firstStart + 1.0);
  playFor(10s, firstStart + 41.0);  // what came too late is left out
}

TEST_F(LiveTimeTest, AnotherPaceGoesOnFromWhereItIs) {
  turnOn();
  time.setStep(TimeStep::day);
  time.setSpeed(1.0);
  time.play(Motion::forward);
  playFor(3s, firstStart + 3.0);
  time.setSpeed(10.0);
  playFor(1s, firstStart + 13.0);
  time.setStep(TimeStep::month);
  playFor(100ms, firstStart + 43.0);
  time.stepBy(-1);
  EXPECT_EQ(shownMoment(), firstStart + 13.0);
  playFor(100ms, firstStart + 43.0);
}

TEST_F(LiveTimeTest, WhileItPlaysOnlyWhatIsSeenIsCalculated) {
  turnOn();
  const QString horoscope = model.horoscopeSVG();
  time.setStep(TimeStep::day);
  time.play(Motion::forward);
  playFor(1s, firstStart + 1.0);
  EXPECT_EQ(model.horoscopeSVG(), horoscope);

  // Another tab comes to the front, and another window with a third.
  time.setSeen(&viewer, {Document::horoscope});
  EXPECT_EQ(model.horoscopeSVG(), QString::fromStdString(documents::textOf(
                                      Document::horoscope, model.observer().at(firstStart + 1.0))));
  {
    const QObject other;
    time.setSeen(&other, {Document::positions});
    playFor(1s, firstStart + 2.0);
    EXPECT_FALSE(showsTheStarMapOf(firstStart + 2.0));
    EXPECT_EQ(model.text(Document::positions),
              QString::fromStdString(documents::textOf(Document::positions, model.observer())));
  }
  playFor(1s, firstStart + 3.0);
  EXPECT_NE(model.text(Document::positions),
            QString::fromStdString(documents::textOf(Document::positions, model.observer())));
  time.pause();
  letEverythingBeCalculated();
  EXPECT_TRUE(showsTheStarMapOf(firstStart + 3.0));
}

TEST_F(LiveTimeTest, StopsAtTheFirstMoment) {
  model.setYear(1);
  model.setHour(1.0);
  turnOn();
  int ends = 0;
  QObject::connect(&time, &LiveTime::endReached, &time, [&] { ++ends; });
  time.setStep(TimeStep::day);
  time.stepBy(-1);
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(model.hour(), 1.0);  // no whole day before it

  time.setStep(TimeStep::hour);
  time.play(Motion::backward);
  playFor(100s, -0.5);
  EXPECT_EQ(time.motion(), Motion::resting);
  EXPECT_EQ(ends, 2);
  letEverythingBeCalculated();
  EXPECT_EQ(model.dateLabel(), QStringLiteral("001-01-01 00:00 OST"));
  EXPECT_EQ(model.errorMessage(), std::nullopt);
  time.stepBy(1);
  EXPECT_EQ(model.hour(), 1.0);
}

TEST_F(LiveTimeTest, StopsAtTheLastMoment) {
  model.setYear(2'777'778);  // the last in which there is a moment within a billion days
  turnOn();
  int ends = 0;
  QObject::connect(&time, &LiveTime::endReached, &time, [&] { ++ends; });
  time.setStep(TimeStep::month);
  time.play(Motion::forward);
  clock += 1000s;
  EXPECT_TRUE(waitFor([&] { return time.motion() == Motion::resting; }));
  EXPECT_EQ(ends, 1);
  letEverythingBeCalculated();
  EXPECT_EQ(model.errorMessage(), std::nullopt);
  EXPECT_GT(model.baseTime(), 1e9 - 30.0);
  EXPECT_LE(model.baseTime(), 1e9);
}

TEST_F(LiveTimeTest, StepsFromBeyondTheEndsLeadNowhere) {
  model.setYear(-5);
  turnOn();
  const double before = model.baseTime();
  time.stepBy(-1);
  EXPECT_EQ(model.baseTime(), before);
}

TEST_F(LiveTimeTest, GoesBackToWhereItBegan) {
  turnOn();
  time.stepBy(3);
  time.play(Motion::forward);
  playFor(1s, firstStart + 3.0 / 24.0 + 1.0 / 24.0);
  EXPECT_EQ(time.beginning(), firstStart);
  time.goBack();
  EXPECT_EQ(time.motion(), Motion::resting);
  EXPECT_EQ(model.baseTime(), firstStart);
  letEverythingBeCalculated();

  model.setHour(20.0);  // the person's own hand makes another beginning; another place does not
  time.stepBy(1);
  model.setManualLatDeg(3.0);
  tests::turnEventLoop();
  time.goBack();
  EXPECT_EQ(model.hour(), 20.0);
}

TEST_F(LiveTimeTest, KeepsThePlacesOwnHourInLocalTime) {
  model.setUseLocalTime(true);
  turnOn();
  time.setStep(TimeStep::day);
  time.stepBy(30);
  // A day later the sun stands nearly where it stood.
  EXPECT_NEAR(model.hour(), 12.0, 0.25);
  const double hour = model.hour();
  model.setManualLongDeg(50.0);
  tests::turnEventLoop();
  EXPECT_EQ(model.hour(), hour);
  EXPECT_TRUE(showsTheStarMapOf(model.baseTime()));
}

TEST_F(LiveTimeTest, AChangeWhileACalculationRunsIsShownAfterIt) {
  turnOn();
  model.recalculate();
  time.stepBy(1);
  EXPECT_EQ(shownMoment(), firstStart);
  tasks.runNext();
  tests::turnEventLoop();
  EXPECT_EQ(shownMoment(), firstStart + 1.0 / 24.0);
  letEverythingBeCalculated();
  EXPECT_EQ(shownMoment(), model.baseTime());
}

TEST_F(LiveTimeTest, ARestWhileACalculationRunsComesAfterIt) {
  turnOn();
  time.play(Motion::forward);
  clock += 2s;
  EXPECT_TRUE(waitFor([&] { return shownMoment() > firstStart; }));
  model.recalculate();
  model.setHour(20.0);
  time.pause();
  letEverythingBeCalculated();
  EXPECT_EQ(shownMoment(), model.baseTime());
  EXPECT_EQ(model.hour(), 20.0);
}

TEST_F(LiveTimeTest, StoresTheMomentWhenItStopsAndOnceASecondAtMost) {
  turnOn();
  settings->groups.clear();
  const auto begin = std::chrono::steady_clock::now();
  time.play(Motion::forward);
  for (int i = 1; i <= 30; ++i) {
    playFor(250ms, firstStart + i * 0.25 / 24.0);  // a quarter of an hour: another input
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_LE(settings->groups.size(),
            static_cast<std::size_t>((std::chrono::steady_clock::now() - begin) / 1s));
  EXPECT_TRUE(waitFor([&] { return !settings->groups.empty(); }));
  time.pause();
  EXPECT_EQ(settings->values.value(QStringLiteral("AstronomyModel.hour")), model.hour());
}

TEST_F(LiveTimeTest, WhatIsTurnedOffWhilePlayingRestsAndIsStored) {
  turnOn();
  time.setStep(TimeStep::day);
  time.play(Motion::forward);
  playFor(2s, firstStart + 2.0);
  time.setOn(false);
  EXPECT_EQ(time.motion(), Motion::resting);
  EXPECT_EQ(settings->values.value(QStringLiteral("AstronomyModel.dayIndex")), 2);
  letEverythingBeCalculated();
  EXPECT_EQ(shownMoment(), firstStart + 2.0);
  settings->groups.clear();
  model.setHour(3.0);
  EXPECT_EQ(settings->groups.size(), 1U);
}

TEST_F(LiveTimeTest, APlaceThatIsOnNoGlobeIsSaidAndNothingIsDrawn) {
  turnOn();
  model.setManualLatDeg(1e9);
  tests::turnEventLoop();
  EXPECT_EQ(model.errorMessage(), QStringLiteral("This place is not on the globe."));
  EXPECT_EQ(shownMoment(), firstStart);
  model.setManualLatDeg(10.0);
  tests::turnEventLoop();
  EXPECT_EQ(model.errorMessage(), std::nullopt);
}

using LiveTimeDeath = LiveTimeTest;

TEST_F(LiveTimeDeath, ASpeedIsAboveNothing) {
  EXPECT_STOP(time.setSpeed(0.0), "time is played at a speed");
  EXPECT_STOP(time.setSpeed(std::numeric_limits<double>::quiet_NaN()), "time is played at a speed");
}

}  // namespace
}  // namespace veyruna
