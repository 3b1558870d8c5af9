// A program that saves beside another: `sharing_child WHAT FILE NAME STEPS SECONDS` makes at least
// so many changes and goes on for so long. What: `places` adds places that are called by its name
// and removes every third again; `date` and `place` store these preferences. How many changes were
// made is told on standard output when all of them are handed over.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSet>
#include <cstdio>
#include <string_view>

#include "model/qt_settings_store.h"
#include "model/saved_locations.h"
#include "model/stored_settings.h"
#include "tests/model/sharing_steps.h"

namespace {

using namespace veyruna;

/// One change after the other of a program's places.
class Places {
 public:
  Places(const QString& path, QString name)
      : path_(path), name_(std::move(name)), saved_(path, &QUuid::createUuid) {
    saved_.loadCities();
  }

  void step(int number) {
    const auto added = saved_.add(tests::placeOfStep(name_, number), 0.01, -0.02);
    if (tests::isTakenAway(number)) {
      saved_.remove(std::get<QUuid>(added));
    } else {
      mine_.insert(std::get<QUuid>(added));
    }
  }

  /// What the other kept from being written while it held the lock, as at the end of the program.
  void finish() {
    while (!isAllWritten()) {
      saved_.saveWhatWaits();
    }
  }

 private:
  /// Whether the file has of this program's places those that are there, and no other.
  [[nodiscard]] bool isAllWritten() const {
    QSet<QUuid> inFile;
    for (const model::CityPreset& place : model::LocationsFile(path_).read().places) {
      if (place.name.startsWith(name_)) {
        inFile.insert(place.id);
      }
    }
    return inFile == mine_;
  }

  QString path_;
  QString name_;
  model::SavedLocations saved_;
  QSet<QUuid> mine_;
};

class Preferences {
 public:
  Preferences(const QString& path, bool isDate) : store_(path), isDate_(isDate) {}

  void step(int number) {
    if (isDate_) {
      date_.year = number;
      date_.hour = tests::hourOfStep(number);
      storeSettings(store_, date_);
    } else {
      place_.manualLatDeg = number;
      place_.latNorth = number % 2 == 0;
      storeSettings(store_, place_);
    }
    QCoreApplication::processEvents();
  }

  void finish() const {}

 private:
  model::QtSettingsStore store_;
  bool isDate_;
  model::DateSettings date_;
  model::LocationSettings place_;
};

template <class Changes>
int runFor(Changes changes, int steps, int seconds) {
  QElapsedTimer clock;
  clock.start();
  int step = 0;
  while (step < steps || clock.elapsed() < seconds * 1000) {
    changes.step(++step);
  }
  changes.finish();
  return step;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 6) {
    return 2;
  }
  const std::string_view what = argv[1];
  const QString path = QString::fromLocal8Bit(argv[2]);
  const int steps = std::atoi(argv[4]);
  const int seconds = std::atoi(argv[5]);
  const int done = what == "places"
                       ? runFor(Places(path, QString::fromLocal8Bit(argv[3])), steps, seconds)
                       : runFor(Preferences(path, what == "date"), steps, seconds);
  std::printf("%d\n", done);
  return 0;
}
