// The own icons: all there, in the ink that can be seen, sharp at every scale.
#include "ui/controls/icons.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <array>
#include <gtest/gtest.h>

#include "tests/support/source_path.h"

namespace veyruna::ui {
namespace {

/// What the drawings in resources/icons are called, but for the program's own.
QStringList names() {
  QStringList all;
  const QDir drawings(QString::fromStdString(tests::sourcePath("resources/icons")));
  for (const QString& file : drawings.entryList({QStringLiteral("*.svg")})) {
    all.append(file.chopped(4));
  }
  return all;
}

/// The platform's colours turned round while it lives.
struct Dark {
  QPalette usual = QApplication::palette();
  Dark() {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
  }
  ~Dark() { QApplication::setPalette(usual); }
  Dark(const Dark&) = delete;
  Dark& operator=(const Dark&) = delete;
};

/// How light the ink is, from 0 to 255, where it covers; -1 where nothing is drawn.
int inkOf(const QPixmap& pixmap) {
  const QImage image = pixmap.toImage();
  qint64 sum = 0;
  qint64 count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (const QColor here = image.pixelColor(x, y); here.alpha() > 128) {
        sum += here.lightness();
        ++count;
      }
    }
  }
  return count == 0 ? -1 : static_cast<int>(sum / count);
}

QPixmap picture(const QString& ink, const QString& name, int size) {
  return QPixmap(QStringLiteral(":/icons/%1/%2_%3.png").arg(ink, name).arg(size));
}

TEST(Icons, EveryDrawingIsThereInBothInksAndAllSizes) {
  EXPECT_GE(names().size(), 12);
  for (const QString& name : names()) {
    for (const int size : {16, 24, 32, 48, 64}) {
      for (const char* const ink : {"light", "dark"}) {
        EXPECT_EQ(picture(QString::fromLatin1(ink), name, size).size(), QSize(size, size))
            << ink << ' ' << name.toStdString() << ' ' << size;
      }
    }
  }
}

TEST(Icons, TheProgramsSmallestPicturesShowSunAndMoonInWholePixels) {
  // What is only reduced blurs: two white pixels of the moon are left of 16, five of 22.
  for (const auto& [size, moon, sun] : {std::array{16, 6, 15}, std::array{22, 10, 25}}) {
    const QImage drawn(QStringLiteral(":/icons/veyruna_astro_%1.png").arg(size));
    ASSERT_EQ(drawn.size(), QSize(size, size));
    int white = 0;
    int yellow = 0;
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        const QColor here = drawn.pixelColor(x, y);
        const bool isWhite = std::min({here.red(), here.green(), here.blue()}) > 235;
        white += isWhite && here.alpha() == 255 ? 1 : 0;
        yellow += here.red() > 240 && here.green() > 190 && here.blue() < 110 ? 1 : 0;
      }
    }
    EXPECT_GE(white, moon) << size;
    EXPECT_GE(yellow, sun) << size;
  }
}

TEST(Icons, TheInkIsDarkOnLightAndLightOnDarkAlsoWhenThatChanges) {
  for (const QString& name : names()) {
    const QIcon one = icon("", name.toLatin1().constData());
    const int onLight = inkOf(one.pixmap(32));
    EXPECT_GE(onLight, 0) << name.toStdString();
    EXPECT_LT(onLight, 110) << name.toStdString();
    EXPECT_GT(inkOf(one.pixmap(QSize(32, 32), 1.0, QIcon::Selected)), 145) << name.toStdString();
    const Dark dark;
    EXPECT_GT(inkOf(one.pixmap(32)), 145) << name.toStdString();
  }
}

TEST(Icons, ADisabledOneIsPale) {
  const QIcon one = icon("", "calculate");
  EXPECT_EQ(inkOf(one.pixmap(QSize(32, 32), 1.0, QIcon::Disabled)), -1);
}

TEST(Icons, AreSharpAtEveryScale) {
  for (const QString& name : names()) {
    const QIcon one = icon("", name.toLatin1().constData());
    // Twice as many pixels are the picture of twice the size, as it is.
    EXPECT_EQ(one.pixmap(QSize(24, 24), 2.0).toImage().convertToFormat(QImage::Format_ARGB32), [&] {
      QImage own = picture(QStringLiteral("light"), name, 48).toImage();
      own.setDevicePixelRatio(2.0);
      return own.convertToFormat(QImage::Format_ARGB32);
    }()) << name.toStdString();
    // 36 pixels come from 48, not from 24.
    const QPixmap fitted = one.pixmap(QSize(24, 24), 1.5);
    ASSERT_EQ(fitted.size(), QSize(36, 36));
    QPixmap wanted(36, 36);
    wanted.fill(Qt::transparent);
    QPainter painter(&wanted);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(wanted.rect(), picture(QStringLiteral("light"), name, 48));
    painter.end();
    wanted.setDevicePixelRatio(1.5);
    EXPECT_EQ(fitted.toImage(), wanted.toImage()) << name.toStdString();
  }
}

TEST(Icons, AreDrawnSharpOnADenseScreen) {
  QImage screen(QSize(48, 48), QImage::Format_ARGB32_Premultiplied);
  screen.setDevicePixelRatio(2.0);
  screen.fill(Qt::transparent);
  QPainter painter(&screen);
  icon("", "horoscope").paint(&painter, QRect(0, 0, 24, 24));
  painter.end();
  QImage wanted = picture(QStringLiteral("light"), QStringLiteral("horoscope"), 48)
                      .toImage()
                      .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  wanted.setDevicePixelRatio(2.0);
  EXPECT_EQ(screen, wanted);
}

TEST(Icons, TheProgramsPictureIsThereInEverySize) {
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
    EXPECT_TRUE(programIcon().availableSizes().contains(QSize(size, size))) << size;
    EXPECT_GE(inkOf(programIcon().pixmap(QSize(size, size), 1.0)), 0) << size;
  }
}

}  // namespace
}  // namespace veyruna::ui
