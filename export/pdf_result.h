#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>
#include <functional>
#include <variant>

namespace veyruna::exports {

/// Why there is no PDF, in plain words.
struct RenderFailure {
  QString description;
};

/// The bytes of a PDF file, or why there are none.
using PdfResult = std::variant<QByteArray, RenderFailure>;

/// Called exactly once, on the interface thread.
using PdfCompletion = std::function<void(const PdfResult&)>;

/// Renders an HTML document on pages of so many points and calls the completion later.
using PdfRenderer = std::function<void(const QString& html, const QSizeF& pageSizePoints,
                                       const PdfCompletion& completion)>;

}  // namespace veyruna::exports
