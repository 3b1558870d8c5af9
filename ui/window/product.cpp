#include "ui/window/product.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "astro/invariant.h"

namespace veyruna::ui {

namespace {

QUrl addressIn(const QJsonObject& links, const char* name) {
  const QString text = links[QLatin1String(name)].toString();
  return text.isEmpty() ? QUrl() : QUrl(text, QUrl::StrictMode);
}

/// The manual beside the program, where it is installed or built.
QUrl manual() {
  for (const QString& folder :
       {QCoreApplication::applicationDirPath() + QStringLiteral("/../share/doc/veyruna/manual"),
        QStringLiteral(VEYRUNA_MANUAL_DIR)}) {
    const QFileInfo page(folder + QStringLiteral("/index.html"));
    if (page.exists()) {
      return QUrl::fromLocalFile(page.canonicalFilePath());
    }
  }
  return {};
}

}  // namespace

Product readProduct() {
  QFile file(QStringLiteral(":/product.json"));
  const bool isOpen = file.open(QIODevice::ReadOnly);
  const QJsonObject product =
      isOpen ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
  astro::requireInvariant(!product.isEmpty(), "the program carries its product texts");
  QStringList credits;
  for (const auto& paragraph : product[QLatin1String("credits")].toArray()) {
    credits.append(paragraph.toString());
  }
  const QJsonObject links = product[QLatin1String("links")].toObject();
  return {credits,
          manual(),
          addressIn(links, "developerWebsite"),
          addressIn(links, "community"),
          addressIn(links, "publisher"),
          addressIn(links, "publishersEdition")};
}

}  // namespace veyruna::ui
