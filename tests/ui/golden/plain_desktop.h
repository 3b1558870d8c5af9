#pragma once

#include <QApplication>
#include <QCursor>
#include <QFontDatabase>
#include <QFontInfo>
#include <QIcon>
#include <QLocale>
#include <QWidget>
#include <gtest/gtest.h>

#include "tests/ui/looks.h"

namespace veyruna::tests {

/// A desktop that is the same on every machine, while it lives: style, palette, type, locale and
/// icons, a caret that does not blink, and a
/// pointer that is elsewhere. What it needs and does not find is a failure that says
/// so, not another desktop.
class PlainDesktop {
 public:
  /// The type has so many points. Its letters are set as they were drawn, not as a system's
  /// settings ask; none is taken from other fonts, of which every system has its own.
  explicit PlainDesktop(const QPalette& palette = lightPalette(), double points = 9.0)
      : look_(palette) {
    QLocale::setDefault(QLocale::c());
    QIcon::setThemeSearchPaths({});
    QIcon::setFallbackSearchPaths({});
    QApplication::setCursorFlashTime(0);
    QCursor::setPos(5000, 5000);  // over no window
    QFont type(QStringLiteral("Liberation Sans"));
    type.setPointSizeF(points);
    type.setHintingPreference(QFont::PreferNoHinting);
    type.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::NoSubpixelAntialias | QFont::NoFontMerging));
    QApplication::setFont(type);
    EXPECT_EQ(QFontInfo(type).family().toStdString(), type.family().toStdString())
        << "install the package fonts-liberation: layouts are compared in its type";
    EXPECT_EQ(QGuiApplication::platformName(), QStringLiteral("offscreen"))
        << "set QT_QPA_PLATFORM=offscreen: layouts are compared on that platform";
    EXPECT_TRUE(qGuiApp->devicePixelRatio() == 1.0 && QWidget().logicalDpiX() == 96)
        << "unset QT_SCALE_FACTOR and QT_FONT_DPI: layouts are compared at one scale";
  }
  ~PlainDesktop() {
    QApplication::setFont(font_);
    QApplication::setCursorFlashTime(flashTime_);
    QIcon::setFallbackSearchPaths(fallbacks_);
    QIcon::setThemeSearchPaths(themes_);
    QLocale::setDefault(locale_);
  }
  PlainDesktop(const PlainDesktop&) = delete;
  PlainDesktop& operator=(const PlainDesktop&) = delete;

 private:
  QLocale locale_;
  QStringList themes_ = QIcon::themeSearchPaths();
  QStringList fallbacks_ = QIcon::fallbackSearchPaths();
  int flashTime_ = QApplication::cursorFlashTime();
  QFont font_ = QApplication::font();
  Look look_;
};

}  // namespace veyruna::tests
