// make_pictures FOLDER: draws the pictures of README and manual that need no browser, each where it
// stands in the project, but below FOLDER.
// make_pictures FOLDER light|dark WIDTH HEIGHT: draws every view of the window at this size in
// points into FOLDER, to be looked at. tools/make_pictures runs it, and so does the test that
// compares what it draws with what is shown.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontInfo>
#include <cstdio>

#include "tools/pictures/chart_pictures.h"
#include "tools/pictures/window_pictures.h"

namespace {

using veyruna::pictures::Look;
using veyruna::pictures::Pictures;

/// Whether the types are there that the pictures are set in; without them all would look otherwise.
bool hasTypes() {
  for (const char* const family : {"DejaVu Sans", "DejaVu Sans Mono", "Liberation Sans"}) {
    if (QFontInfo(QFont(QLatin1String(family))).family() != QLatin1String(family)) {
      std::fprintf(stderr,
                   "make_pictures: the type %s is missing; install fonts-dejavu-core and "
                   "fonts-liberation\n",
                   family);
      return false;
    }
  }
  return true;
}

/// Whether all of them could be written.
bool save(const Pictures& pictures, const QDir& folder) {
  for (const auto& picture : pictures) {
    for (const QString& file : picture.files) {
      const QString path = folder.filePath(file);
      if (!folder.mkpath(QFileInfo(path).path()) || !picture.image.save(path, "PNG")) {
        std::fprintf(stderr, "make_pictures: cannot write %s\n", qUtf8Printable(path));
        return false;
      }
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 && argc != 5) {
    std::fputs("make_pictures FOLDER [light|dark WIDTH HEIGHT]\n", stderr);
    return 2;
  }
  const QApplication application(argc, argv);
  if (!hasTypes()) {
    return 1;
  }
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  if (argc == 5) {
    const Look look = QByteArray(argv[2]) == "dark" ? Look::dark : Look::light;
    const QSize size(QByteArray(argv[3]).toInt(), QByteArray(argv[4]).toInt());
    return save(veyruna::pictures::everyView(look, size), folder) ? 0 : 1;
  }
  return save(veyruna::pictures::chartPictures(), folder) &&
                 save(veyruna::pictures::windowPictures(), folder)
             ? 0
             : 1;
}
