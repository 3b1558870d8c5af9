#include "tests/ui/golden/golden_look.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <algorithm>
#include <cstdlib>

#include "tests/support/source_path.h"

namespace veyruna::tests {

namespace {

constexpr int tolerance = 3;  // levels: processors blend with one rounding or another

bool isAlike(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
         std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

struct Difference {
  int pixels = 0;
  QRect area;
  QImage seen;  ///< the picture, pale, with what differs in red
};

Difference compared(const QImage& picture, const QImage& golden) {
  Difference found;
  found.seen = picture;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const bool isThere = golden.valid(x, y) && isAlike(picture.pixel(x, y), golden.pixel(x, y));
      const int pale = 192 + qGray(picture.pixel(x, y)) / 4;
      found.seen.setPixel(x, y, isThere ? qRgb(pale, pale, pale) : qRgb(255, 0, 0));
      if (!isThere) {
        ++found.pixels;
        found.area |= QRect(x, y, 1, 1);
      }
    }
  }
  return found;
}

}  // namespace

testing::AssertionResult isGoldenLook(const QImage& picture, const std::string& name) {
  const QString path = QString::fromStdString(sourcePath("tests/ui/pictures/" + name));
  const QString received = path + QStringLiteral(".received");
  const QString difference = path + QStringLiteral(".difference");
  const QImage plain = picture.convertToFormat(QImage::Format_RGB32);
  const QImage golden = QImage(path).convertToFormat(QImage::Format_RGB32);
  const Difference found = compared(plain, golden);
  if (plain.size() == golden.size() && found.pixels == 0) {
    QFile::remove(received);
    QFile::remove(difference);
    return testing::AssertionSuccess();
  }
  plain.save(received, "PNG");
  found.seen.save(difference, "PNG");
  return testing::AssertionFailure()
         << name << ": " << plain.width() << " x " << plain.height() << " pixels instead of "
         << golden.width() << " x " << golden.height() << "; " << found.pixels << " differ, from "
         << found.area.left() << ',' << found.area.top() << " to " << found.area.right() << ','
         << found.area.bottom() << ": see " << qPrintable(difference)
         << "\nTo accept what is drawn now: " << sourcePath("tests/accept") << " ui/pictures/"
         << name;
}

QImage sheetOf(const QList<QList<QImage>>& rows, const QColor& ground) {
  constexpr int between = 6;
  QSize size(between, between);
  for (const QList<QImage>& row : rows) {
    QSize all(between, 0);
    for (const QImage& picture : row) {
      all =
          QSize(all.width() + picture.width() + between, std::max(all.height(), picture.height()));
    }
    size = QSize(std::max(size.width(), all.width()), size.height() + all.height() + between);
  }
  QImage sheet(size, QImage::Format_RGB32);
  sheet.fill(ground);
  QPainter painter(&sheet);
  int y = between;
  for (const QList<QImage>& row : rows) {
    int x = between;
    int highest = 0;
    for (const QImage& picture : row) {
      painter.drawImage(x, y, picture);
      x += picture.width() + between;
      highest = std::max(highest, picture.height());
    }
    y += highest + between;
  }
  return sheet;
}

}  // namespace veyruna::tests
