#include "model/ownerless_lock.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace veyruna::model {

void removeOwnerlessLock(const QString& path) {
  constexpr qint64 aSecond = 1000;
  const QFileInfo lock(path);
  if (lock.exists() && lock.size() == 0 &&
      lock.lastModified().msecsTo(QDateTime::currentDateTime()) > aSecond) {
    QFile::remove(path);
  }
}

}  // namespace veyruna::model
