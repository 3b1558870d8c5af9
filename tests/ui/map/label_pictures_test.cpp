// The read-outs on the map, compared pixel by pixel with what they are described as.
#include <QFontDatabase>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "tests/ui/map/shown_picker.h"
#include "ui/map/translucent_label.h"

namespace veyruna::tests {
namespace {

constexpr QRgb sea = 0xff0080c0;

/// A window of one colour with a label at its corner.
struct Label : testing::Test {
  QWidget window;
  ui::TranslucentLabel* label = new ui::TranslucentLabel(&window);

  Label() {
    setColors(Qt::white, Qt::black);
    window.resize(500, 200);
    window.show();
  }

  void setColors(QColor ground, QColor ink) {
    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, ink);
    label->setPalette(palette);
  }

  [[nodiscard]] double pixels() const { return label->devicePixelRatioF(); }

  /// The label over a sea.
  [[nodiscard]] QImage shown() const {
    QImage image((QSizeF(label->size()) * pixels()).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixels());
    image.fill(sea);
    label->render(&image, {}, {}, QWidget::RenderFlags());
    return image;
  }

  /// Four fifths of the palette's colour, the rest sea.
  [[nodiscard]] QRgb veiled() const {
    const QColor ground = label->palette().color(QPalette::Window);
    const auto mixed = [](int over, int under) { return (4 * over + under + 2) / 5; };
    return qRgb(mixed(ground.red(), qRed(sea)), mixed(ground.green(), qGreen(sea)),
                mixed(ground.blue(), qBlue(sea)));
  }

  static int distance(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
  }

  /// Sea outside the rounded corners, veil inside, both but for the pixels their border runs
  /// through; the text keeps to the middle.
  void expectGround(const QImage& image) const {
    const double radius = 8.0 * pixels();
    const double width = label->width() * pixels();  // the last pixel may be covered in part
    const double height = label->height() * pixels();
    int outside = 0;
    int inside = 0;
    const int margin = static_cast<int>(5.0 * pixels());  // no text reaches there
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const double across = std::max(x + 0.5, width - x - 0.5) - (width - radius);
        const double down = std::max(y + 0.5, height - y - 0.5) - (height - radius);
        const bool isWhole = x + 1 <= width && y + 1 <= height;
        const double away = across > 0 && down > 0 ? std::hypot(across, down) : 0.0;
        const bool isRim =
            x < margin || y < margin || x >= image.width() - margin || y >= image.height() - margin;
        if (away > radius + 0.8) {
          ++outside;
          ASSERT_LE(distance(image.pixel(x, y), sea), 2) << x << ' ' << y;
        } else if (away < radius - 0.8 && isRim && isWhole) {
          ++inside;
          ASSERT_LE(distance(image.pixel(x, y), veiled()), 2) << x << ' ' << y;
        }
      }
    }
    EXPECT_GE(outside, 4 * 5 * pixels() * pixels());
    EXPECT_GE(inside, 100);
  }

  /// The pixels that are neither sea nor veil, away from the rim.
  [[nodiscard]] QRect inkOf(const QImage& image) const {
    QRect ink;
    const int margin = static_cast<int>(4.0 * pixels());
    for (int y = margin; y < image.height() - margin; ++y) {
      for (int x = margin; x < image.width() - margin; ++x) {
        if (distance(image.pixel(x, y), veiled()) > 40) {
          ink |= QRect(x, y, 1, 1);
        }
      }
    }
    return ink;
  }
};

TEST_F(Label, IsARoundedVeilOnALightAndOnADarkWindow) {
  label->showText(QStringLiteral("32.674° N   8.872° E"));
  expectGround(shown());
  setColors(QColor(0x20, 0x24, 0x28), Qt::white);
  expectGround(shown());
}

TEST_F(Label, ItsTextHasTheWindowTextsColourAndItsMarginsOnALightAndOnADarkWindow) {
  label->showText(QStringLiteral("HHHHHHHH"));
  for (const auto& [ground, ink] : {std::pair{QColor(Qt::white), QColor(150, 0, 60)},
                                    {QColor(0x20, 0x24, 0x28), QColor(250, 240, 100)}}) {
    setColors(ground, ink);
    const QImage image = shown();
    const QRect text = inkOf(image);
    const QSizeF points = QSizeF(text.size()) / pixels();
    const QFontMetricsF metrics(label->font());
    const QRectF drawn = metrics.tightBoundingRect(QStringLiteral("HHHHHHHH"));
    EXPECT_NEAR(points.width(), drawn.width(), 2.0);
    EXPECT_NEAR(points.height(), drawn.height(), 2.0);
    EXPECT_NEAR(text.left() / pixels(), 10.0 + drawn.left(), 1.6);
    EXPECT_NEAR(label->width(), 20.0 + metrics.horizontalAdvance(QStringLiteral("HHHHHHHH")), 2.0);
    EXPECT_NEAR(label->height(), 12.0 + metrics.height(), 2.0);
    // As far from the top as the line's ascent puts it, the line in the middle.
    const double baseline = label->height() / 2.0 + (metrics.ascent() - metrics.descent()) / 2.0;
    EXPECT_NEAR((text.bottom() + 1) / pixels(), baseline, 1.6);
    int strong = 0;
    for (int y = text.top(); y <= text.bottom(); ++y) {
      for (int x = text.left(); x <= text.right(); ++x) {
        strong += distance(image.pixel(x, y), ink.rgb()) <= 30 ? 1 : 0;
      }
    }
    EXPECT_GT(strong, 8);
  }
}

TEST_F(Label, IsDrawnAnewForANewTextFontOrPalette) {
  label->showText(QStringLiteral("one"));
  const QImage one = shown();
  label->showText(QStringLiteral("two"));
  const QImage two = shown();
  EXPECT_NE(two, one);
  QFont large = label->font();
  large.setPointSizeF(large.pointSizeF() * 2.0);
  label->setFont(large);
  EXPECT_GT(label->height(), 1.5 * (two.height() / pixels() - 12.0));
  EXPECT_EQ(label->size(), label->sizeHint());
  EXPECT_GT(inkOf(shown()).height(), 1.4 * inkOf(two).height());
  const QImage black = shown();
  setColors(Qt::white, Qt::red);
  EXPECT_NE(shown(), black);
  EXPECT_EQ(shown().size(), black.size());
}

TEST_F(Label, IsAsSharpAsTheScreen) {
  label->showText(QStringLiteral("WXYZ"));
  const QImage image = shown();
  QImage expected(image.size(), QImage::Format_RGB32);
  expected.setDevicePixelRatio(pixels());
  expected.fill(veiled());
  QPainter painter(&expected);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(label->font());
  painter.setPen(Qt::black);
  const QFontMetrics metrics(label->font());
  painter.drawText(10, 6 + (label->height() - 12 - metrics.height()) / 2 + metrics.ascent(),
                   QStringLiteral("WXYZ"));
  painter.end();
  const QRect text = inkOf(image);
  ASSERT_FALSE(text.isEmpty());
  int off = 0;
  for (int y = text.top(); y <= text.bottom(); ++y) {
    for (int x = text.left(); x <= text.right(); ++x) {
      off += distance(image.pixel(x, y), expected.pixel(x, y)) > 24 ? 1 : 0;
    }
  }
  EXPECT_LE(off, text.width() * text.height() / 50);
}

TEST_F(Label, IsThereOnlyWhileItHasAText) {
  EXPECT_FALSE(label->isVisible());
  label->showText(QStringLiteral("one"));
  EXPECT_TRUE(label->isVisible());
  EXPECT_EQ(label->size(), label->sizeHint());
  label->showText(QStringLiteral("one and two"));
  EXPECT_EQ(label->size(), label->sizeHint());
  label->showText({});
  EXPECT_FALSE(label->isVisible());
  EXPECT_TRUE(label->testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(ShownPicker, TheReadoutIsInTheSystemsFixedFontALittleSmaller) {
  const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  const auto* const readout = view->findChild<QLabel*>(QStringLiteral("mapReadout"));
  EXPECT_EQ(readout->font().family(), fixed.family());
  EXPECT_NEAR(readout->font().pointSizeF() / fixed.pointSizeF(), 0.92, 0.02);
}

TEST_F(ShownPicker, ANameStandsAboveAndBesideItsMark) {
  const auto* const name = view->findChild<QLabel*>(QStringLiteral("mapPlaceName"));
  const QPoint mark = pointOf(40.5, -20.9).toPoint();
  pointAt(mark + QPoint(3, 2));
  ASSERT_TRUE(name->isVisible());
  EXPECT_EQ(name->geometry().left(), mark.x() + 10);
  EXPECT_EQ(name->geometry().bottom() + 1, mark.y() - 4);
}

TEST_F(ShownPicker, ANameIsPushedInFromEveryBorder) {
  const auto* const name = view->findChild<QLabel*>(QStringLiteral("mapPlaceName"));
  const QPointF wendmark = pointOf(40.5, -20.9);
  press({300, 300});
  pointAt({300, 300 - static_cast<int>(wendmark.y()) + 6});
  release({300, 300 - static_cast<int>(wendmark.y()) + 6});
  pointAt({static_cast<int>(wendmark.x()), 6});
  ASSERT_TRUE(name->isVisible());
  EXPECT_EQ(name->y(), 0);
  push("resetButton");
  const int toTheEdge = 795 - static_cast<int>(wendmark.x());
  press({100, 300});
  pointAt({100 + toTheEdge, 300});
  release({100 + toTheEdge, 300});
  pointAt({795, static_cast<int>(wendmark.y())});
  ASSERT_TRUE(name->isVisible());
  EXPECT_EQ(name->geometry().right(), 799);
  EXPECT_NEAR(name->geometry().bottom() + 1, wendmark.y() - 4, 1.0);
}

}  // namespace
}  // namespace veyruna::tests
