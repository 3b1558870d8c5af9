#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "drawing/picture_painter.h"
#include "drawing/svg_reader.h"
#include "tests/support/picture_difference.h"
#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"

namespace veyruna::drawing {
namespace {

/// The elements painted on white, in a picture of 100 units, at so many pixels to the unit.
QImage painted(const QByteArray& elements, double scale = 1.0, double ratio = 1.0) {
  const Picture picture = readSvg(
      R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox="0 0 100 100">)"
      R"(<defs><path id="rim" d="M50,10 A40,40, 0 1,1 50,90 A40,40, 0 1,1 50,10" fill="none" />)"
      R"(<clipPath id="clip"><circle cx="50" cy="50" r="20"/></clipPath></defs>)" +
      elements + "</svg>");
  const int side = static_cast<int>(100.0 * scale);
  QImage image(side, side, QImage::Format_RGB32);
  image.fill(Qt::white);
  image.setDevicePixelRatio(ratio);
  QPainter painter(&image);
  PicturePainter().paint(painter, picture, QRectF(0.0, 0.0, side / ratio, side / ratio),
                         Medium::pixels);
  return image;
}

/// The box of all that is darker than half.
QRect inkBox(const QImage& image) {
  QRect box;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 128) {
        box |= QRect(x, y, 1, 1);
      }
    }
  }
  return box;
}

TEST(Painter, ACircleCoversItsDisc) {
  EXPECT_EQ(inkBox(painted(R"(<circle cx="50" cy="40" r="20"/>)")), QRect(30, 20, 40, 40));
  EXPECT_EQ(inkBox(painted(R"(<circle cx="50" cy="40" r="5"/>)")), QRect(45, 35, 10, 10));
}

TEST(Painter, ALineEndsWhereItEnds) {
  const QImage image =
      painted(R"(<line x1="10" y1="50" x2="30" y2="50" stroke="black" stroke-width="4"/>)");
  EXPECT_EQ(inkBox(image), QRect(10, 48, 20, 4));
}

TEST(Painter, WhatIsClippedEndsAtTheCircleAndWhatFollowsDoesNot) {
  const QImage image = painted(R"svg(<g clip-path="url(#clip)"><circle cx="50" cy="50" r="45"/></g>
<circle cx="5" cy="5" r="3"/>)svg");
  EXPECT_EQ(inkBox(image), QRect(2, 2, 68, 68));
  EXPECT_EQ(image.pixelColor(25, 50), QColor(Qt::white));
}

TEST(Painter, WhatIsTurnedIsTurnedClockwise) {
  const QImage image =
      painted(R"svg(<g transform="rotate(90, 50, 50)"><circle cx="90" cy="50" r="5"/></g>)svg");
  EXPECT_EQ(inkBox(image), QRect(45, 85, 10, 10));
}

TEST(Painter, ALevelTextStandsOnItsLine) {
  const QImage image =
      painted(R"(<text x="10" y="60" fill="black" font-family="Arial" font-size="30">HH</text>)");
  const QRect box = inkBox(image);
  EXPECT_EQ(box.bottom() + 1, 60);
  EXPECT_NEAR(box.height(), 0.688 * 30.0, 1.5);
  EXPECT_NEAR(box.left(), 10.0 + 0.079 * 30.0, 1.5);
  EXPECT_NEAR(box.width(), (2.0 * 0.722 - 2.0 * 0.079) * 30.0, 2.0);
}

TEST(Painter, ACentredTextStandsAboutItsPoint) {
  const QRect box = inkBox(painted(
      R"(<text x="50" y="60" fill="black" font-family="Arial" font-size="30" text-anchor="middle">HH</text>)"));
  EXPECT_NEAR(box.left() + box.right() + 1, 100.0, 2.0);
}

TEST(Painter, ATextHasOneSizeAtEveryScaleOfTheScreen) {
  const QByteArray text =
      R"(<text x="10" y="60" fill="black" font-family="Arial" font-size="30">HH</text>)";
  const QRect plain = inkBox(painted(text, 3.0));
  EXPECT_EQ(inkBox(painted(text, 3.0, 2.0)), plain);
  EXPECT_EQ(inkBox(painted(text, 3.0, 1.5)), plain);
  EXPECT_EQ(inkBox(painted(text, 3.0, 1.25)), plain);
}

TEST(Painter, ANameAlongTheRimStandsOnItFromWhereItBegins) {
  const auto named = [](const char* offset) {
    return inkBox(painted(
        QByteArray(
            R"(<text fill="black" font-family="Arial" font-size="10"><textPath xlink:href="#rim" startOffset=")") +
            offset + R"(">HHH</textPath></text>)",
        4.0));
  };
  const QRect right = named("25%");  // a quarter turn from the top: on the right, downward
  EXPECT_GT(right.left(), 4 * 83);   // the rim has turned by half a radian where it ends
  EXPECT_LE(right.right(), 4 * 98);
  EXPECT_NEAR(right.top(), 4 * 50, 8);
  const QRect left = named("75%");  // on the left, upward
  EXPECT_LT(left.right(), 4 * 17);
  EXPECT_NEAR(left.bottom(), 4 * 50, 8);
}

TEST(Painter, ANameThatStraddlesTheBeginningOfTheRimRunsOn) {
  const auto width = [](const char* offset) {
    return inkBox(
               painted(
                   QByteArray(
                       R"(<text fill="black" font-family="Arial" font-size="8"><textPath xlink:href="#rim" startOffset=")") +
                       offset + R"(">HHHHH</textPath></text>)",
                   4.0))
        .width();
  };
  // From the left of the top to its right; the same name lies there mirrored from the bottom.
  EXPECT_NEAR(width("94.6%"), width("44.6%"), 3);
}

TEST(Painter, ThePictureIsFittedAndCentred) {
  const Picture picture = readSvg(
      R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="-10 -10 100 50"><circle cx="40" cy="15" r="25"/></svg>)");
  QImage image(200, 200, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.translate(3.0, 0.0);
  PicturePainter().paint(painter, picture, image.rect(), Medium::pixels);
  EXPECT_EQ(painter.transform(), QTransform::fromTranslate(3.0, 0.0));
  EXPECT_EQ(inkBox(image), QRect(53, 50, 100, 100));
}

TEST(Painter, APartLooksAsTheWholePictureDoesThere) {
  // What is out of sight is left out; nothing that reaches in may be.
  for (const char* const chart : {"horoscope.svg", "star-map.svg"}) {
    const Picture picture = readSvg(QByteArray::fromStdString(
        tests::fileContent(tests::sourcePath("tests/reference/evening-local/") + chart)));
    const QSize whole = (picture.viewBox.size() * 6.0).toSize();
    const auto paintedFrom = [&](QPoint corner, QSize size) {
      QImage image(size, QImage::Format_RGB32);
      image.fill(Qt::white);
      QPainter painter(&image);
      PicturePainter().paint(painter, picture, QRectF(-corner, QSizeF(whole)), Medium::pixels);
      return image;
    };
    const QImage all = paintedFrom({}, whole);
    constexpr QSize part(150, 90);
    for (int y = 0; y + part.height() <= whole.height(); y += part.height() * 3) {
      for (int x = 0; x + part.width() <= whole.width(); x += part.width() * 3) {
        EXPECT_EQ(
            tests::differenceOf(paintedFrom({x, y}, part), all.copy({{x, y}, part}), 2).different,
            0.0)
            << chart << " from " << x << " " << y;
      }
    }
  }
}

TEST(Painter, AnEmptyPictureLeavesThePaperAsItIs) {
  QImage image(20, 20, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  PicturePainter().paint(painter, Picture{}, image.rect(), Medium::pixels);
  EXPECT_TRUE(inkBox(image).isEmpty());
}

}  // namespace
}  // namespace veyruna::drawing
