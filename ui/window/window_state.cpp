#include "ui/window/window_state.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace veyruna::ui {

namespace {

const QString geometryKey = QStringLiteral("geometry");
const QString exportFolderKey = QStringLiteral("exportFolder");

}  // namespace

WindowState::WindowState(const QString& path) : state_(path) {}

QByteArray WindowState::geometry() const {
  return QByteArray::fromBase64(state_.stored(geometryKey).toString().toLatin1());
}

void WindowState::setGeometry(const QByteArray& geometry) {
  state_.store({{geometryKey, QString::fromLatin1(geometry.toBase64())}});
}

QString WindowState::exportFolder() const {
  const QString folder = state_.stored(exportFolderKey).toString();
  return QFileInfo(folder).isDir()
             ? folder
             : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void WindowState::setExportFolder(const QString& folder) {
  state_.store({{exportFolderKey, folder}});
}

}  // namespace veyruna::ui
