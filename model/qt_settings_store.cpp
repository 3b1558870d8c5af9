#include "model/qt_settings_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <algorithm>

#include "files/file_writer.h"
#include "model/ownerless_lock.h"
#include "model/stored_value.h"
#include "model/unreadable_name.h"

namespace veyruna::model {

namespace {

/// Organisation and application: "VeyrunaAstro/VeyrunaAstro.conf" on a desktop that follows the
/// freedesktop folders.
const QString programName = QStringLiteral("VeyrunaAstro");

/// Whether every line is one that a preferences file has: blank, a comment, a section, or a key
/// with its value. QSettings drops what is none of these when it writes.
bool isPreferences(const QByteArray& content) {
  const QList<QByteArray> lines = content.split('\n');
  return std::all_of(lines.begin(), lines.end(), [](const QByteArray& line) {
    const QByteArray text = line.trimmed();
    const bool isSection = text.startsWith('[') && text.endsWith(']');
    return text.isEmpty() || text.startsWith(';') || text.startsWith('#') || isSection ||
           (text.contains('=') && !text.startsWith('['));
  });
}

}  // namespace

QtSettingsStore::QtSettingsStore()
    : settings_(QSettings::NativeFormat, QSettings::UserScope, programName, programName) {
  settings_.setFallbacksEnabled(false);
}

QtSettingsStore::QtSettingsStore(const QString& path) : settings_(path, QSettings::IniFormat) {}

QVariant QtSettingsStore::stored(const QString& key) const {
  const auto waiting = waiting_.constFind(key);
  return waiting != waiting_.cend() ? *waiting : settings_.value(key);
}

void QtSettingsStore::store(const Group& group) {
  for (const auto& [key, value] : group) {
    waiting_.insert(key, value);
  }
  if (!keepsAsideWhatIsUnreadable() || !hasRoom()) {
    return;
  }
  removeOwnerlessLock(settings_.fileName() + QStringLiteral(".lock"));
  for (auto waiting = waiting_.cbegin(); waiting != waiting_.cend(); ++waiting) {
    settings_.setValue(waiting.key(), waiting->typeId() == QMetaType::Double
                                          ? QVariant(storableText(waiting->toDouble()))
                                          : *waiting);
  }
  waiting_.clear();
}

/// False where something unreadable is there and cannot be copied.
bool QtSettingsStore::keepsAsideWhatIsUnreadable() {
  QFile file(settings_.fileName());
  if (!QFileInfo(file).exists()) {
    return true;
  }
  if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
    return false;
  }
  const QByteArray content = file.readAll();
  if (isPreferences(content) || content == keptAside_) {
    return true;
  }
  // On disk before anything is written over the original, even if the power goes.
  if (files::writeWholeFile(QFile::encodeName(unreadableName(file.fileName())).toStdString(),
                            {content.constData(), static_cast<std::size_t>(content.size())})) {
    return false;
  }
  keptAside_ = content;
  return true;
}

/// QSettings puts an empty file in place where the disk is full; so the room is tried first.
bool QtSettingsStore::hasRoom() const {
  constexpr qsizetype ampleBytes = 16384;
  const QFileInfo file(settings_.fileName());
  if (!QDir().mkpath(file.path())) {
    return false;
  }
  QTemporaryFile probe(file.filePath() + QStringLiteral(".XXXXXX"));
  return probe.open() && probe.write(QByteArray(ampleBytes, ' ')) == ampleBytes && probe.flush();
}

}  // namespace veyruna::model
