#pragma once

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <vector>

#include "tests/model/disk.h"
#include "tests/support/pdf_dates.h"

namespace veyruna::tests {

/// The text without the blanks at the ends of its lines, runs of blanks as one, and no empty lines.
QStringList squeezedLines(const QString& text);

/// A PDF as another program reads it, Poppler's. What that program finds wrong throws.
class PdfReader {
 public:
  struct Page {
    double width;   ///< points
    double height;  ///< points
  };
  /// A word where it stands, in points from the page's upper left corner.
  struct Word {
    QString text;
    std::size_t page;
    double left, top, right, bottom;
  };

  explicit PdfReader(const QByteArray& pdf);

  [[nodiscard]] std::vector<Page> pages() const;
  [[nodiscard]] std::vector<Word> words() const;
  /// squeezedLines of the text laid out as on the pages.
  [[nodiscard]] QStringList lines() const;
  /// squeezedLines of the text in the order of the file.
  [[nodiscard]] QStringList rawLines() const;
  /// What the file says of itself under a name, such as "Title".
  [[nodiscard]] QString information(const QString& name) const;
  /// For every font whether it is embedded: "yes" or "no".
  [[nodiscard]] QStringList embeddings() const;
  /// For every picture its size in pixels: "7x5".
  [[nodiscard]] QStringList imageSizes() const;
  [[nodiscard]] QImage picture(int dotsPerInch) const;

 private:
  [[nodiscard]] QString path() const { return folder_ / QStringLiteral("a.pdf"); }

  Folder folder_;
};

}  // namespace veyruna::tests
