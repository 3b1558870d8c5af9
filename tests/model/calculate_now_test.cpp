// A few documents computed at once, on the caller's thread: what is published, and what is not.
#include <gtest/gtest.h>

#include "documents/documents.h"
#include "tests/model/change_log.h"
#include "tests/model/fakes.h"

namespace veyruna {
namespace {

using documents::Document;
using model::AstronomyModel;
using tests::ChangeLog;
using tests::FakeModel;
using Names = tests::ChangeLog::Names;

QString written(Document document, const astro::Observer& observer) {
  return QString::fromStdString(documents::textOf(document, observer));
}

TEST(CalculateNow, PublishesWhatIsAskedForAndTheMomentItBelongsTo) {
  FakeModel world;
  AstronomyModel& model = world.model;
  ChangeLog log(model);
  int publications = 0;
  QObject::connect(&model, &AstronomyModel::published, &model, [&] { ++publications; });

  EXPECT_TRUE(model.calculateNow(1000.25, {Document::starMap, Document::date}));
  EXPECT_EQ(log.taken(), (Names{"starMapSVG", "lastHoroscopeBasetime", "lastHoroscopeLatitude",
                                "lastHoroscopeLongitude", "dateLabel"}));
  EXPECT_EQ(publications, 1);
  EXPECT_EQ(world.tasks.count(), 0U);
  EXPECT_EQ(model.starMapSVG(), written(Document::starMap, model.observer().at(1000.25)));
  EXPECT_EQ(model.dateLabel(), QStringLiteral("003-10-11 18:00 OST"));
  EXPECT_EQ(model.lastHoroscopeBasetime(), 1000.25);
  EXPECT_EQ(model.horoscopeSVG(), QString());
  EXPECT_TRUE(model.positions().isEmpty());
  EXPECT_FALSE(model.nextFullMoonBaseTime());
}

TEST(CalculateNow, TakesPositionsAndMoonsToo) {
  FakeModel world;
  AstronomyModel& model = world.model;
  ASSERT_TRUE(model.calculateNow(
      1000.25, {Document::positions, Document::nextFullMoon, Document::nextNewMoon}));
  EXPECT_EQ(model.positions().size(), 6);
  EXPECT_EQ(model.text(Document::nextFullMoon),
            written(Document::nextFullMoon, model.observer().at(1000.25)));
  EXPECT_GT(model.nextFullMoonBaseTime(), 1000.25);
  EXPECT_GT(model.nextNewMoonBaseTime(), 1000.25);
}

TEST(CalculateNow, DrawsTheHoroscopeAsTheFlagSays) {
  FakeModel world;
  AstronomyModel& model = world.model;
  model.setHoroscopeBlackAndWhite(true);
  ASSERT_TRUE(model.calculateNow(7.0, {Document::horoscope}));
  EXPECT_EQ(model.horoscopeSVG(), written(Document::horoscopeOnPaper, model.observer().at(7.0)));
}

TEST(CalculateNow, LeavesARunningCalculationAlone) {
  FakeModel world;
  AstronomyModel& model = world.model;
  model.recalculate();
  EXPECT_FALSE(model.calculateNow(7.0, {Document::starMap}));
  EXPECT_EQ(model.starMapSVG(), QString());
  world.tasks.runNext();
  tests::turnEventLoop();
  EXPECT_EQ(model.lastHoroscopeBasetime(), 258840.0);
}

TEST(CalculateNow, SaysWhyItDoesNot) {
  FakeModel world;
  AstronomyModel& model = world.model;
  EXPECT_FALSE(model.calculateNow(2e9, {Document::starMap}));
  EXPECT_EQ(model.errorMessage(), QStringLiteral("This moment is too far away to calculate."));
  EXPECT_EQ(model.starMapSVG(), QString());
  EXPECT_TRUE(model.calculateNow(2e8, {Document::starMap}));
  EXPECT_EQ(model.errorMessage(), std::nullopt);
}

TEST(CalculateNow, InputsSetToAMomentAreThoseOfItsPicture) {
  FakeModel world;
  AstronomyModel& model = world.model;
  const double moment = 1000.0 + 1.0 / 86400.0;  // a second that no input names
  ASSERT_TRUE(model.setMoment(moment));
  ASSERT_TRUE(model.calculateNow(moment, {Document::starMap}));
  EXPECT_NE(model.baseTime(), moment);
  EXPECT_FALSE(model.inputsHaveChanged());
  model.setHour(model.hour());
  EXPECT_TRUE(model.inputsHaveChanged());

  ASSERT_TRUE(model.setMoment(moment));
  EXPECT_FALSE(model.inputsHaveChanged());
  ASSERT_TRUE(model.setMoment(moment + 1.0));
  EXPECT_TRUE(model.inputsHaveChanged());
  ASSERT_TRUE(model.setMoment(moment));
  model.setManualLatDeg(12.0);
  EXPECT_TRUE(model.inputsHaveChanged());
}

}  // namespace
}  // namespace veyruna
