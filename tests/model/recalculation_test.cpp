// One calculation: what it asks for, in which order it publishes, and what it leaves alone.
#include <gtest/gtest.h>

#include "charts/horoscope.h"
#include "tests/model/change_log.h"
#include "tests/model/fakes.h"

namespace veyruna {
namespace {

using model::AstronomyModel;
using tests::ChangeLog;
using tests::FakeModel;
using Names = tests::ChangeLog::Names;

std::string horoscopeOf(bool blackAndWhite, const AstronomyModel& model) {
  return charts::horoscope(blackAndWhite, model.observer(), charts::builtInCatalogue());
}

TEST(Recalculation, TheLogHearsEverySignal) {
  const QMetaObject& meta = AstronomyModel::staticMetaObject;
  std::size_t signalCount = 0;
  for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
    signalCount += meta.method(i).methodType() == QMetaMethod::Signal ? 1U : 0U;
  }
  // and textChanged, which says of which, and published
  EXPECT_EQ(ChangeLog::count() + 2, signalCount);
}

TEST(Recalculation, PublishesInOrder) {
  FakeModel world;
  ChangeLog log(world.model);
  world.model.recalculate();
  EXPECT_EQ(log.taken(), Names{"isCalculating"});
  EXPECT_TRUE(world.model.isCalculating());

  world.tasks.runNext();
  EXPECT_EQ(log.taken(), Names{});
  EXPECT_EQ(world.model.starMapSVG(), QString());

  tests::turnEventLoop();
  EXPECT_EQ(log.taken(),
            (Names{"starMapSVG", "horoscopeSVG", "lastHoroscopeBasetime", "lastHoroscopeLatitude",
                   "lastHoroscopeLongitude", "basicTableHourly", "basicTableMonthly",
                   "conjunctionDaily", "conjunctionYearly", "positions", "dateLabel",
                   "nextFullMoonLabel", "nextNewMoonLabel", "isCalculating"}));
  EXPECT_FALSE(world.model.isCalculating());
  EXPECT_EQ(world.model.lastHoroscopeBasetime(), 258840.0);
  EXPECT_EQ(world.model.lastHoroscopeLatitude(), 0.7068583470577035);
  EXPECT_EQ(world.model.lastHoroscopeLongitude(), -0.3647738136668149);
}

TEST(Recalculation, EveryFieldIsAssignedWhenItsSignalComes) {
  FakeModel world;
  AstronomyModel& model = world.model;
  int seen = 0;
  QObject::connect(&model, &AstronomyModel::starMapSVGChanged, &model, [&] {
    seen += model.starMapSVG().isEmpty() || !model.horoscopeSVG().isEmpty() ? 0 : 1;
  });
  QObject::connect(&model, &AstronomyModel::nextNewMoonLabelChanged, &model,
                   [&] { seen += model.isCalculating() && model.positions().size() == 6 ? 1 : 0; });
  world.calculate();
  EXPECT_EQ(seen, 2);
}

TEST(Recalculation, SignalsOnlyWhatChanged) {
  FakeModel world;
  world.calculate();
  ChangeLog log(world.model);
  world.calculate();
  EXPECT_EQ(log.taken(), (Names{"isCalculating", "positions", "isCalculating"}));

  // In standard time a longitude moves the sky, but neither the tables nor the date.
  world.model.setManualLongDeg(60.0);
  log.taken();
  world.calculate();
  EXPECT_EQ(log.taken(),
            (Names{"isCalculating", "starMapSVG", "horoscopeSVG", "lastHoroscopeLongitude",
                   "positions", "nextFullMoonLabel", "nextNewMoonLabel", "isCalculating"}));

  world.model.setHoroscopeBlackAndWhite(true);
  log.taken();
  world.calculate();
  EXPECT_EQ(log.taken(), (Names{"isCalculating", "horoscopeSVG", "positions", "isCalculating"}));
}

TEST(Recalculation, PositionsAlwaysGetFreshIds) {
  FakeModel world;
  world.calculate();
  const QList<model::BodyPosition> first = world.model.positions();
  world.calculate();
  const QList<model::BodyPosition>& second = world.model.positions();
  ASSERT_EQ(first.size(), 6);
  ASSERT_EQ(second.size(), 6);
  QList<QUuid> ids;
  for (int row = 0; row < 6; ++row) {
    ids << first[row].id << second[row].id;
    EXPECT_EQ(first[row].azimuth, second[row].azimuth);
  }
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end());
}

/// A field that is still being typed into can hand in its value.
TEST(Recalculation, SaysThatItBeginsBeforeItReadsTheInputs) {
  FakeModel world;
  AstronomyModel& model = world.model;
  const auto handIn = [&model] {
    model.setManualLatDeg(12.5);
    model.setYear(3);
    model.setHoroscopeBlackAndWhite(true);
  };
  const auto once = QObject::connect(&model, &AstronomyModel::isCalculatingChanged, &model, handIn);
  model.recalculate();
  QObject::disconnect(once);
  model.setYear(4);
  world.tasks.runNext();
  tests::turnEventLoop();
  EXPECT_EQ(model.dateLabel(), QStringLiteral("003-01-01 12:00 OST"));
  EXPECT_EQ(model.lastHoroscopeLatitude(), model.effectiveLatitude());
  model.setYear(3);
  EXPECT_EQ(model.horoscopeSVG().toStdString(), horoscopeOf(true, model));
}

TEST(Recalculation, ASecondRequestIsDropped) {
  FakeModel world;
  ChangeLog log(world.model);
  world.model.recalculate();
  world.model.setYear(3);
  world.model.recalculate();
  EXPECT_EQ(world.tasks.count(), 1U);
  world.tasks.runNext();
  world.model.recalculate();  // computed, but not yet published
  EXPECT_EQ(world.tasks.count(), 0U);
  tests::turnEventLoop();
  EXPECT_EQ(world.tasks.count(), 0U);
  EXPECT_EQ(world.model.lastHoroscopeBasetime(), 258840.0);
  EXPECT_EQ(world.model.dateLabel(), QStringLiteral("720-01-01 12:00 OST"));
  const Names names = log.taken();
  EXPECT_EQ(std::count(names.begin(), names.end(), "isCalculating"), 2);

  world.calculate();
  EXPECT_EQ(world.model.dateLabel(), QStringLiteral("003-01-01 12:00 OST"));
}

TEST(Recalculation, SettersAndPlacesNeverCalculate) {
  FakeModel world;
  world.model.setYear(5);
  world.model.setHour(3.0);
  world.model.setUseLocalTime(true);
  world.model.setManualLatDeg(3.0);
  world.model.setLatNorth(false);
  world.model.setHoroscopeBlackAndWhite(true);
  world.model.setSelectedCityID(std::get<QUuid>(world.model.addCity(QStringLiteral("Here"))));
  world.model.deleteCity(world.model.selectedCityID());
  tests::turnEventLoop();
  EXPECT_EQ(world.tasks.count(), 0U);
  EXPECT_FALSE(world.model.isCalculating());
}

TEST(Recalculation, TheFlagBeforeTheFirstCalculationDrawsNothing) {
  FakeModel world;
  world.model.setHoroscopeBlackAndWhite(true);
  world.model.regenerateHoroscope();
  EXPECT_EQ(world.model.horoscopeSVG(), QString());
  world.model.recalculate();
  world.model.setHoroscopeBlackAndWhite(false);
  world.model.regenerateHoroscope();
  EXPECT_EQ(world.model.horoscopeSVG(), QString());
}

TEST(Recalculation, TheFlagRedrawsThePlaceOfTheLastCalculation) {
  FakeModel world;
  world.calculate();
  const std::string then = horoscopeOf(true, world.model);
  world.model.setManualLatDeg(10.0);
  world.model.setYear(3);
  ASSERT_NE(horoscopeOf(true, world.model), then);
  world.model.setHoroscopeBlackAndWhite(true);
  ChangeLog log(world.model);
  world.model.regenerateHoroscope();
  EXPECT_EQ(world.model.horoscopeSVG().toStdString(), then);
  EXPECT_EQ(log.taken(), Names{"horoscopeSVG"});
  world.model.regenerateHoroscope();
  EXPECT_EQ(log.taken(), Names{});
  EXPECT_EQ(world.tasks.count(), 0U);
}

TEST(Recalculation, AFlagFlippedMeanwhileIsDrawnAfterwards) {
  FakeModel world;
  ChangeLog log(world.model);
  world.model.recalculate();
  world.model.setHoroscopeBlackAndWhite(true);
  world.model.regenerateHoroscope();
  world.tasks.runNext();
  log.taken();
  tests::turnEventLoop();
  const Names names = log.taken();
  ASSERT_GE(names.size(), 2U);
  EXPECT_EQ(names[names.size() - 2], "isCalculating");
  EXPECT_EQ(names.back(), "horoscopeSVG");
  EXPECT_EQ(std::count(names.begin(), names.end(), "horoscopeSVG"), 2);
  EXPECT_EQ(world.model.horoscopeSVG().toStdString(), horoscopeOf(true, world.model));

  // Flipped there and back again: nothing is left to draw.
  world.model.setManualLatDeg(1.0);
  world.model.recalculate();
  world.model.setHoroscopeBlackAndWhite(false);
  world.model.setHoroscopeBlackAndWhite(true);
  log.taken();
  world.tasks.runNext();
  tests::turnEventLoop();
  EXPECT_EQ(log.taken().back(), "isCalculating");
  EXPECT_EQ(world.model.horoscopeSVG().toStdString(), horoscopeOf(true, world.model));
}

TEST(Recalculation, ANewRequestMayComeWithTheLastSignal) {
  FakeModel world;
  QObject::connect(&world.model, &AstronomyModel::isCalculatingChanged, &world.model, [&world] {
    if (!world.model.isCalculating() && world.model.year() != 3) {
      world.model.setYear(3);
      world.model.recalculate();
    }
  });
  world.calculate();
  EXPECT_TRUE(world.model.isCalculating());
  ASSERT_EQ(world.tasks.count(), 1U);
  world.tasks.runNext();
  tests::turnEventLoop();
  EXPECT_EQ(world.model.dateLabel(), QStringLiteral("003-01-01 12:00 OST"));
}

TEST(Recalculation, AModelThatIsGoneIsNotPublishedTo) {
  tests::FakeWorld world;
  auto model = std::make_unique<AstronomyModel>(world.surroundings());
  model->recalculate();
  model.reset();
  world.tasks.runNext();
  tests::turnEventLoop();

  model = std::make_unique<AstronomyModel>(world.surroundings());
  model->recalculate();
  world.tasks.runNext();
  model.reset();
  tests::turnEventLoop();
  EXPECT_EQ(world.tasks.count(), 0U);
}

}  // namespace
}  // namespace veyruna
