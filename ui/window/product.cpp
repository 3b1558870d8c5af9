#include "ui/window/product.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "astro/invariant.h"

namespace veyruna::ui {

namespace {

/// A text that the owner's file must hold.
QString textIn(const QJsonObject& object, const char* key) {
  QString text = object[QLatin1String(key)].toString();
  astro::requireInvariant(!text.isEmpty(), "the product texts hold names and titles");
  return text;
}

ProductLink linkIn(const QJsonObject& product, const char* key) {
  const QJsonObject link =
      product[QLatin1String("links")].toObject()[QLatin1String(key)].toObject();
  const QString address = link[QLatin1String("address")].toString();
  return {textIn(link, "title"), address.isEmpty() ? QUrl() : QUrl(address, QUrl::StrictMode)};
}

Product readProduct() {
  QFile file(QStringLiteral(":/product.json"));
  const bool isOpen = file.open(QIODevice::ReadOnly);
  const QJsonObject product =
      isOpen ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
  QStringList credits;
  for (const auto& paragraph : product[QLatin1String("credits")].toArray()) {
    credits.append(paragraph.toString());
  }
  return {textIn(product, "name"),
          textIn(product, "title"),
          credits,
          linkIn(product, "documentation"),
          linkIn(product, "developerWebsite"),
          linkIn(product, "community"),
          linkIn(product, "publisher"),
          linkIn(product, "publishersEdition")};
}

}  // namespace

QString leadsTo(const ProductLink& link) {
  return link.address.isValid() ? link.address.toDisplayString()
                                : QCoreApplication::translate(
                                      "ProductLink", "No address has been given for this yet.");
}

QString labelOf(QString title) {
  return title.replace(QLatin1Char('&'), QLatin1String("&&"));
}

const Product& product() {
  static const Product texts = readProduct();
  return texts;
}

}  // namespace veyruna::ui
