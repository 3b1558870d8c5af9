#pragma once

#include <QString>

namespace veyruna::model {

/// Why a place cannot be saved under a name.
class LocationError {
 public:
  static LocationError emptyName() { return LocationError({}); }
  static LocationError duplicateName(const QString& name) { return LocationError(name); }

  [[nodiscard]] bool isEmptyName() const { return duplicate_.isEmpty(); }
  /// The name that exists already, as it was typed but trimmed; empty for emptyName.
  [[nodiscard]] const QString& duplicate() const { return duplicate_; }

  /// What the person is told.
  [[nodiscard]] QString description() const {
    return isEmptyName() ? QStringLiteral("Please enter a name.")
                         : QStringLiteral("\"") + duplicate_ + QStringLiteral("\" already exists.");
  }

  friend bool operator==(const LocationError&, const LocationError&) = default;

 private:
  explicit LocationError(QString duplicate) : duplicate_(std::move(duplicate)) {}
  QString duplicate_;
};

}  // namespace veyruna::model
