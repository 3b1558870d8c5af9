#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

namespace veyruna::ui {

/// What the windows remember between two starts, in a file of its own.
class WindowState {
 public:
  explicit WindowState(const QString& path);

  [[nodiscard]] QByteArray geometry() const;
  void setGeometry(const QByteArray& geometry);

  /// Where the last export went; the documents folder before the first.
  [[nodiscard]] QString exportFolder() const;
  void setExportFolder(const QString& folder);

 private:
  QSettings state_;
};

}  // namespace veyruna::ui
