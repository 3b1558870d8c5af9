// Whatever happens to the file of places, nothing a person saved is lost: it stands where it stood,
// or beside it, byte for byte.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/model/places_at_risk.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::CityPreset;
using model::SavedLocations;
using tests::bytesIn;
using tests::isNothingLost;
using tests::threePlaces;
using tests::useTheList;
using tests::writeBytes;

class Faults : public testing::Test {
 protected:
  /// The file holds these bytes when a program starts and uses it.
  void tryWith(const QByteArray& bytes) {
    const tests::Folder folder;
    const QString path = folder / u"locations.json"_s;
    writeBytes(path, bytes);
    useTheList(path);
    EXPECT_TRUE(isNothingLost(folder.path(), bytes)) << bytes.toPercentEncoding().toStdString();
    const auto after = model::placesIn(bytesIn(path));
    ASSERT_TRUE(after) << bytes.toPercentEncoding().toStdString();
    const auto isNew = [](const CityPreset& place) { return place.name == u"New place"_s; };
    EXPECT_EQ(std::count_if(after->begin(), after->end(), isNew), 1);
    ++tried_;
    kept_ += folder.names().size() > 1 ? 1 : 0;
  }
  void TearDown() override {
    RecordProperty("tried", tried_);
    RecordProperty("kept_aside", kept_);
    if (tried_ > 0) {
      std::printf("%d files tried, %d of them no list and kept aside\n", tried_, kept_);
    }
  }

  int tried_ = 0;
  int kept_ = 0;
};

TEST_F(Faults, CutAtEveryByte) {
  const QByteArray whole = threePlaces();
  for (qsizetype length = 0; length <= whole.size(); ++length) {
    tryWith(whole.first(length));
  }
  EXPECT_GT(kept_, tried_ - 5);  // without its last line feed it is still the list
}

TEST_F(Faults, EveryByteFlipped) {
  const QByteArray whole = threePlaces();
  const int flips = tests::times(1, 8);
  for (qsizetype at = 0; at < whole.size(); ++at) {
    for (int flip = 0; flip < flips; ++flip) {
      QByteArray bytes = whole;
      const auto bit = (flip + static_cast<int>(at)) % 8;
      bytes[at] = static_cast<char>(static_cast<unsigned char>(bytes[at]) ^ (1U << unsigned(bit)));
      tryWith(bytes);
    }
  }
  EXPECT_GT(kept_, tried_ / 4);
}

TEST_F(Faults, NothingInIt) {
  tryWith("");
  tryWith(QByteArray(4096, '\0'));
  EXPECT_EQ(kept_, 2);
}

TEST_F(Faults, AFolderInItsPlace) {
  const tests::Folder folder;
  const QString path = folder / u"locations.json"_s;
  ASSERT_TRUE(QDir().mkpath(path));
  writeBytes(path + u"/diary.txt"_s, "kept here by mistake");
  useTheList(path);
  EXPECT_EQ(bytesIn(folder / u"locations.unreadable.json/diary.txt"_s), "kept here by mistake");
  EXPECT_EQ(model::placesIn(bytesIn(path))->size(), 14);
}

TEST_F(Faults, APipeInItsPlace) {
  const tests::Folder folder;
  const QString path = folder / u"locations.json"_s;
  ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
  useTheList(path);
  EXPECT_EQ(model::placesIn(bytesIn(path))->size(), 14);
}

TEST_F(Faults, ALinkToNowhere) {
  const tests::Folder folder;
  const QString path = folder / u"locations.json"_s;
  ASSERT_TRUE(QFile::link(folder / u"a disk that is not plugged in/list.json"_s, path));
  useTheList(path);
  EXPECT_TRUE(QFileInfo(folder / u"locations.unreadable.json"_s).isSymLink());
  EXPECT_EQ(model::placesIn(bytesIn(path))->size(), 14);
}

/// As a user without the rights of root, in a folder of that user.
class UserFaults : public Faults {
 protected:
  UserFaults() { tests::giveToNobody(folder.path()); }
  tests::Folder folder;
  QString path = folder / u"locations.json"_s;
};

TEST_F(UserFaults, WithoutReadPermission) {
  writeBytes(path, threePlaces());
  tests::setMode(path, 0);
  {
    const tests::AsNobody user;
    if (!user.holds()) {
      GTEST_SKIP() << "without read permission: cannot act as another user";
    }
    ASSERT_FALSE(QFile(path).open(QIODevice::ReadOnly));
    useTheList(path);
  }
  tests::setMode(folder / u"locations.unreadable.json"_s, 0600);
  EXPECT_EQ(bytesIn(folder / u"locations.unreadable.json"_s), threePlaces());
  EXPECT_EQ(model::placesIn(bytesIn(path))->size(), 14);
}

TEST_F(UserFaults, InAFolderWithoutWritePermission) {
  for (const QByteArray& bytes : {threePlaces(), QByteArray("garbage")}) {
    tests::setMode(folder.path(), 0755);
    writeBytes(path, bytes);
    tests::setMode(path, 0644);
    tests::setMode(folder.path(), 0555);
    {
      const tests::AsNobody user;
      if (!user.holds()) {
        GTEST_SKIP() << "folder without write permission: cannot act as another user";
      }
      useTheList(path);
    }
    EXPECT_EQ(folder.names(), QStringList{u"locations.json"_s});
    EXPECT_EQ(bytesIn(path), bytes);
  }
  tests::setMode(folder.path(), 0755);
}

/// A folder where everybody may make files but nobody may move another's: what cannot be read
/// cannot be kept aside either, and so it must stay.
TEST_F(UserFaults, WhereItCannotBeKeptAside) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "a file that cannot be kept aside: needs a file of another user";
  }
  ASSERT_EQ(chown(QFile::encodeName(folder.path()).constData(), 0, 0), 0);
  tests::setMode(folder.path(), 01777);
  writeBytes(path, threePlaces());
  tests::setMode(path, 0);
  QList<CityPreset> inMemory;
  {
    const tests::AsNobody user;
    ASSERT_TRUE(user.holds());
    SavedLocations saved(path, &QUuid::createUuid);
    saved.loadCities();
    EXPECT_EQ(saved.cities().size(), 14);
    saved.add(u"First"_s, 0.1, 0.2);
    EXPECT_EQ(folder.names(), QStringList{u"locations.json"_s});

    // When it can be read again, the person's additions join it; the places of a first start, which
    // only stood in for it, do not.
    ASSERT_EQ(seteuid(0), 0);
    tests::setMode(path, 0644);
    EXPECT_EQ(bytesIn(path), threePlaces());
    ASSERT_EQ(seteuid(65534), 0);
    saved.add(u"Second"_s, 0.1, 0.2);
    inMemory = saved.cities();
  }
  EXPECT_EQ(bytesIn(path), threePlaces());
  QStringList names;
  for (const CityPreset& place : inMemory) {
    names << place.name;
  }
  EXPECT_EQ(names, (QStringList{u"Manual"_s, u"Ebb"_s, u"First"_s, u"Second"_s,
                                u"Ångström \"tower\""_s, u"\U0001F71C"_s}));
}

}  // namespace
}  // namespace veyruna
