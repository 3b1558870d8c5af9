#pragma once

#include <QTimer>
#include <memory>

#include "model/settings_store.h"

namespace veyruna::model {

/// A store that can be held while values run: what is stored then is handed on once a second, and
/// when it is let go or destroyed. Otherwise it hands on at once.
class UnhurriedStore final : public SettingsStore {
 public:
  explicit UnhurriedStore(std::shared_ptr<SettingsStore> store);
  UnhurriedStore(const UnhurriedStore&) = delete;
  UnhurriedStore& operator=(const UnhurriedStore&) = delete;
  ~UnhurriedStore() override;

  [[nodiscard]] QVariant stored(const QString& key) const override;
  /// Of groups with the same first key, the last is handed on.
  void store(const Group& group) override;

  void hold() { isHeld_ = true; }
  void letGo();

 private:
  void handOn();

  std::shared_ptr<SettingsStore> store_;
  std::vector<Group> waiting_;
  QTimer pause_;
  bool isHeld_ = false;
};

}  // namespace veyruna::model
