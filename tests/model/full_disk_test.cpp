// The file of places on a file system that is full or may not be written to.
#include "tests/model/places_at_risk.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::SavedLocations;
using tests::bytesIn;
using tests::isNothingLost;
using tests::threePlaces;
using tests::useTheList;
using tests::writeBytes;

/// On a file system of 64 KiB with so many blocks free.
class FullDisk : public testing::TestWithParam<int> {};

TEST_P(FullDisk, LeavesTheOldListWhole) {
  for (const QByteArray& bytes : {threePlaces(), QByteArray("garbage")}) {
    const tests::SmallFileSystem disk;
    if (!disk.isMounted()) {
      GTEST_SKIP() << "a full file system: a small one cannot be mounted here";
    }
    const QString path = disk / u"locations.json"_s;
    writeBytes(path, bytes);
    disk.fill(GetParam());
    useTheList(path);
    EXPECT_TRUE(isNothingLost(disk.path(), bytes));
    disk.empty();
    useTheList(path, u"Another place"_s);
    EXPECT_TRUE(isNothingLost(disk.path(), bytes));
    EXPECT_TRUE(model::placesIn(bytesIn(path)));
  }
}

INSTANTIATE_TEST_SUITE_P(BlocksFree, FullDisk, testing::Values(0, 1, 2),
                         testing::PrintToStringParamName());

TEST(SmallDisk, UnsavedPlacesGoWithTheNextChange) {
  const tests::SmallFileSystem disk;
  if (!disk.isMounted()) {
    GTEST_SKIP() << "a full file system: a small one cannot be mounted here";
  }
  const QString path = disk / u"locations.json"_s;
  writeBytes(path, threePlaces());
  SavedLocations saved(path, &QUuid::createUuid);
  saved.loadCities();
  disk.fill(1);
  saved.add(u"First"_s, 0.1, 0.2);
  EXPECT_EQ(bytesIn(path), threePlaces());
  EXPECT_EQ(saved.cities().size(), 5);
  disk.empty();
  saved.add(u"Second"_s, 0.1, 0.2);
  EXPECT_EQ(model::placesIn(bytesIn(path)), saved.cities().mid(1));
  EXPECT_EQ(saved.cities().size(), 6);
}

TEST(SmallDisk, ReadOnlyLeavesTheListAsItWas) {
  for (const QByteArray& bytes : {threePlaces(), QByteArray("garbage")}) {
    const tests::SmallFileSystem disk;
    if (!disk.isMounted()) {
      GTEST_SKIP() << "a read-only file system: a small one cannot be mounted here";
    }
    const QString path = disk / u"locations.json"_s;
    writeBytes(path, bytes);
    ASSERT_TRUE(disk.makeReadOnly());
    useTheList(path);
    EXPECT_EQ(bytesIn(path), bytes);
    EXPECT_EQ(tests::Folder::namesIn(disk.path()), QStringList{u"locations.json"_s});
  }
}

}  // namespace
}  // namespace veyruna
