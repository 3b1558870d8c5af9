#include "model/unreadable_name.h"

#include <QFileInfo>

namespace veyruna::model {

QString unreadableName(const QString& path) {
  const QFileInfo file(path);
  const QString stem = file.path() + QLatin1Char('/') + file.completeBaseName();
  const auto numbered = [&](int number) {
    const QString suffix = number > 1 ? QStringLiteral("-%1").arg(number) : QString();
    return stem + QStringLiteral(".unreadable") + suffix + QLatin1Char('.') + file.suffix();
  };
  int number = 1;
  // A dangling link is no file, but it is somebody's: its name is taken too.
  while (QFileInfo::exists(numbered(number)) || QFileInfo(numbered(number)).isSymLink()) {
    ++number;
  }
  return numbered(number);
}

}  // namespace veyruna::model
