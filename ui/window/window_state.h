#pragma once

#include <QString>
#include <optional>

#include "model/qt_settings_store.h"
#include "model/time_step.h"
#include "ui/window/placement.h"

namespace veyruna::ui {

/// What the windows remember between two starts, in a file of its own: where the last one stood,
/// how it was divided, how time was played, and where the last export went.
class WindowState {
 public:
  explicit WindowState(const QString& path);

  /// Where the window that was closed last stood; nothing where that is not known.
  [[nodiscard]] std::optional<Placement> placement() const;
  void setPlacement(const Placement& placement);

  /// How wide its sidebar was, in points; nothing where that is not known.
  [[nodiscard]] std::optional<int> sidebarWidth() const;
  void setSidebarWidth(int width);

  /// Whether time is live; not before the first start.
  [[nodiscard]] bool isLive() const;
  void setLive(bool isLive);

  /// The step and the speed that time is played with; nothing where they are not known.
  [[nodiscard]] std::optional<model::TimeStep> timeStep() const;
  [[nodiscard]] std::optional<double> timeSpeed() const;
  void setPace(model::TimeStep step, double speed);

  /// Where the last export went; the documents folder before the first, or where that folder is
  /// gone.
  [[nodiscard]] QString exportFolder() const;
  void setExportFolder(const QString& folder);

 private:
  model::QtSettingsStore state_;
};

}  // namespace veyruna::ui
