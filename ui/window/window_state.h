#pragma once

#include <QString>
#include <optional>

#include "model/qt_settings_store.h"
#include "ui/window/placement.h"

namespace veyruna::ui {

/// What the windows remember between two starts, in a file of its own: where the last one stood,
/// how it was divided, and where the last export went.
class WindowState {
 public:
  explicit WindowState(const QString& path);

  /// Where the window that was closed last stood; nothing where that is not known.
  [[nodiscard]] std::optional<Placement> placement() const;
  void setPlacement(const Placement& placement);

  /// How wide its sidebar was, in points; nothing where that is not known.
  [[nodiscard]] std::optional<int> sidebarWidth() const;
  void setSidebarWidth(int width);

  /// Where the last export went; the documents folder before the first, or where that folder is
  /// gone.
  [[nodiscard]] QString exportFolder() const;
  void setExportFolder(const QString& folder);

 private:
  model::QtSettingsStore state_;
};

}  // namespace veyruna::ui
