// Two programs that save at once, each as quickly as it can, lose nothing of one another's; and
// whoever reads meanwhile finds a whole file.
#include <QFile>
#include <QProcess>
#include <array>
#include <gtest/gtest.h>
#include <memory>

#include "model/locations_file.h"
#include "model/qt_settings_store.h"
#include "model/stored_settings.h"
#include "tests/model/disk.h"
#include "tests/model/sharing_steps.h"
#include "tests/support/patience.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::LocationsFile;

struct Program {
  QString what;
  QString name;
};

/// Two programs that are started at once.
class TwoPrograms : public testing::Test {
 protected:
  /// Reads as long as one of them runs; tells how many changes each has made.
  template <class Read>
  std::array<int, 2> changesOf(const std::array<Program, 2>& programs, const QString& path,
                               Read read) {
    const QString seconds = QString::number(tests::times(0, 60));
    std::array<QProcess, 2> running;
    for (std::size_t i = 0; i < running.size(); ++i) {
      running.at(i).start(QStringLiteral(VEYRUNA_SHARING_CHILD),
                          {programs.at(i).what, path, programs.at(i).name, u"200"_s, seconds});
    }
    int readings = 0;
    std::array<int, 2> changes{};
    for (std::size_t i = 0; i < running.size(); ++i) {
      while (!running.at(i).waitForFinished(5) && running.at(i).state() != QProcess::NotRunning) {
        read();
        ++readings;
      }
      EXPECT_EQ(running.at(i).exitStatus(), QProcess::NormalExit);
      changes.at(i) = running.at(i).readAllStandardOutput().trimmed().toInt();
      EXPECT_GE(changes.at(i), 200) << running.at(i).readAllStandardError().toStdString();
    }
    std::printf("%d and %d changes, read %d times\n", changes[0], changes[1], readings);
    return changes;
  }

  const tests::Folder folder;
};

TEST_F(TwoPrograms, KeepEachOthersPlaces) {
  const QString path = folder / u"locations.json"_s;
  tests::writeBytes(path, "[]");
  const LocationsFile file(path);
  const std::array<Program, 2> programs = {Program{u"places"_s, u"Arla"_s},
                                           Program{u"places"_s, u"Bram"_s}};
  const std::array<int, 2> changes =
      changesOf(programs, path, [&] { EXPECT_EQ(file.read().state, LocationsFile::State::whole); });
  QStringList expected;
  for (std::size_t i = 0; i < programs.size(); ++i) {
    for (int step = 1; step <= changes.at(i); ++step) {
      if (!tests::isTakenAway(step)) {
        expected.append(tests::placeOfStep(programs.at(i).name, step));
      }
    }
  }
  QStringList kept;
  for (const model::CityPreset& place : file.read().places) {
    kept.append(place.name);
  }
  expected.sort();
  kept.sort();
  EXPECT_EQ(kept, expected);
  EXPECT_EQ(folder.names(), QStringList{u"locations.json"_s});
}

TEST_F(TwoPrograms, KeepEachOthersPreferences) {
  const QString path = folder / u"settings.conf"_s;
  const std::array<int, 2> changes =
      changesOf({Program{u"date"_s, u""_s}, Program{u"place"_s, u""_s}}, path, [&] {
        // Both numbers were stored at one stroke.
        const model::DateSettings date = model::readDateSettings(model::QtSettingsStore(path));
        EXPECT_TRUE(date.hour == tests::hourOfStep(static_cast<int>(date.year)) ||
                    date.year == model::DateSettings{}.year)
            << date.year << " " << date.hour;
      });
  EXPECT_EQ(folder.names(), QStringList{u"settings.conf"_s});
  // QSettings takes a file for the one it knows where neither size nor time have changed, and the
  // clock for files stands still for milliseconds: only under a new name is it surely read.
  const QString copy = folder / u"copy.conf"_s;
  ASSERT_TRUE(QFile::copy(path, copy));
  const model::QtSettingsStore store(copy);
  const model::DateSettings date = model::readDateSettings(store);
  EXPECT_EQ(date.year, changes[0]);
  EXPECT_EQ(date.hour, tests::hourOfStep(changes[0]));
  const model::LocationSettings place = model::readLocationSettings(store);
  EXPECT_EQ(place.manualLatDeg, changes[1]);
  EXPECT_EQ(place.latNorth, changes[1] % 2 == 0);
}

}  // namespace
}  // namespace veyruna
