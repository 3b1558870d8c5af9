#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

namespace veyruna::ui {

/// The texts and addresses that belong to the owner of the product, from resources/product.json.
/// An address that is not filled in is an invalid URL.
struct Product {
  QStringList credits;  ///< paragraphs, with <b> for what stands in bold
  QUrl documentation;   ///< the manual that ships with the program
  QUrl developerWebsite;
  QUrl community;
  QUrl publisher;
  QUrl publishersEdition;
};

Product readProduct();

}  // namespace veyruna::ui
