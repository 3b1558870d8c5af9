#pragma once

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

/// The looks a desktop may have.
namespace veyruna::tests {

inline QPalette lightPalette() {
  return {QColor(0xef, 0xef, 0xef)};
}

inline QPalette darkPalette() {
  QPalette dark(QColor(0x35, 0x35, 0x39), QColor(0x2b, 0x2b, 0x2e));
  dark.setColor(QPalette::Base, QColor(0x1f, 0x1f, 0x22));
  for (const QPalette::ColorRole role :
       {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    dark.setColor(role, QColor(0xee, 0xee, 0xee));
    dark.setColor(QPalette::Disabled, role, QColor(0x90, 0x90, 0x94));
  }
  dark.setColor(QPalette::Highlight, QColor(0x3d, 0x7a, 0xc8));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  return dark;
}

/// The program in Fusion with this palette, while it lives.
class Look {
 public:
  explicit Look(const QPalette& palette) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette);
  }
  ~Look() { QApplication::setPalette(QPalette()); }
  Look(const Look&) = delete;
  Look& operator=(const Look&) = delete;
};

/// How much light a colour gives, from 0 to 1, as contrast is reckoned (WCAG 2).
inline double luminance(const QColor& color) {
  const auto linear = [](double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

/// From 1 to 21; 4.5 is the least at which text is easily read.
inline double contrast(const QColor& a, const QColor& b) {
  const double lighter = std::max(luminance(a), luminance(b));
  const double darker = std::min(luminance(a), luminance(b));
  return (lighter + 0.05) / (darker + 0.05);
}

/// What a control shows.
inline QImage pictureOf(QWidget& widget) {
  return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// How many pixels differ so that it can be seen.
inline int visibleDifferences(const QImage& a, const QImage& b) {
  EXPECT_EQ(a.size(), b.size());
  int differing = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      differing += contrast(a.pixelColor(x, y), b.pixelColor(x, y)) > 1.5 ? 1 : 0;
    }
  }
  return differing;
}

/// The colour of most of the picture's pixels.
inline QColor groundOf(const QImage& picture) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      ++counts[picture.pixel(x, y)];
    }
  }
  return QColor(std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
                  return a.second < b.second;
                })->first);
}

/// The best contrast of any pixel against this colour.
inline double bestContrast(const QImage& picture, const QColor& ground) {
  double best = 1.0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      best = std::max(best, contrast(picture.pixelColor(x, y), ground));
    }
  }
  return best;
}

}  // namespace veyruna::tests
