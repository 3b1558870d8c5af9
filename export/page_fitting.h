#pragma once

#include <QPageLayout>
#include <QSizeF>
#include <QString>
#include <QVariant>
#include <optional>

/// How a document is laid on pages: one CSS pixel is one point, unless the widest line asks for
/// less; what stands above and below the body stands above and below it on every page; a heading
/// stays with the first lines of its table.
namespace veyruna::exports {

/// A script for a loaded page. It scales the document to the page's width, takes the body's padding
/// above and below away, and returns what fittedLayout takes.
QString fittingScript(const QSizeF& pageSizePoints);

/// The pages of a document that was fitted; nothing where the script gave no answer or there can be
/// no such page.
std::optional<QPageLayout> fittedLayout(const QSizeF& pageSizePoints, const QVariant& scriptAnswer);

}  // namespace veyruna::exports
