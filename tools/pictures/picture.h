#pragma once

#include <QImage>
#include <QString>
#include <QStringList>
#include <vector>

namespace veyruna::pictures {

/// A picture of README or manual.
struct Picture {
  QStringList files;  ///< where it stands, from the folder of the project
  QImage image;
};

using Pictures = std::vector<Picture>;

/// "docs/manual/images/NAME.png"
inline QString inManual(const QString& name) {
  return QStringLiteral("docs/manual/images/%1.png").arg(name);
}

/// "docs/images/NAME.png", of README
inline QString inReadme(const QString& name) {
  return QStringLiteral("docs/images/%1.png").arg(name);
}

}  // namespace veyruna::pictures
