#pragma once

#include <QString>
#include <QVariant>
#include <utility>
#include <vector>

namespace veyruna::model {

/// The user's preferences, by key. A test hands in a store of its own.
class SettingsStore {
 public:
  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;
  virtual ~SettingsStore() = default;

  using Group = std::vector<std::pair<QString, QVariant>>;

  /// What is stored under the key, as it was stored or as text; invalid where nothing is.
  [[nodiscard]] virtual QVariant stored(const QString& key) const = 0;

  /// Stores a group of values together.
  virtual void store(const Group& group) = 0;
};

}  // namespace veyruna::model
