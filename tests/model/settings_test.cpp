// The preferences as they are kept: in groups, at once, exactly, and in a file that another start
// reads.
#include <QSettings>
#include <QSignalSpy>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>

#include "model/id_text.h"
#include "model/qt_settings_store.h"
#include "tests/model/change_log.h"
#include "tests/model/disk.h"
#include "tests/model/fakes.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using model::AstronomyModel;
using tests::ChangeLog;
using tests::FakeModel;
using Names = ChangeLog::Names;

const QStringList placeKeys = {u"AstronomyModel.selectedCityID"_s, u"AstronomyModel.manualLatDeg"_s,
                               u"AstronomyModel.manualLongDeg"_s, u"AstronomyModel.latNorth"_s,
                               u"AstronomyModel.longWest"_s};
const QStringList dateKeys = {u"AstronomyModel.monthIndex"_s, u"AstronomyModel.dayIndex"_s,
                              u"AstronomyModel.year"_s, u"AstronomyModel.hour"_s,
                              u"AstronomyModel.useLocalTime"_s};
const QUuid storedId(u"0a1b2c3d-4e5f-6789-abcd-ef0123456789"_s);

struct Change {
  const char* field;
  QVariant value;
  QStringList group;
};

const std::vector<Change>& changes() {
  static const std::vector<Change> all = {
      {"selectedCityID", storedId, placeKeys},
      {"manualLatDeg", 1.5, placeKeys},
      {"manualLongDeg", -2.5, placeKeys},
      {"latNorth", false, placeKeys},
      {"longWest", false, placeKeys},
      {"monthIndex", qint64{3}, dateKeys},
      {"dayIndex", qint64{-1}, dateKeys},
      {"year", qint64{1243}, dateKeys},
      {"hour", 18.25, dateKeys},
      {"useLocalTime", true, dateKeys},
  };
  return all;
}

TEST(Settings, AStartStoresNothing) {
  const FakeModel world;
  EXPECT_TRUE(world.settings->groups.empty());
}

TEST(Settings, SettingAFieldStoresItsWholeGroupAndSignalsAChange) {
  for (const Change& change : changes()) {
    FakeModel world;
    ChangeLog log(world.model);
    const auto& groups = world.settings->groups;
    // Twice: a value that does not change is stored as well, but not signalled.
    for (const std::size_t time : {1U, 2U}) {
      ASSERT_TRUE(world.model.setProperty(change.field, change.value));
      EXPECT_EQ(world.model.property(change.field), change.value);
      EXPECT_EQ(log.taken(), time == 1 ? Names{change.field} : Names{}) << change.field;
      ASSERT_EQ(groups.size(), time) << change.field;
      QStringList keys;
      for (const auto& [key, value] : groups.back()) {
        keys << key;
        const QByteArray field = key.mid(u"AstronomyModel."_s.size()).toLatin1();
        const QVariant held = world.model.property(field.constData());
        EXPECT_EQ(value.toString(), held.typeId() == QMetaType::QUuid
                                        ? model::canonicalText(held.toUuid())
                                        : held.toString())
            << field.toStdString();
      }
      EXPECT_EQ(keys, change.group) << change.field;
    }
  }
}

TEST(Settings, AValueIsHeldAndStoredWhenItsSignalComes) {
  FakeModel world;
  qint64 stored = 0;
  QObject::connect(&world.model, &AstronomyModel::yearChanged, &world.model, [&] {
    stored = world.model.year() == 3 ? world.settings->stored(dateKeys[2]).toLongLong() : -1;
  });
  world.model.setYear(3);
  EXPECT_EQ(stored, 3);
}

TEST(Settings, BlackAndWhiteIsNotKept) {
  FakeModel world;
  QSignalSpy spy(&world.model, &AstronomyModel::horoscopeBlackAndWhiteChanged);
  world.model.setHoroscopeBlackAndWhite(true);
  world.model.setHoroscopeBlackAndWhite(true);
  EXPECT_EQ(spy.count(), 1);
  EXPECT_TRUE(world.settings->groups.empty());
}

class SettingsFile : public testing::Test {
 protected:
  [[nodiscard]] std::unique_ptr<AstronomyModel> started(const QString& file) const {
    return std::make_unique<AstronomyModel>(AstronomyModel::Surroundings{
        std::make_shared<model::QtSettingsStore>(file), std::nullopt, tests::countingIds(), {}});
  }
  /// A start that knows nothing of the stores of this process: the file under another name.
  [[nodiscard]] std::unique_ptr<AstronomyModel> startedElsewhere() {
    const QString copy = folder / QString::number(++copies_) + u".conf"_s;
    EXPECT_TRUE(QFile::copy(path, copy));
    return started(copy);
  }
  [[nodiscard]] QStringList lines() const {
    QStringList all = QString::fromUtf8(tests::bytesIn(path)).split(u'\n', Qt::SkipEmptyParts);
    all.sort();
    return all;
  }

  tests::Folder folder;
  QString path = folder / u"settings.conf"_s;

 private:
  int copies_ = 0;
};

TEST_F(SettingsFile, AStartWritesNothing) {
  EXPECT_EQ(started(path)->year(), 720);
  tests::turnEventLoop();
  EXPECT_EQ(folder.names(), QStringList());
}

TEST_F(SettingsFile, HoldsTheTenKeysAndNothingElse) {
  const auto model = started(path);
  model->setLatNorth(true);
  model->setYear(720);
  tests::turnEventLoop();
  EXPECT_EQ(lines(),
            (QStringList{u"AstronomyModel.dayIndex=0"_s, u"AstronomyModel.hour=12"_s,
                         u"AstronomyModel.latNorth=true"_s, u"AstronomyModel.longWest=true"_s,
                         u"AstronomyModel.manualLatDeg=40.5"_s,
                         u"AstronomyModel.manualLongDeg=20.9"_s, u"AstronomyModel.monthIndex=0"_s,
                         u"AstronomyModel.selectedCityID=00000000-0000-0000-0000-000000000001"_s,
                         u"AstronomyModel.useLocalTime=false"_s, u"AstronomyModel.year=720"_s,
                         u"[General]"_s}));
  EXPECT_EQ(folder.names(), QStringList{u"settings.conf"_s});
}

TEST_F(SettingsFile, IsOnDiskWhenTheTurnOfTheEventLoopEnds) {
  const auto model = started(path);
  for (const Change& change : changes()) {
    model->setProperty(change.field, change.value);
    tests::turnEventLoop();
    EXPECT_EQ(startedElsewhere()->property(change.field), change.value) << change.field;
  }
}

TEST_F(SettingsFile, AnotherStoreReadsItAll) {
  {
    const auto model = started(path);
    for (const Change& change : changes()) {
      model->setProperty(change.field, change.value);
    }
  }
  const auto again = started(path);
  const auto elsewhere = startedElsewhere();
  for (const Change& change : changes()) {
    EXPECT_EQ(again->property(change.field), change.value) << change.field;
    EXPECT_EQ(elsewhere->property(change.field), change.value) << change.field;
  }
}

TEST_F(SettingsFile, KeepsWhatOthersWroteIntoIt) {
  tests::writeBytes(path, "[General]\nAstronomyModel.year=3\ntheme=dark\n[Window]\nwidth=640\n");
  {
    const auto model = started(path);
    EXPECT_EQ(model->year(), 3);
    model->setHour(1.0);
  }
  const QByteArray bytes = tests::bytesIn(path);
  EXPECT_TRUE(bytes.contains("theme=dark"));
  EXPECT_TRUE(bytes.contains("[Window]\nwidth=640"));
  EXPECT_TRUE(bytes.contains("AstronomyModel.year=3"));
}

bool isSameDouble(double a, double b) {
  return a == b && std::signbit(a) == std::signbit(b);
}

TEST_F(SettingsFile, EveryDoubleComesBackTheSame) {
  const auto comesBack = [this](double number) {
    {
      const auto model = started(path);
      model->setManualLatDeg(number);
      model->setHour(-number);
    }
    const auto read = startedElsewhere();
    return isSameDouble(read->manualLatDeg(), number) && isSameDouble(read->hour(), -number);
  };
  using Limits = std::numeric_limits<double>;
  for (const double number :
       {0.0, -0.0, 0.1, 1e20, 1e21, 1e-7, 123456789012345680.0, Limits::max(), Limits::lowest(),
        Limits::min(), Limits::denorm_min(), -Limits::denorm_min(), Limits::epsilon()}) {
    EXPECT_TRUE(comesBack(number)) << number;
  }
  EXPECT_TRUE(rc::check("a stored double reads back as the same double",
                        [&] { RC_ASSERT(comesBack(*tests::finiteDoubles())); }));
}

TEST_F(SettingsFile, EveryIntegerComesBackTheSame) {
  for (const qint64 number : {std::numeric_limits<qint64>::max(),
                              std::numeric_limits<qint64>::min(), qint64{9007199254740993}}) {
    {
      const auto model = started(path);
      model->setYear(number);
      model->setDayIndex(-1 - number);
    }
    const auto read = startedElsewhere();
    EXPECT_EQ(read->year(), number);
    EXPECT_EQ(read->dayIndex(), -1 - number);
  }
}

}  // namespace
}  // namespace veyruna
