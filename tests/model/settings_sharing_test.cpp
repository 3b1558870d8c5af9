// Several programs on one preferences file, and what they leave beside it.
#include <QDateTime>
#include <gtest/gtest.h>

#include "model/qt_settings_store.h"
#include "tests/model/disk.h"
#include "tests/model/fakes.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::QtSettingsStore;
using tests::bytesIn;

class SettingsSharing : public testing::Test {
 protected:
  /// A lock as a program left it, so many seconds ago.
  void leaveLock(const QByteArray& content, qint64 secondsAgo) const {
    QFile file(lock);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.flush();
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-secondsAgo),
                                 QFileDevice::FileModificationTime));
  }

  const tests::Folder folder;
  const QString path = folder / u"settings.conf"_s;
  const QString lock = path + u".lock"_s;
};

TEST_F(SettingsSharing, AStoreWritesOnlyWhatItWasGivenSince) {
  QtSettingsStore one(path);
  QtSettingsStore other(path);
  one.store({{u"year"_s, 1}, {u"month"_s, 1}});
  tests::turnEventLoop();
  other.store({{u"year"_s, 2}, {u"month"_s, 2}});
  tests::turnEventLoop();
  one.store({{u"month"_s, 3}});
  tests::turnEventLoop();
  EXPECT_EQ(bytesIn(path), QByteArray("[General]\nmonth=3\nyear=2\n"));
}

TEST_F(SettingsSharing, WhatCouldNotBeWrittenGoesWithTheNextChange) {
  ASSERT_TRUE(QDir().mkpath(path));  // a folder in its place takes nothing
  QtSettingsStore store(path);
  store.store({{u"year"_s, 1}, {u"month"_s, 1}});
  tests::turnEventLoop();
  ASSERT_TRUE(QDir().rmdir(path));
  store.store({{u"month"_s, 3}});
  tests::turnEventLoop();
  EXPECT_EQ(bytesIn(path), QByteArray("[General]\nmonth=3\nyear=1\n"));
}

/// A program killed between making its lock and writing into it leaves an empty one.
TEST_F(SettingsSharing, ALockNobodyWroteIntoIsRemoved) {
  leaveLock("", 5);
  QtSettingsStore store(path);
  store.store({{u"year"_s, 2}});
  EXPECT_FALSE(QFile::exists(lock));
  tests::turnEventLoop();
  EXPECT_EQ(bytesIn(path), QByteArray("[General]\nyear=2\n"));
}

TEST_F(SettingsSharing, ALockThatMayStillBeInTheMakingStays) {
  leaveLock("", -3600);  // just made, however slow this machine is
  QtSettingsStore store(path);
  store.store({{u"year"_s, 2}});
  EXPECT_TRUE(QFile::exists(lock));
  QFile::remove(lock);
}

TEST_F(SettingsSharing, ALockThatSaysWhoseItIsStays) {
  leaveLock("2147483646\nveyruna\nelsewhere\n", 5);
  QtSettingsStore store(path);
  store.store({{u"year"_s, 2}});
  EXPECT_TRUE(QFile::exists(lock));
  QFile::remove(lock);
}

}  // namespace
}  // namespace veyruna
