#include "model/locations_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include "files/file_writer.h"
#include "model/locations_text.h"
#include "model/ownerless_lock.h"
#include "model/unreadable_name.h"

namespace veyruna::model {

std::optional<QString> locationsFileURL() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  if (folder.isEmpty()) {
    return std::nullopt;
  }
  return folder + QStringLiteral("/VeyrunaAstro/locations.json");
}

LocationsFile::Reading LocationsFile::read() const {
  const QFileInfo info(path_);
  if (!info.exists() && !info.isSymLink()) {
    return {State::missing, {}};
  }
  QFile file(path_);
  if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
    return {State::unreadable, {}};
  }
  const QByteArray text = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    return {State::unreadable, {}};
  }
  const std::optional<QList<CityPreset>> places = placesIn(text);
  return places ? Reading{State::whole, *places} : Reading{State::unreadable, {}};
}

bool LocationsFile::write(const QList<CityPreset>& places) const {
  const QByteArray text = locationsText(places);
  return makeFolder() &&
         !files::writeWholeFile(QFile::encodeName(path_).toStdString(),
                                {text.constData(), static_cast<std::size_t>(text.size())});
}

bool LocationsFile::keepAside() const {
  return QDir().rename(path_, unreadableName(path_));
}

std::unique_ptr<QLockFile> LocationsFile::lock() const {
  constexpr int patienceMilliseconds = 2000;
  if (!makeFolder()) {
    return nullptr;
  }
  auto lock = std::make_unique<QLockFile>(path_ + QStringLiteral(".lock"));
  removeOwnerlessLock(lock->fileName());
  if (lock->tryLock(patienceMilliseconds)) {
    return lock;
  }
  removeOwnerlessLock(lock->fileName());  // by now it is old enough to tell
  return lock->tryLock() ? std::move(lock) : nullptr;
}

bool LocationsFile::makeFolder() const {
  return QDir().mkpath(QFileInfo(path_).path());
}

}  // namespace veyruna::model
