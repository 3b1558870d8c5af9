// Several programs on one file of saved places.
#include <QLockFile>
#include <QSysInfo>

#include "tests/model/change_log.h"
#include "tests/model/fakes.h"
#include "tests/model/locations_fixture.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::SavedLocations;
using tests::bytesIn;
using tests::writeBytes;
using LocationsSharing = tests::LocationsFileTest;

TEST_F(LocationsSharing, TwoProgramsKeepEachOthersChanges) {
  keepTwo();
  SavedLocations one = started();
  SavedLocations other = started();
  add(one, u"Dune"_s);
  add(other, u"Cove"_s);
  one.remove(one.cities()[2].id);  // Ebb
  EXPECT_EQ(namesInFile(), (QStringList{u"Cove"_s, u"Dune"_s, u"Flow"_s}));
  add(other, u"Beck"_s);
  EXPECT_EQ(namesInFile(), (QStringList{u"Beck"_s, u"Cove"_s, u"Dune"_s, u"Flow"_s}));
  EXPECT_EQ(names(other.cities()),
            (QStringList{u"Manual"_s, u"Beck"_s, u"Cove"_s, u"Dune"_s, u"Flow"_s}));
}

TEST_F(LocationsSharing, ANameAnotherProgramSavedExists) {
  keepTwo();
  SavedLocations one = started();
  SavedLocations other = started();
  add(one, u"Dune"_s);
  EXPECT_EQ(std::get<model::LocationError>(other.add(u"dune"_s, 0.0, 0.0)).duplicate(), u"dune"_s);
  EXPECT_EQ(namesInFile(), (QStringList{u"Dune"_s, u"Ebb"_s, u"Flow"_s}));
  other.remove(other.cities()[1].id);  // the one it has just learned of
  EXPECT_EQ(namesInFile(), (QStringList{u"Ebb"_s, u"Flow"_s}));
}

TEST_F(LocationsSharing, ADeletedPlaceDoesNotComeBack) {
  keepTwo();
  SavedLocations one = started();
  SavedLocations other = started();
  const QUuid ebb = one.cities()[1].id;
  one.remove(ebb);
  add(other, u"Dune"_s);
  EXPECT_EQ(namesInFile(), (QStringList{u"Dune"_s, u"Flow"_s}));
  EXPECT_EQ(other.find(ebb), nullptr);
}

TEST_F(LocationsSharing, TwoFirstStartsShareOneList) {
  const SavedLocations one = started();
  SavedLocations other = started();
  add(other, u"Dune"_s);
  EXPECT_EQ(namesInFile().size(), 14);
  EXPECT_EQ(one.cities(), started().cities().mid(0, 2) + started().cities().mid(3));
}

TEST_F(LocationsSharing, ARefreshListsWhatAnotherProgramSavedAndDeleted) {
  keepTwo();
  SavedLocations one = started();
  SavedLocations other = started();
  add(one, u"Dune"_s);
  one.remove(one.cities()[3].id);  // Flow
  const QByteArray before = bytesIn(path);
  other.refresh();
  EXPECT_EQ(other.cities(), one.cities());
  EXPECT_EQ(names(other.cities()), (QStringList{u"Manual"_s, u"Dune"_s, u"Ebb"_s}));
  EXPECT_EQ(bytesIn(path), before);
}

TEST_F(LocationsSharing, ARefreshKeepsWhatIsNotWrittenYet) {
  keepTwo();
  SavedLocations saved = started();
  auto lock = std::make_unique<QLockFile>(path + u".lock"_s);
  ASSERT_TRUE(lock->lock());
  add(saved, u"Dune"_s);
  saved.remove(saved.cities()[2].id);  // Ebb
  const QByteArray before = bytesIn(path);
  saved.refresh();
  EXPECT_EQ(names(saved.cities()), (QStringList{u"Manual"_s, u"Dune"_s, u"Flow"_s}));
  EXPECT_EQ(bytesIn(path), before);
  lock.reset();
  saved.saveWhatWaits();
  EXPECT_EQ(namesInFile(), (QStringList{u"Dune"_s, u"Flow"_s}));
}

TEST_F(LocationsSharing, ARefreshFromNoListKeepsWhatIsKnown) {
  keepTwo();
  SavedLocations saved = started();
  const QList<model::CityPreset> known = saved.cities();
  writeBytes(path, "no list");
  saved.refresh();
  EXPECT_EQ(saved.cities(), known);
  EXPECT_EQ(bytesIn(path), QByteArray("no list"));
  ASSERT_TRUE(QFile::remove(path));
  saved.refresh();
  EXPECT_EQ(saved.cities(), known);
  EXPECT_FALSE(QFileInfo::exists(path));
}

/// A window's model, and another program on the same file.
TEST_F(LocationsSharing, AModelSignalsARefreshOnlyWhereThePlacesChanged) {
  keepTwo();
  const tests::FakeWorld world;
  model::AstronomyModel::Surroundings surroundings = world.surroundings();
  surroundings.locationsPath = path;
  model::AstronomyModel model(surroundings);
  tests::ChangeLog log(model);
  model.refreshCities();
  EXPECT_EQ(log.taken(), tests::ChangeLog::Names{});
  SavedLocations other = started();
  add(other, u"Dune"_s);
  model.refreshCities();
  EXPECT_EQ(log.taken(), tests::ChangeLog::Names{"cities"});
  EXPECT_EQ(model.cities(), other.cities());
  model.refreshCities();
  EXPECT_EQ(log.taken(), tests::ChangeLog::Names{});
}

TEST_F(LocationsSharing, WithoutAFileARefreshChangesNothing) {
  tests::FakeModel world;
  const QList<model::CityPreset> known = world.model.cities();
  tests::ChangeLog log(world.model);
  world.model.refreshCities();
  EXPECT_EQ(log.taken(), tests::ChangeLog::Names{});
  EXPECT_EQ(world.model.cities(), known);
}

TEST_F(LocationsSharing, WhileAnotherHoldsTheLockChangesWait) {
  keepTwo();
  const QByteArray before = bytesIn(path);
  SavedLocations saved = started();
  auto lock = std::make_unique<QLockFile>(path + u".lock"_s);
  ASSERT_TRUE(lock->lock());
  add(saved, u"Dune"_s);
  saved.remove(saved.cities()[2].id);  // Ebb
  EXPECT_EQ(names(saved.cities()), (QStringList{u"Manual"_s, u"Dune"_s, u"Flow"_s}));
  EXPECT_EQ(bytesIn(path), before);
  lock.reset();
  add(saved, u"Cove"_s);
  EXPECT_EQ(namesInFile(), (QStringList{u"Cove"_s, u"Dune"_s, u"Flow"_s}));
}

TEST_F(LocationsSharing, ALockOfAProgramThatIsGoneIsNoLock) {
  keepTwo();
  // A process number no system gives out.
  writeBytes(path + u".lock"_s, "2147483646\nveyruna\n" + QSysInfo::machineHostName().toUtf8() +
                                    "\n" + QSysInfo::machineUniqueId() + "\n" +
                                    QSysInfo::bootUniqueId() + "\n");
  SavedLocations saved = started();
  add(saved, u"Dune"_s);
  EXPECT_EQ(namesInFile(), (QStringList{u"Dune"_s, u"Ebb"_s, u"Flow"_s}));
}

/// A program killed between making its lock and writing into it leaves an empty one.
TEST_F(LocationsSharing, ALockNobodyWroteIntoIsNoLock) {
  keepTwo();
  writeBytes(path + u".lock"_s, "");
  SavedLocations saved = started();
  add(saved, u"Dune"_s);
  EXPECT_EQ(namesInFile(), (QStringList{u"Dune"_s, u"Ebb"_s, u"Flow"_s}));
}

}  // namespace
}  // namespace veyruna
