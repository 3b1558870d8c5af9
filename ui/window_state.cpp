#include "ui/window_state.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace veyruna::ui {

namespace {

const QString geometryKey = QStringLiteral("geometry");
const QString exportFolderKey = QStringLiteral("exportFolder");

}  // namespace

WindowState::WindowState(const QString& path) : state_(path, QSettings::IniFormat) {}

QByteArray WindowState::geometry() const {
  return state_.value(geometryKey).toByteArray();
}

void WindowState::setGeometry(const QByteArray& geometry) {
  state_.setValue(geometryKey, geometry);
}

QString WindowState::exportFolder() const {
  const QString folder = state_.value(exportFolderKey).toString();
  return QFileInfo(folder).isDir()
             ? folder
             : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void WindowState::setExportFolder(const QString& folder) {
  state_.setValue(exportFolderKey, folder);
}

}  // namespace veyruna::ui
