#pragma once

#include <QStringList>

#include "tests/ui/shown_window.h"

namespace veyruna::tests {

/// The real window with what its controls have stored.
struct ControlWindow : testing::Test, ShownWindow {
  /// The groups of preferences that were stored since the last call, by their first keys.
  QStringList stored() {
    QStringList keys;
    for (const auto& group : settings->groups) {
      keys.append(group.front().first);
    }
    settings->groups.clear();
    return keys;
  }
  /// Nothing is being calculated and nothing waits to be.
  [[nodiscard]] bool isIdle() const { return !model.isCalculating() && tasks.count() == 0; }
};

}  // namespace veyruna::tests
