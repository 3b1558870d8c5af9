// A program that saves and saves, for the tests that kill it: `kill_child places FILE` adds a place
// and deletes it again, `kill_child settings FILE` sets year after year. Each step, numbered from
// one, is announced on standard output when it is done.
#include <QCoreApplication>
#include <string_view>
#include <unistd.h>

#include "model/qt_settings_store.h"
#include "model/saved_locations.h"
#include "model/stored_settings.h"

namespace {

using namespace veyruna;

void announce(std::uint32_t step) {
  if (write(STDOUT_FILENO, &step, sizeof step) != sizeof step) {
    _exit(1);
  }
}

[[noreturn]] void savePlaces(const QString& path) {
  model::SavedLocations saved(path, &QUuid::createUuid);
  saved.loadCities();
  announce(0);
  QUuid added;
  for (std::uint32_t step = 1;; ++step) {
    if (step % 2 == 1) {
      const auto outcome = saved.add(QStringLiteral("Place of step %1").arg(step), 0.25, -0.5);
      added = std::holds_alternative<QUuid>(outcome) ? std::get<QUuid>(outcome) : QUuid();
    } else {
      saved.remove(added);
    }
    announce(step);
  }
}

[[noreturn]] void saveSettings(const QString& path) {
  model::QtSettingsStore store(path);
  model::DateSettings date;
  announce(0);
  for (std::uint32_t step = 1;; ++step) {
    date.year = step;
    model::storeSettings(store, date);
    QCoreApplication::processEvents();
    announce(step);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 3) {
    return 2;
  }
  const QString path = QString::fromLocal8Bit(argv[2]);
  if (std::string_view(argv[1]) == "places") {
    savePlaces(path);
  }
  saveSettings(path);
}
