// The list of saved places: names, order, additions and deletions. Nothing here touches a file.
#include <QLocale>
#include <gtest/gtest.h>

#include "model/id_text.h"
#include "model/saved_locations.h"
#include "tests/model/change_log.h"
#include "tests/model/fakes.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::CityPreset;
using model::LocationError;
using model::SavedLocations;
using tests::countingIds;

/// A list of a first start that is kept nowhere.
class Locations : public testing::Test {
 protected:
  Locations() { saved.loadCities(); }

  [[nodiscard]] QStringList names() const {
    QStringList all;
    for (const CityPreset& city : saved.cities()) {
      all << city.name;
    }
    return all;
  }
  QUuid added(const QString& name) { return std::get<QUuid>(saved.add(name, 0.0, 0.0)); }
  LocationError refused(const QString& name) {
    return std::get<LocationError>(saved.add(name, 0.0, 0.0));
  }

  SavedLocations saved{std::nullopt, countingIds()};
};

TEST_F(Locations, AFirstStartKnowsThirteenPlaces) {
  struct Place {
    const char* name;
    double latitude;
    double longitude;
  };
  // Degrees as they stand on the map, north and east positive.
  const std::vector<Place> expected = {
      {"Dravenne", 23.3, 26.7},  {"Ebb", 13.4, 8.8},         {"Hestmoor", 44.4, -12.2},
      {"Istene", 27.4, 3.3},     {"Kessa", 21.0, 5.1},       {"Morvay", 37.7, -16.4},
      {"Paldrick", 34.5, 11.1},  {"Quarrelund", 21.9, 33.9}, {"Sarrow", 31.0, -16.3},
      {"Solvane", 32.1, -4.7},   {"Ulmet", 24.4, -19.7},     {"Vossenfel", 11.5, 25.3},
      {"Wendmark", 40.5, -20.9},
  };
  const QList<CityPreset>& cities = saved.cities();
  ASSERT_EQ(cities.size(), 14);
  EXPECT_EQ(cities.front(), model::manualCity());
  QList<QUuid> ids = {cities.front().id};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const CityPreset& city = cities[static_cast<qsizetype>(i) + 1];
    EXPECT_EQ(city.name.toStdString(), expected[i].name);
    EXPECT_EQ(city.latitude, expected[i].latitude * 3.141592653589793 / 180.0) << expected[i].name;
    EXPECT_EQ(city.longitude, expected[i].longitude * 3.141592653589793 / 180.0)
        << expected[i].name;
    EXPECT_FALSE(ids.contains(city.id));
    ids << city.id;
  }
  EXPECT_EQ(cities.back().longitude, -0.3647738136668149);
}

TEST_F(Locations, ManualIsFixed) {
  const CityPreset& manual = saved.cities().front();
  EXPECT_EQ(model::canonicalText(manual.id), u"00000000-0000-0000-0000-000000000001"_s);
  EXPECT_EQ(manual.name, u"Manual"_s);
  EXPECT_EQ(manual.latitude, 0.0);
  EXPECT_EQ(manual.longitude, 0.0);
  saved.remove(manual.id);
  EXPECT_EQ(saved.cities().size(), 14);
}

TEST_F(Locations, ANameIsTrimmedAndPutInItsPlace) {
  const QUuid id = std::get<QUuid>(saved.add(u" \t Harbour\r\n\u2028"_s, 0.5, -0.25));
  EXPECT_EQ(names().mid(3, 2), (QStringList{u"Harbour"_s, u"Hestmoor"_s}));
  const CityPreset* const harbour = saved.find(id);
  ASSERT_NE(harbour, nullptr);
  EXPECT_EQ(*harbour, (CityPreset{id, u"Harbour"_s, 0.5, -0.25}));
}

TEST_F(Locations, AnExistingNameIsRefusedAsItWasTyped) {
  added(u"Harbour"_s);
  const LocationError error = refused(u"  harbour "_s);
  EXPECT_EQ(error, LocationError::duplicateName(u"harbour"_s));
  EXPECT_EQ(error.duplicate(), u"harbour"_s);
  EXPECT_EQ(error.description(), u"\"harbour\" already exists."_s);
  EXPECT_EQ(saved.cities().size(), 15);
  EXPECT_EQ(refused(u"HARBOUR"_s).description(), u"\"HARBOUR\" already exists."_s);
}

TEST_F(Locations, ManualIsAnExistingName) {
  EXPECT_EQ(refused(u"manual"_s), LocationError::duplicateName(u"manual"_s));
  EXPECT_EQ(refused(u"\nMANUAL\t"_s), LocationError::duplicateName(u"MANUAL"_s));
}

TEST_F(Locations, ANameOfBlanksIsNone) {
  for (const QString& blanks : {u""_s, u"   "_s, u"\n\r\n"_s, u" \t\u00A0\u2029 "_s}) {
    const LocationError error = refused(blanks);
    EXPECT_TRUE(error.isEmptyName());
    EXPECT_EQ(error.description(), u"Please enter a name."_s);
  }
  EXPECT_EQ(saved.cities().size(), 14);
}

TEST_F(Locations, AnAccentMakesAnotherName) {
  added(u"Cote"_s);
  added(u"Coté"_s);
  EXPECT_EQ(refused(u"COTÉ"_s).duplicate(), u"COTÉ"_s);
  // The same letter in two pieces: e and a combining acute.
  EXPECT_EQ(refused(u"cote\u0301"_s).duplicate(), u"cote\u0301"_s);
}

TEST_F(Locations, WhatIsDeletedIsGoneAndItsNameFree) {
  const QUuid first = added(u"Harbour"_s);
  saved.remove(first);
  EXPECT_EQ(saved.find(first), nullptr);
  EXPECT_FALSE(names().contains(u"Harbour"_s));
  saved.remove(first);
  saved.remove(QUuid());
  EXPECT_EQ(saved.cities().size(), 14);
  EXPECT_NE(added(u"Harbour"_s), first);
}

TEST_F(Locations, EveryPlaceMayBeDeleted) {
  while (saved.cities().size() > 1) {
    saved.remove(saved.cities().back().id);
  }
  EXPECT_EQ(names(), QStringList{u"Manual"_s});
  added(u"Alone"_s);
  EXPECT_EQ(names(), (QStringList{u"Manual"_s, u"Alone"_s}));
}

QStringList inOrder(const QStringList& names) {
  QList<CityPreset> places;
  for (const QString& name : names) {
    places.append({QUuid::createUuid(), name, 0.0, 0.0});
  }
  QStringList sorted;
  for (const CityPreset& place : model::withManualFirst(places).mid(1)) {
    sorted << place.name;
  }
  return sorted;
}

TEST(LocationOrder, IgnoresCaseButNotAccents) {
  EXPECT_EQ(inOrder({u"b"_s, u"A"_s, u"C"_s, u"a"_s, u"B"_s}),
            (QStringList{u"A"_s, u"a"_s, u"b"_s, u"B"_s, u"C"_s}));
  // é stands behind every letter of the plain alphabet.
  EXPECT_EQ(inOrder({u"é"_s, u"zebra"_s, u"É"_s, u"e"_s, u"10"_s, u"9"_s}),
            (QStringList{u"10"_s, u"9"_s, u"e"_s, u"zebra"_s, u"é"_s, u"É"_s}));
  EXPECT_EQ(inOrder({u"Abba"_s, u"Ab"_s, u"ab c"_s}), (QStringList{u"Ab"_s, u"ab c"_s, u"Abba"_s}));
}

TEST(LocationOrder, ComparesCanonicalForms) {
  const QString composed = u"caf\u00E9"_s;
  const QString inPieces = u"cafe\u0301"_s;
  const CityPreset a{{}, composed, 0.0, 0.0};
  const CityPreset b{{}, inPieces, 0.0, 0.0};
  EXPECT_FALSE(a < b);
  EXPECT_FALSE(b < a);
  EXPECT_EQ(inOrder({inPieces, u"caff"_s, composed}), (QStringList{u"caff"_s, inPieces, composed}));
  // Ångström sign and the letter are one.
  EXPECT_EQ(inOrder({u"\u212Bb"_s, u"Åa"_s}), (QStringList{u"Åa"_s, u"\u212Bb"_s}));
}

TEST(LocationOrder, ComparesCodePoints) {
  // As 16-bit units the first would come before the second.
  EXPECT_EQ(inOrder({u"\U0001F71C mine"_s, u"\uFF41 mine"_s}),
            (QStringList{u"\uFF41 mine"_s, u"\U0001F71C mine"_s}));
}

TEST(LocationOrder, EqualNamesKeepTheirOrder) {
  QList<CityPreset> places;
  for (int i = 0; i < 40; ++i) {
    places.append({QUuid::createUuid(), i % 2 == 0 ? u"Twin"_s : u"tWIN"_s, 0.01 * i, 0.0});
  }
  const QList<CityPreset> sorted = model::withManualFirst(places).mid(1);
  EXPECT_EQ(sorted, places);
}

TEST(LocationOrder, FollowsTheLanguageOfTheUser) {
  const QLocale before;
  // Turkish has a dotless ı, behind every ASCII letter, and I is its capital.
  QLocale::setDefault(QLocale(QLocale::English));
  EXPECT_EQ(inOrder({u"Iz"_s, u"Ja"_s}), (QStringList{u"Iz"_s, u"Ja"_s}));
  QLocale::setDefault(QLocale(QLocale::Turkish));
  const QStringList turkish = inOrder({u"Iz"_s, u"Ja"_s});
  QLocale::setDefault(before);
  EXPECT_EQ(turkish, (QStringList{u"Ja"_s, u"Iz"_s}));
}

TEST(LocationSignals, TheListSignalsOnlyAChange) {
  tests::FakeModel world;
  tests::ChangeLog log(world.model);
  using Names = tests::ChangeLog::Names;
  const QUuid id = std::get<QUuid>(world.model.addCity(u"Harbour"_s));
  EXPECT_EQ(log.taken(), Names{"cities"});
  world.model.addCity(u"harbour"_s);
  world.model.addCity(u" "_s);
  world.model.deleteCity(model::manualCityID());
  world.model.deleteCity(QUuid::createUuid());
  EXPECT_EQ(log.taken(), Names{});
  world.model.setSelectedCityID(id);
  log.taken();
  world.model.deleteCity(id);
  EXPECT_EQ(log.taken(), (Names{"cities", "selectedCityID"}));
}

/// Degrees that overflow as radians are kept as the last number there is, so that the list stays a
/// list of numbers.
TEST(LocationSignals, ADegreeBeyondEveryGlobeIsStillANumber) {
  tests::FakeModel world;
  world.model.setManualLatDeg(1.7e308);
  world.model.setManualLongDeg(1.7e308);
  const QUuid id = std::get<QUuid>(world.model.addCity(u"Nowhere"_s));
  world.model.setSelectedCityID(id);
  EXPECT_TRUE(std::isfinite(world.model.effectiveLatitude()));
  EXPECT_TRUE(std::isfinite(world.model.effectiveLongitude()));
  EXPECT_LT(world.model.effectiveLongitude(), 0.0);
}

}  // namespace
}  // namespace veyruna
