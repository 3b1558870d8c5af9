// The observer's place and moment as the model takes them from its fields.
#include <QMetaProperty>
#include <charconv>
#include <gtest/gtest.h>

#include "astro/calendar.h"
#include "tests/model/fakes.h"
#include "tests/support/reference_case.h"

namespace veyruna {
namespace {

using model::AstronomyModel;
using model::CityPreset;
using model::manualCityID;
using tests::FakeModel;
using namespace Qt::StringLiterals;

const CityPreset& namedPlace(const AstronomyModel& model, const QString& name) {
  const auto found = std::find_if(model.cities().begin(), model.cities().end(),
                                  [&name](const CityPreset& place) { return place.name == name; });
  if (found == model.cities().end()) {
    throw std::runtime_error("no such place: " + name.toStdString());
  }
  return *found;
}

TEST(Model, FieldsAreInTheirOrder) {
  const QStringList expected = {u"cities"_s,
                                u"months"_s,
                                u"selectedCityID"_s,
                                u"manualLatDeg"_s,
                                u"manualLongDeg"_s,
                                u"latNorth"_s,
                                u"longWest"_s,
                                u"monthIndex"_s,
                                u"dayIndex"_s,
                                u"year"_s,
                                u"hour"_s,
                                u"useLocalTime"_s,
                                u"starMapSVG"_s,
                                u"horoscopeSVG"_s,
                                u"basicTableHourly"_s,
                                u"basicTableMonthly"_s,
                                u"conjunctionDaily"_s,
                                u"conjunctionYearly"_s,
                                u"positions"_s,
                                u"dateLabel"_s,
                                u"nextFullMoonLabel"_s,
                                u"nextNewMoonLabel"_s,
                                u"isCalculating"_s,
                                u"errorMessage"_s,
                                u"horoscopeBlackAndWhite"_s,
                                u"lastHoroscopeBasetime"_s,
                                u"lastHoroscopeLatitude"_s,
                                u"lastHoroscopeLongitude"_s};
  const QMetaObject& meta = AstronomyModel::staticMetaObject;
  QStringList names;
  for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
    const QMetaProperty field = meta.property(i);
    names.append(QString::fromLatin1(field.name()));
    EXPECT_TRUE(field.hasNotifySignal() || field.isConstant()) << field.name();
  }
  EXPECT_EQ(names, expected);
}

TEST(Model, StartsWithEveryOutputEmpty) {
  const FakeModel world;
  const AstronomyModel& model = world.model;
  for (const QString& text :
       {model.starMapSVG(), model.horoscopeSVG(), model.basicTableHourly(),
        model.basicTableMonthly(), model.conjunctionDaily(), model.conjunctionYearly(),
        model.dateLabel(), model.nextFullMoonLabel(), model.nextNewMoonLabel()}) {
    EXPECT_EQ(text, QString());
  }
  EXPECT_TRUE(model.positions().isEmpty());
  EXPECT_FALSE(model.isCalculating());
  EXPECT_EQ(model.errorMessage(), std::nullopt);
  EXPECT_FALSE(model.horoscopeBlackAndWhite());
  EXPECT_EQ(model.lastHoroscopeBasetime(), std::nullopt);
  EXPECT_EQ(model.lastHoroscopeLatitude(), 0.0);
  EXPECT_EQ(model.lastHoroscopeLongitude(), 0.0);
  EXPECT_EQ(model.months(), (QStringList{u"Brenwic"_s, u"Tolma"_s, u"Dovri"_s, u"Ambro"_s,
                                         u"Fiskel"_s, u"Ulvenhar"_s, u"Cendo"_s, u"Virela"_s,
                                         u"Grend"_s, u"Oskam"_s, u"Rulig"_s, u"Thaven"_s}));
}

TEST(Model, AFirstStartStandsAtTheFirstPlaceAtNoon) {
  const FakeModel world;
  EXPECT_EQ(world.model.effectiveLatitude(), 0.7068583470577035);
  EXPECT_EQ(world.model.effectiveLongitude(), -0.3647738136668149);
  EXPECT_EQ(world.model.baseTime(), 719.0 * 360.0);
}

TEST(Model, ManualFieldsAreMagnitudesWithTheirSide) {
  FakeModel world;
  world.model.setManualLatDeg(90.0);
  world.model.setManualLongDeg(180.0);
  EXPECT_EQ(world.model.effectiveLatitude(), 1.5707963267948966);
  EXPECT_EQ(world.model.effectiveLongitude(), -3.141592653589793);
  world.model.setLatNorth(false);
  world.model.setLongWest(false);
  EXPECT_EQ(world.model.effectiveLatitude(), -1.5707963267948966);
  EXPECT_EQ(world.model.effectiveLongitude(), 3.141592653589793);
  world.model.setManualLatDeg(-33.125);
  EXPECT_EQ(world.model.effectiveLatitude(), 33.125 * 3.141592653589793 / 180.0);
}

TEST(Model, ASavedPlaceStandsWhereItWasSaved) {
  FakeModel world;
  world.model.setSelectedCityID(namedPlace(world.model, u"Vossenfel"_s).id);
  EXPECT_EQ(world.model.effectiveLatitude(), 11.5 * 3.141592653589793 / 180.0);
  EXPECT_EQ(world.model.effectiveLongitude(), 25.3 * 3.141592653589793 / 180.0);
  world.model.setManualLatDeg(1.0);
  world.model.setLatNorth(false);
  world.model.setLongWest(true);
  EXPECT_EQ(world.model.effectiveLatitude(), 11.5 * 3.141592653589793 / 180.0);
  EXPECT_EQ(world.model.effectiveLongitude(), 25.3 * 3.141592653589793 / 180.0);
}

TEST(Model, APlaceThatIsGoneLeavesTheObserverAtTheOrigin) {
  FakeModel world;
  world.model.setSelectedCityID(QUuid(u"12345678-1234-1234-1234-123456789ABC"_s));
  EXPECT_EQ(world.model.effectiveLatitude(), 0.0);
  EXPECT_EQ(world.model.effectiveLongitude(), 0.0);
  EXPECT_EQ(world.model.manualLatDeg(), 40.5);
}

TEST(Model, YearsBeforeTheFirstContinueTheSum) {
  FakeModel world;
  world.model.setYear(1);
  EXPECT_EQ(world.model.baseTime(), 0.0);
  world.model.setYear(0);
  EXPECT_EQ(world.model.baseTime(), -360.0);
  world.model.setYear(-5);
  world.model.setMonthIndex(13);
  world.model.setDayIndex(-31);
  world.model.setHour(6.0);
  EXPECT_EQ(world.model.baseTime(), -6.0 * 360.0 + 13.0 * 30.0 - 31.0 - 0.25);
}

double referenceBaseTime(const tests::ReferenceCase& at) {
  const std::string text = at.expected("base-time.txt");
  double baseTime = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), baseTime);
  return baseTime;
}

void enter(AstronomyModel& model, const tests::ReferenceCase& at) {
  const auto degrees = [](double radians) { return std::abs(radians) * 180.0 / 3.141592653589793; };
  model.setYear(at.year);
  model.setMonthIndex(at.monthIndex);
  model.setDayIndex(at.dayIndex);
  model.setHour(at.hour);
  model.setUseLocalTime(at.useLocalTime);
  model.setManualLatDeg(std::round(degrees(at.latitude) * 1000.0) / 1000.0);
  model.setManualLongDeg(std::round(degrees(at.longitude) * 1000.0) / 1000.0);
  model.setLatNorth(at.latitude >= 0.0);
  model.setLongWest(at.longitude < 0.0);
}

TEST(Model, BaseTimesAreThoseOfTheReferences) {
  FakeModel world;
  for (const tests::ReferenceCase& at : tests::referenceCases()) {
    enter(world.model, at);
    EXPECT_EQ(world.model.baseTime(), referenceBaseTime(at)) << at.folder;
  }
}

TEST(Model, LocalTimeIsThatOfTheSavedPlace) {
  FakeModel world;
  const tests::ReferenceCase& at = tests::referenceCases()[1];  // at Vossenfel's longitude
  enter(world.model, at);
  world.model.setManualLongDeg(120.0);
  const double elsewhere = world.model.baseTime();
  world.model.setSelectedCityID(namedPlace(world.model, u"Vossenfel"_s).id);
  EXPECT_EQ(world.model.baseTime(), referenceBaseTime(at));
  EXPECT_NE(world.model.baseTime(), elsewhere);
}

TEST(Model, ASavedPlaceKeepsTheManualFieldsUnderAName) {
  FakeModel world;
  world.model.setSelectedCityID(namedPlace(world.model, u"Ebb"_s).id);
  world.model.setManualLatDeg(33.125);
  world.model.setLatNorth(false);
  world.model.setManualLongDeg(20.9);
  const auto outcome = world.model.addCity(u"  Far Cove \n"_s);
  ASSERT_TRUE(std::holds_alternative<QUuid>(outcome));
  const CityPreset& saved = namedPlace(world.model, u"Far Cove"_s);
  EXPECT_EQ(saved.id, std::get<QUuid>(outcome));
  EXPECT_EQ(saved.latitude, -(33.125 * 3.141592653589793 / 180.0));
  EXPECT_EQ(saved.longitude, -0.3647738136668149);
  EXPECT_NE(world.model.selectedCityID(), saved.id);
}

TEST(Model, DeletingTheSelectedPlaceSelectsManual) {
  FakeModel world;
  const QUuid ebb = namedPlace(world.model, u"Ebb"_s).id;
  world.model.setSelectedCityID(ebb);
  world.model.setManualLatDeg(12.5);
  world.model.deleteCity(ebb);
  EXPECT_EQ(world.model.selectedCityID(), manualCityID());
  EXPECT_EQ(world.model.manualLatDeg(), 12.5);
  EXPECT_EQ(world.model.manualLongDeg(), 20.9);
  EXPECT_EQ(world.model.cities().size(), 13);
  EXPECT_EQ(world.settings->stored(u"AstronomyModel.selectedCityID"_s).toString(),
            u"00000000-0000-0000-0000-000000000001"_s);
}

TEST(Model, DeletingAnotherPlaceKeepsTheSelection) {
  FakeModel world;
  const QUuid ebb = namedPlace(world.model, u"Ebb"_s).id;
  world.model.setSelectedCityID(ebb);
  world.model.deleteCity(namedPlace(world.model, u"Kessa"_s).id);
  EXPECT_EQ(world.model.selectedCityID(), ebb);
  world.model.deleteCity(manualCityID());
  EXPECT_EQ(world.model.selectedCityID(), ebb);
  EXPECT_EQ(world.model.cities().front().id, manualCityID());
}

}  // namespace
}  // namespace veyruna
