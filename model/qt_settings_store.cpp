#include "model/qt_settings_store.h"

#include <QFile>
#include <QFileInfo>

#include "model/keep_aside.h"
#include "model/stored_value.h"

namespace veyruna::model {

namespace {

/// Organisation and application: "VeyrunaAstro/VeyrunaAstro.conf" on a desktop that follows the
/// freedesktop folders.
const QString programName = QStringLiteral("VeyrunaAstro");

}  // namespace

QtSettingsStore::QtSettingsStore()
    : settings_(QSettings::NativeFormat, QSettings::UserScope, programName, programName),
      needsCopy_(settings_.status() != QSettings::NoError) {
  settings_.setFallbacksEnabled(false);
}

QtSettingsStore::QtSettingsStore(const QString& path)
    : settings_(path, QSettings::IniFormat), needsCopy_(settings_.status() != QSettings::NoError) {}

QVariant QtSettingsStore::stored(const QString& key) const {
  return settings_.value(key);
}

void QtSettingsStore::store(const std::vector<std::pair<QString, QVariant>>& group) {
  if (!mayWrite()) {
    return;
  }
  for (const auto& [key, value] : group) {
    settings_.setValue(key, value.typeId() == QMetaType::Double
                                ? QVariant(storableText(value.toDouble()))
                                : value);
  }
}

bool QtSettingsStore::mayWrite() {
  if (needsCopy_ && QFileInfo::exists(settings_.fileName())) {
    needsCopy_ = !QFile::copy(settings_.fileName(), unreadableName(settings_.fileName()));
  }
  return !needsCopy_ || !QFileInfo::exists(settings_.fileName());
}

}  // namespace veyruna::model
