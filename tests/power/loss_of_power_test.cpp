// The power goes at any moment of a save: what is read afterwards is the old or the new, whole.
// Every save is recorded as the system is asked for it, and after each of its steps every state in
// which the disk may be is laid out and read by the program's own readers.
#include <functional>
#include <gtest/gtest.h>
#include <optional>

#include "model/locations_file.h"
#include "model/qt_settings_store.h"
#include "model/saved_locations.h"
#include "model/stored_settings.h"
#include "tests/export/two_exports.h"
#include "tests/model/disk.h"
#include "tests/power/disk_without_power.h"

namespace veyruna {
namespace {

using namespace Qt::StringLiterals;
using tests::bytesIn;
using tests::Change;
using tests::DiskWithoutPower;
using tests::Files;
using tests::Folder;

enum class Found { old, fresh, neither };

/// How often the old was found before the save and the new after it.
struct Count {
  int old = 0;
  int fresh = 0;
};

/// A save in a folder, and what a program finds in it.
class LossOfPower : public testing::TestWithParam<bool> {
 protected:
  /// Saves, and judges every state that the power may leave. When the save is done, what was saved
  /// is there for good where `isPromised`.
  void expectOldOrNew(const std::function<void()>& save,
                      const std::function<Found(const Folder&)>& find, bool isPromised) {
    const Files before = tests::filesIn(folder.path().toStdString());
    std::vector<Change> changes;
    {
      const tests::Recording recording(folder.path().toStdString(), GetParam());
      save();
      changes = recording.changes();
    }
    DiskWithoutPower disk(before);
    Count count = countOf(disk, find, "nothing");
    EXPECT_EQ(count.fresh, 0);
    for (const Change& change : changes) {
      disk.apply(change);
      count = countOf(disk, find, wordsOf(change));
      seen.old += count.old;
      seen.fresh += count.fresh;
    }
    EXPECT_EQ(disk.whole(), tests::filesIn(folder.path().toStdString())) << "not all was recorded";
    EXPECT_GT(count.fresh, 0);
    EXPECT_TRUE(count.old == 0 || !isPromised) << "what was saved may be gone";
  }

  ~LossOfPower() override { std::printf("%d times the old, %d the new\n", seen.old, seen.fresh); }

  const Folder folder;
  Count seen;

 private:
  static Count countOf(const DiskWithoutPower& disk,
                       const std::function<Found(const Folder&)>& find, const std::string& behind) {
    Count count;
    for (const Files& state : disk.mayBeFound()) {
      const Folder found;
      for (const auto& [name, content] : state) {
        tests::writeBytes(found / QString::fromStdString(name), QByteArray::fromStdString(content));
      }
      switch (find(found)) {
        case Found::old:
          ++count.old;
          break;
        case Found::fresh:
          ++count.fresh;
          break;
        case Found::neither:
          ADD_FAILURE() << "neither old nor new behind " << behind << ": "
                        << found.names().join(u", "_s).toStdString();
      }
    }
    return count;
  }
};

std::optional<QByteArray> bytesAt(const QString& path) {
  return QFileInfo::exists(path) ? std::optional(bytesIn(path)) : std::nullopt;
}

class PlacesWithoutPower : public LossOfPower {
 protected:
  /// Adds a place. Before that the file held these bytes, or was not there.
  void expectPlaces(const std::optional<QByteArray>& bytes) {
    if (bytes) {
      tests::writeBytes(folder / name, *bytes);
    }
    const auto old = readIn(folder);
    QList<model::CityPreset> fresh;
    expectOldOrNew(
        [&] {
          model::SavedLocations saved(folder / name, &QUuid::createUuid);
          saved.loadCities();
          first = saved.cities().mid(1);
          ASSERT_TRUE(std::holds_alternative<QUuid>(saved.add(u"Dune"_s, 0.5, -0.25)));
          fresh = saved.cities().mid(1);
        },
        [&](const Folder& found) {
          const auto reading = readIn(found);
          if (reading.state == State::whole && reading.places == fresh) {
            return Found::fresh;
          }
          // The list of a first start is saved on the way.
          const bool isFirst = reading.state == State::whole && reading.places == first;
          const bool isOld = reading.state == old.state && reading.places == old.places;
          const bool isKept = !bytes || isOld || old.state == State::whole ||
                              tests::isKeptAside(found.path(), u"locations"_s, *bytes);
          const bool isWaiting = reading.state == State::missing && old.state != State::whole;
          return (isOld || isFirst || isWaiting) && isKept ? Found::old : Found::neither;
        },
        true);
  }

 private:
  using State = model::LocationsFile::State;

  [[nodiscard]] model::LocationsFile::Reading readIn(const Folder& where) const {
    return model::LocationsFile(where / name).read();
  }

  const QString name = u"locations.json"_s;
  QList<model::CityPreset> first;
};

TEST_P(PlacesWithoutPower, AListThatIsChanged) {
  expectPlaces("[]");
}

TEST_P(PlacesWithoutPower, TheFirstList) {
  expectPlaces(std::nullopt);
}

TEST_P(PlacesWithoutPower, AFileThatIsNoListIsKeptBeside) {
  expectPlaces("no list");
}

class SettingsWithoutPower : public LossOfPower {
 protected:
  void expectSettings(const std::optional<QByteArray>& bytes) {
    const QString path = folder / name;
    if (bytes) {
      tests::writeBytes(path, *bytes);
    }
    const model::DateSettings old = readIn(folder);
    model::DateSettings fresh = old;
    fresh.year = 812;
    fresh.hour = 3.25;
    expectOldOrNew(
        [&] {
          model::QtSettingsStore store(path);
          storeSettings(store, fresh);
        },
        [&](const Folder& found) {
          // What cannot be read in full stays, or lies beside.
          const bool isAsItWas = bytesAt(found / name) == bytes;
          const bool isKept =
              !isUnreadable || isAsItWas || tests::isKeptAside(found.path(), u"settings"_s, *bytes);
          const model::DateSettings reading = readIn(found);
          const bool isFresh = reading.year == fresh.year && reading.hour == fresh.hour;
          if (isFresh && isKept) {
            return Found::fresh;
          }
          return isAsItWas ? Found::old : Found::neither;
        },
        false);
  }

  bool isUnreadable = false;

 private:
  [[nodiscard]] model::DateSettings readIn(const Folder& where) const {
    return model::readDateSettings(model::QtSettingsStore(where / name));
  }

  const QString name = u"settings.conf"_s;
};

TEST_P(SettingsWithoutPower, APreferenceThatIsChanged) {
  expectSettings("[General]\nAstronomyModel.year=700\n");
}

TEST_P(SettingsWithoutPower, TheFirstPreferences) {
  expectSettings(std::nullopt);
}

TEST_P(SettingsWithoutPower, AFileThatCannotBeReadIsKeptBeside) {
  isUnreadable = true;
  expectSettings("[General]\nAstronomyModel.year=700\nwhat is this\n");
}

using ExportsWithoutPower = LossOfPower;

TEST_P(ExportsWithoutPower, EveryForm) {
  using documents::Form;
  for (const Form form : {Form::svg, Form::html, Form::pdf, Form::png}) {
    SCOPED_TRACE(documents::formEntry(form).name);
    const QString name = QString::fromUtf8(documents::formEntry(form).name);
    const tests::TwoExports exports(form);
    for (const std::optional<QByteArray>& old : {std::optional<QByteArray>(), {"the old file"}}) {
      if (old) {
        tests::writeBytes(folder / name, *old);
      }
      expectOldOrNew([&] { EXPECT_EQ(exports.save(0, folder / name), std::nullopt); },
                     [&](const Folder& found) {
                       const auto left = bytesAt(found / name);
                       if (left == bytesAt(folder / name)) {
                         return Found::fresh;
                       }
                       return left == old ? Found::old : Found::neither;
                     },
                     true);
      QFile::remove(folder / name);
    }
  }
}

const auto nameOfCase = [](const auto& test) {
  return std::string(test.param ? "FilesHaveNames" : "FilesWithoutNames");
};
INSTANTIATE_TEST_SUITE_P(Disks, PlacesWithoutPower, testing::Bool(), nameOfCase);
INSTANTIATE_TEST_SUITE_P(Disks, SettingsWithoutPower, testing::Bool(), nameOfCase);
INSTANTIATE_TEST_SUITE_P(Disks, ExportsWithoutPower, testing::Bool(), nameOfCase);

}  // namespace
}  // namespace veyruna
