#pragma once

#include <QByteArray>
#include <QMap>
#include <QSettings>

#include "model/settings_store.h"

namespace veyruna::model {

/// The preferences in the platform's own form and place. What is stored is on disk when the event
/// loop's turn ends, or when the store is destroyed.
/// A preferences file that cannot be read in full is copied aside as "….unreadable.conf" (numbered
/// where that exists) before anything is written over it. Where that fails, or where the disk has
/// no room, the old file stays and the values go with the next change; until then they are read
/// from memory.
class QtSettingsStore final : public SettingsStore {
 public:
  /// The preferences file in the user's configuration folder.
  QtSettingsStore();
  /// A preferences file of its own, in the form of an INI file.
  explicit QtSettingsStore(const QString& path);

  [[nodiscard]] QVariant stored(const QString& key) const override;
  void store(const Group& group) override;

 private:
  [[nodiscard]] bool keepsAsideWhatIsUnreadable();
  [[nodiscard]] bool hasRoom() const;

  QSettings settings_;
  QMap<QString, QVariant> waiting_;  ///< not handed to settings_ yet
  QByteArray keptAside_;             ///< the unreadable content that was copied last
};

}  // namespace veyruna::model
