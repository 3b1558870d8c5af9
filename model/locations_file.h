#pragma once

#include <QList>
#include <QString>
#include <memory>
#include <optional>

#include "model/city_preset.h"

class QLockFile;

namespace veyruna::model {

/// Where the saved places of this user are kept: "VeyrunaAstro/locations.json" in the platform's
/// folder for application data. Nothing where there is no such folder. Creates nothing.
std::optional<QString> locationsFileURL();

/// The file of saved places.
class LocationsFile {
 public:
  explicit LocationsFile(QString path) : path_(std::move(path)) {}

  enum class State {
    missing,     ///< there is no such file
    unreadable,  ///< something is there, but no list of places
    whole
  };
  struct Reading {
    State state = State::missing;
    QList<CityPreset> places;  ///< empty unless whole
  };
  [[nodiscard]] Reading read() const;

  /// Puts the file in place whole (files::writeWholeFile); makes its folder where it is missing.
  /// False where that fails, and then the old file is as it was.
  [[nodiscard]] bool write(const QList<CityPreset>& places) const;

  /// Moves what is there to a free name beside it, "locations.unreadable.json" or numbered. False
  /// where that fails, and then it is as it was.
  [[nodiscard]] bool keepAside() const;

  /// Keeps other programs from changing the file while the lock lives; null where it cannot be had
  /// within two seconds.
  [[nodiscard]] std::unique_ptr<QLockFile> lock() const;

  [[nodiscard]] const QString& path() const { return path_; }

 private:
  [[nodiscard]] bool makeFolder() const;

  QString path_;
};

}  // namespace veyruna::model
