#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace veyruna::ui {

/// A link that the owner of the product names.
struct ProductLink {
  QString title;
  QUrl address;  ///< invalid where none has been given
};

/// Where the link leads, or why it does nothing, as a person is told.
QString leadsTo(const ProductLink& link);

/// A title as the text of a button or menu entry, in which "&" would mark a key.
QString labelOf(QString title);

/// The texts and addresses that belong to the owner of the product, from resources/product.json,
/// the one place that says what the program is called.
struct Product {
  QString name;               ///< of the program, as a menu or a desktop lists it
  QString title;              ///< of its window
  QStringList credits;        ///< paragraphs, with <b> for what stands in bold
  ProductLink documentation;  ///< the manual that ships with the program; its address is not here
  ProductLink developerWebsite;
  ProductLink community;
  ProductLink publisher;
  ProductLink publishersEdition;
};

/// Read once; the same for the life of the program. Needs no application object.
const Product& product();

}  // namespace veyruna::ui
