#pragma once

#include <QByteArray>
#include <QString>

#include "model/qt_settings_store.h"

namespace veyruna::ui {

/// What the windows remember between two starts, in a file of its own: where the last one stood and
/// where the last export went.
class WindowState {
 public:
  explicit WindowState(const QString& path);

  /// A window's geometry as QWidget::saveGeometry has it; empty where none is remembered.
  [[nodiscard]] QByteArray geometry() const;
  void setGeometry(const QByteArray& geometry);

  /// Where the last export went; the documents folder before the first, or where that folder is
  /// gone.
  [[nodiscard]] QString exportFolder() const;
  void setExportFolder(const QString& folder);

 private:
  model::QtSettingsStore state_;
};

}  // namespace veyruna::ui
