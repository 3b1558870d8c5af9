// Whatever happens to the preferences file: the program starts, and what it could not read is kept
// beside before anything is written over it.
#include <gtest/gtest.h>

#include "model/qt_settings_store.h"
#include "tests/model/disk.h"
#include "tests/model/fakes.h"
#include "tests/support/heap.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::AstronomyModel;
using tests::bytesIn;
using tests::writeBytes;

AstronomyModel::Surroundings keptIn(const QString& path) {
  return {std::make_shared<model::QtSettingsStore>(path), std::nullopt, tests::countingIds(), {}};
}

const QByteArray goodSettings =
    "[General]\n"
    "AstronomyModel.dayIndex=9\n"
    "AstronomyModel.hour=18.25\n"
    "AstronomyModel.latNorth=false\n"
    "AstronomyModel.longWest=false\n"
    "AstronomyModel.manualLatDeg=33.125\n"
    "AstronomyModel.manualLongDeg=179.5\n"
    "AstronomyModel.monthIndex=2\n"
    "AstronomyModel.selectedCityID=0A1B2C3D-4E5F-6789-ABCD-EF0123456789\n"
    "AstronomyModel.useLocalTime=true\n"
    "AstronomyModel.year=1243\n";

/// A program that starts, in which a person sets the year, and that ends.
void useThePreferences(const QString& path) {
  AstronomyModel model(keptIn(path));
  model.setYear(2000);
  tests::turnEventLoop();
}

/// Whether every line is one of a preferences file: a section, a comment or a key with its value.
bool isReadable(const QByteArray& bytes) {
  for (const QByteArray& line : bytes.split('\n')) {
    const QByteArray text = line.trimmed();
    const bool isLine = text.isEmpty() || text.startsWith(';') ||
                        (text.startsWith('[') ? text.contains(']') : text.contains('='));
    if (!isLine) {
      return false;
    }
  }
  return true;
}

class SettingsFaults : public testing::Test {
 protected:
  /// The file holds these bytes when a program starts and uses it. What stands there is read, or
  /// kept aside byte for byte.
  void tryWith(const QByteArray& bytes) {
    const tests::Folder own;
    const QString file = own / u"settings.conf"_s;
    writeBytes(file, bytes);
    useThePreferences(file);
    const bool isKept = tests::isKeptAside(own.path(), u"settings"_s, bytes);
    if (!(isKept || isReadable(bytes)) || !bytesIn(file).contains("AstronomyModel.year=2000")) {
      lost_ << bytes;
    }
    ++tried_;
    kept_ += isKept ? 1 : 0;
  }
  void TearDown() override {
    EXPECT_TRUE(lost_.isEmpty()) << lost_.size() << " files were neither read nor kept, first\n"
                                 << lost_.value(0).toStdString();
    if (tried_ > 0) {
      std::printf("%d files tried, %d of them kept aside\n", tried_, kept_);
    }
  }

  tests::Folder folder;
  QString path = folder / u"settings.conf"_s;
  int tried_ = 0;
  int kept_ = 0;
  QByteArrayList lost_;
};

TEST_F(SettingsFaults, TheGoodFileIsReadAndNotKeptAside) {
  writeBytes(path, goodSettings);
  const AstronomyModel model(keptIn(path));
  EXPECT_EQ(model.dayIndex(), 9);
  EXPECT_EQ(model.manualLongDeg(), 179.5);
  EXPECT_EQ(model.year(), 1243);
  tryWith(goodSettings);
  EXPECT_EQ(kept_, 0);
}

TEST_F(SettingsFaults, CutAtEveryByte) {
  for (qsizetype length = 0; length < goodSettings.size(); ++length) {
    tryWith(goodSettings.first(length));
  }
}

TEST_F(SettingsFaults, EveryByteFlipped) {
  const int flips = tests::times(1, 8);
  for (qsizetype at = 0; at < goodSettings.size(); ++at) {
    for (int flip = 0; flip < flips; ++flip) {
      QByteArray bytes = goodSettings;
      const auto bit = static_cast<unsigned>((flip + static_cast<int>(at)) % 8);
      bytes[at] = static_cast<char>(static_cast<unsigned char>(bytes[at]) ^ (1U << bit));
      tryWith(bytes);
    }
  }
}

TEST_F(SettingsFaults, NoPreferencesAtAll) {
  tryWith("a letter to a friend\n");
  tryWith(QByteArray(4096, '\0'));
  tryWith("[General\nAstronomyModel.year=3\n");
  tryWith("\x89PNG\r\n\x1a\n\xff\xfe\x00");
  EXPECT_EQ(kept_, 4);
}

TEST_F(SettingsFaults, NumberedWhereOneIsKeptAlready) {
  for (const QByteArray& bytes : {QByteArray("[first"), QByteArray("[second")}) {
    writeBytes(path, bytes);
    useThePreferences(path);
    EXPECT_TRUE(tests::isKeptAside(folder.path(), u"settings"_s, bytes));
  }
  EXPECT_EQ(bytesIn(folder / u"settings.unreadable.conf"_s), "[first");
  EXPECT_EQ(bytesIn(folder / u"settings.unreadable-2.conf"_s), "[second");
}

TEST_F(SettingsFaults, GarbledWhileTheProgramRuns) {
  writeBytes(path, goodSettings);
  const QByteArray garbled = "[Gener\x01l " + goodSettings.mid(10);
  {
    AstronomyModel model(keptIn(path));
    writeBytes(path, garbled);
    model.setYear(2000);
  }
  EXPECT_TRUE(bytesIn(path) == garbled ||
              tests::isKeptAside(folder.path(), u"settings"_s, garbled));
}

TEST_F(SettingsFaults, AFolderInItsPlace) {
  ASSERT_TRUE(QDir().mkpath(path));
  writeBytes(path + u"/diary.txt"_s, "kept here by mistake");
  const AstronomyModel model(keptIn(path));
  EXPECT_EQ(model.year(), 720);
  useThePreferences(path);
  EXPECT_EQ(bytesIn(path + u"/diary.txt"_s), "kept here by mistake");
}

TEST_F(SettingsFaults, WithoutReadPermission) {
  writeBytes(path, goodSettings);
  tests::giveToNobody(folder.path());
  tests::setMode(path, 0);
  {
    const tests::AsNobody user;
    if (!user.holds()) {
      GTEST_SKIP() << "preferences without read permission: cannot act as another user";
    }
    useThePreferences(path);
  }
  tests::setMode(path, 0600);
  EXPECT_EQ(bytesIn(path), goodSettings);
}

TEST_F(SettingsFaults, OnAReadOnlyFileSystem) {
  const tests::SmallFileSystem disk;
  if (!disk.isMounted()) {
    GTEST_SKIP() << "preferences on a read-only file system: a small one cannot be mounted here";
  }
  const QString there = disk / u"settings.conf"_s;
  writeBytes(there, goodSettings);
  ASSERT_TRUE(disk.makeReadOnly());
  useThePreferences(there);
  EXPECT_EQ(bytesIn(there), goodSettings);
}

TEST_F(SettingsFaults, WhatCannotBeWrittenIsReadBackAndWrittenLater) {
  ASSERT_TRUE(QDir().mkpath(path));  // a folder in its place
  model::QtSettingsStore store(path);
  const auto number = [](const char* text) { return QVariant(QString::fromLatin1(text)); };
  store.store({{u"a"_s, number("1")}, {u"b"_s, number("2")}});
  store.store({{u"b"_s, number("3")}});
  EXPECT_EQ(store.stored(u"a"_s), number("1"));
  EXPECT_EQ(store.stored(u"b"_s), number("3"));
  ASSERT_TRUE(QDir().rmdir(path));
  store.store({{u"c"_s, number("4")}});
  tests::turnEventLoop();
  EXPECT_EQ(bytesIn(path), "[General]\na=1\nb=3\nc=4\n");
}

TEST_F(SettingsFaults, WhatCannotBeWrittenIsKeptOnce) {
  ASSERT_TRUE(QDir().mkpath(path));
  AstronomyModel model(keptIn(path));
  const auto playYears = [&model](int years) {
    for (int year = 0; year < years; ++year) {
      model.setYear(year);
    }
  };
  playYears(100);
  const std::size_t before = tests::heapBytes();
  playYears(20'000);
  EXPECT_LT(static_cast<double>(tests::heapBytes()) - static_cast<double>(before), 1e5);
}

/// On a file system of 64 KiB with so many blocks free.
class FullDiskForSettings : public testing::TestWithParam<int> {};

TEST_P(FullDiskForSettings, LeavesTheOldPreferencesWhole) {
  const tests::SmallFileSystem disk;
  if (!disk.isMounted()) {
    GTEST_SKIP() << "preferences on a full file system: a small one cannot be mounted here";
  }
  const QString path = disk / u"settings.conf"_s;
  writeBytes(path, goodSettings);
  disk.fill(GetParam());
  useThePreferences(path);
  QByteArray saved = goodSettings;
  saved.replace("year=1243", "year=2000");
  const QByteArray after = bytesIn(path);
  EXPECT_TRUE(after == goodSettings || after == saved) << after.toStdString();
}

INSTANTIATE_TEST_SUITE_P(BlocksFree, FullDiskForSettings, testing::Values(0, 1, 2),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace veyruna
