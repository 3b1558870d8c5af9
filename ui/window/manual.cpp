#include "ui/window/manual.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace veyruna::ui {

namespace {

QUrl page(const char* name) {
  for (const QString& folder :
       {QCoreApplication::applicationDirPath() + QStringLiteral("/../share/doc/veyruna/manual"),
        QStringLiteral(VEYRUNA_MANUAL_DIR)}) {
    const QFileInfo file(folder + QLatin1Char('/') + QLatin1String(name));
    if (file.exists()) {
      return QUrl::fromLocalFile(file.canonicalFilePath());
    }
  }
  return {};
}

/// Whole pages: not every desktop opens a file at an anchor.
const char* chapterOf(exports::OutputTab tab) {
  using exports::OutputTab;
  switch (tab) {
    case OutputTab::starMap:
      return "star-map.html";
    case OutputTab::horoscope:
      return "horoscope.html";
    case OutputTab::planets:
    case OutputTab::sunMoon:
    case OutputTab::positions:
      return "tables.html";
    case OutputTab::location:
      return "map.html";
  }
  return "index.html";
}

}  // namespace

QUrl manual() {
  return page("index.html");
}

QUrl manualChapter(exports::OutputTab tab) {
  return page(chapterOf(tab));
}

}  // namespace veyruna::ui
