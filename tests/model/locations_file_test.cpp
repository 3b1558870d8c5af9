// The file of saved places: when it is written, and what happens to one that cannot be read.
#include <gtest/gtest.h>

#include "tests/model/fakes.h"
#include "tests/model/locations_fixture.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::CityPreset;
using model::SavedLocations;
using tests::bytesIn;
using tests::countingIds;
using tests::writeBytes;
using LocationsFileTest = tests::LocationsFileTest;

const QByteArray emptyList = "[\n]\n";
const QByteArray garbage = "[{\"id\": \"not quite a list";

TEST_F(LocationsFileTest, AFirstStartWritesTheThirteenPlacesAtOnce) {
  path = folder / u"some/where/VeyrunaAstro/locations.json"_s;
  const SavedLocations saved = started();
  const auto written = model::placesIn(bytesIn(path));
  ASSERT_TRUE(written);
  EXPECT_EQ(written->size(), 13);
  EXPECT_EQ(*written, saved.cities().mid(1));
  EXPECT_EQ(bytesIn(path), model::locationsText(saved.cities().mid(1)));
  EXPECT_FALSE(bytesIn(path).contains("Manual"));
  EXPECT_EQ(besides(), QStringList());
  EXPECT_EQ(started().cities(), saved.cities());
}

TEST_F(LocationsFileTest, AnEmptyListStaysEmpty) {
  writeBytes(path, "[]");
  EXPECT_EQ(names(started().cities()), QStringList{u"Manual"_s});
  EXPECT_EQ(bytesIn(path), "[]");
}

TEST_F(LocationsFileTest, ReadingSortsAndWritesNothing) {
  const QByteArray text = model::locationsText({{QUuid::createUuid(), u"zeal"_s, 0.1, 0.2},
                                                {QUuid::createUuid(), u"Ash"_s, 0.3, 0.4}}) +
                          "\n\n";
  writeBytes(path, text);
  EXPECT_EQ(names(started().cities()), (QStringList{u"Manual"_s, u"Ash"_s, u"zeal"_s}));
  EXPECT_EQ(bytesIn(path), text);
}

TEST_F(LocationsFileTest, ChangesAreOnDiskAtOnce) {
  keepTwo();
  SavedLocations saved = started();
  const QUuid id = add(saved, u"Dune"_s);
  EXPECT_EQ(namesInFile(), (QStringList{u"Dune"_s, u"Ebb"_s, u"Flow"_s}));
  EXPECT_EQ(*started().find(id), (CityPreset{id, u"Dune"_s, 0.25, -0.5}));
  saved.remove(id);
  EXPECT_EQ(namesInFile(), (QStringList{u"Ebb"_s, u"Flow"_s}));
  while (saved.cities().size() > 1) {
    saved.remove(saved.cities().back().id);
  }
  EXPECT_EQ(bytesIn(path), emptyList);
  EXPECT_EQ(started().cities().size(), 1);
  EXPECT_EQ(besides(), QStringList());
}

TEST_F(LocationsFileTest, WhatCannotBeReadIsKeptBesideAndNumbered) {
  const QByteArrayList kept = {garbage, "", "{}", "\xFF\xFE"};
  for (const QByteArray& bytes : kept) {
    writeBytes(path, bytes);
    EXPECT_EQ(started().cities().size(), 14);
    EXPECT_EQ(namesInFile().size(), 13);
  }
  EXPECT_EQ(besides(),
            (QStringList{u"locations.unreadable-2.json"_s, u"locations.unreadable-3.json"_s,
                         u"locations.unreadable-4.json"_s, u"locations.unreadable.json"_s}));
  EXPECT_EQ(bytesIn(folder / u"locations.unreadable.json"_s), kept[0]);
  EXPECT_EQ(bytesIn(folder / u"locations.unreadable-2.json"_s), kept[1]);
  EXPECT_EQ(bytesIn(folder / u"locations.unreadable-3.json"_s), kept[2]);
  EXPECT_EQ(bytesIn(folder / u"locations.unreadable-4.json"_s), kept[3]);
}

TEST_F(LocationsFileTest, WhatIsGarbledMeanwhileIsKeptBesideToo) {
  keepTwo();
  SavedLocations saved = started();
  writeBytes(path, garbage);
  add(saved, u"Dune"_s);
  EXPECT_EQ(bytesIn(folder / u"locations.unreadable.json"_s), garbage);
  EXPECT_EQ(namesInFile(), (QStringList{u"Dune"_s, u"Ebb"_s, u"Flow"_s}));
}

/// The list a person emptied stays empty, also where the file was lost or garbled meanwhile.
TEST_F(LocationsFileTest, TheLastPlaceIsDeletedFromALostFile) {
  writeBytes(path, model::locationsText({{QUuid::createUuid(), u"Ebb"_s, 0.1, 0.2}}));
  SavedLocations saved = started();
  QFile::remove(path);
  saved.remove(saved.cities().back().id);
  ASSERT_EQ(saved.cities().size(), 1);
  EXPECT_EQ(names(started().cities()), QStringList{u"Manual"_s});
}

TEST_F(LocationsFileTest, TheLastPlaceIsDeletedFromAGarbledFile) {
  writeBytes(path, model::locationsText({{QUuid::createUuid(), u"Ebb"_s, 0.1, 0.2}}));
  SavedLocations saved = started();
  writeBytes(path, garbage);
  saved.remove(saved.cities().back().id);
  EXPECT_EQ(bytesIn(folder / u"locations.unreadable.json"_s), garbage);
  EXPECT_EQ(names(started().cities()), QStringList{u"Manual"_s});
}

TEST_F(LocationsFileTest, AFileThatVanishedIsWrittenAgain) {
  keepTwo();
  SavedLocations saved = started();
  QFile::remove(path);
  add(saved, u"Dune"_s);
  EXPECT_EQ(namesInFile(), (QStringList{u"Dune"_s, u"Ebb"_s, u"Flow"_s}));
}

TEST_F(LocationsFileTest, WithoutAPathPlacesLiveInMemory) {
  SavedLocations saved(std::nullopt, countingIds());
  saved.loadCities();
  const QUuid id = add(saved, u"Dune"_s);
  EXPECT_EQ(saved.cities().size(), 15);
  saved.remove(id);
  EXPECT_EQ(saved.cities().size(), 14);
  EXPECT_EQ(folder.names(), QStringList());
}

TEST_F(LocationsFileTest, ALinkIsFollowed) {
  keepTwo();
  const QString real = folder / u"real.json"_s;
  ASSERT_TRUE(QFile::rename(path, real));
  ASSERT_TRUE(QFile::link(real, path));
  SavedLocations saved = started();
  add(saved, u"Dune"_s);
  EXPECT_TRUE(QFileInfo(path).isSymLink());
  EXPECT_EQ(model::placesIn(bytesIn(real))->size(), 3);
}

TEST_F(LocationsFileTest, TheModelReadsAndKeepsItsPlaces) {
  tests::FakeWorld world;
  auto surroundings = world.surroundings();
  surroundings.locationsPath = path;
  const QUuid id = [&] {
    model::AstronomyModel first(surroundings);
    return std::get<QUuid>(first.addCity(u"Dune"_s));
  }();
  const model::AstronomyModel second(surroundings);
  ASSERT_EQ(second.cities().size(), 15);
  EXPECT_EQ(second.cities()[2].id, id);
  EXPECT_EQ(second.cities()[2].longitude, -0.3647738136668149);
}

}  // namespace
}  // namespace veyruna
