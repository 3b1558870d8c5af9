#include "ui/window/manual.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "ui/outputs/tab_views.h"

namespace veyruna::ui {

namespace {

QUrl page(const char* name) {
  for (const QString& folder :
       {QCoreApplication::applicationDirPath() + QStringLiteral("/../share/veyruna/manual"),
        QStringLiteral(VEYRUNA_MANUAL_DIR)}) {
    const QFileInfo file(folder + QLatin1Char('/') + QLatin1String(name));
    if (!folder.isEmpty() && file.exists()) {
      return QUrl::fromLocalFile(file.canonicalFilePath());
    }
  }
  return {};
}

}  // namespace

QUrl manual() {
  return page("index.html");
}

QUrl manualChapter(exports::OutputTab tab) {
  return page(viewOf(tab).manualPage);
}

}  // namespace veyruna::ui
