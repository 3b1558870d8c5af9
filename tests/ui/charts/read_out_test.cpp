// The box beside the pointer.
#include "ui/charts/read_out.h"

#include <QApplication>
#include <QImage>
#include <gtest/gtest.h>

#include "tests/ui/charts/shown_chart.h"
#include "tests/ui/looks.h"

namespace veyruna::ui {
namespace {

TEST(ReadOuts, StandInsideTheViewAndNeverUnderThePointer) {
  for (const QSizeF view : {QSizeF(900, 600), QSizeF(400, 300), QSizeF(260, 190)}) {
    for (const QSizeF size : {QSizeF(120, 80), QSizeF(200, 90), QSizeF(90, 100)}) {
      // A box that is nearly as wide and as high as half of the view has no room beside its middle.
      if (size.width() > view.width() * 0.4 && size.height() > view.height() * 0.4) {
        continue;
      }
      for (int i = 0; i <= 20; ++i) {
        for (int j = 0; j <= 20; ++j) {
          const QPointF pointer(view.width() * i / 20.0, view.height() * j / 20.0);
          const QRectF box = boxBeside(pointer, size, view);
          EXPECT_TRUE(QRectF(QPointF(), view).contains(box));
          EXPECT_FALSE(box.contains(pointer)) << pointer.x() << " " << pointer.y();
        }
      }
    }
  }
}

TEST(ReadOuts, AreReadableInLightAndInDark) {
  for (const QPalette& palette : {tests::lightPalette(), tests::darkPalette()}) {
    EXPECT_GE(tests::contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)),
              4.5);
    const ReadOut readOut({QStringLiteral("Thessil"), QStringLiteral("Altitude: 021:30")},
                          QApplication::font());
    // Over a black and over a white chart the box looks the same.
    QImage onBlack(200, 100, QImage::Format_RGB32);
    onBlack.fill(Qt::black);
    QImage onWhite(200, 100, QImage::Format_RGB32);
    onWhite.fill(Qt::white);
    const QRectF box(QPointF(10, 10), readOut.size());
    for (QImage* const ground : {&onBlack, &onWhite}) {
      QPainter painter(ground);
      readOut.paint(painter, box, palette);
    }
    const QRect inside = box.toAlignedRect().adjusted(3, 3, -3, -3);
    EXPECT_EQ(onBlack.copy(inside), onWhite.copy(inside));
    int ink = 0;
    for (int y = inside.top(); y < inside.bottom(); ++y) {
      for (int x = inside.left(); x < inside.right(); ++x) {
        ink += tests::contrast(onWhite.pixelColor(x, y), palette.color(QPalette::Window)) > 4.0;
      }
    }
    EXPECT_GT(ink, 100);
  }
}

}  // namespace
}  // namespace veyruna::ui
