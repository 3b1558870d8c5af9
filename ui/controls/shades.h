#pragma once

#include <QColor>
#include <QPalette>
#include <algorithm>
#include <cmath>

/// Colours that go with the platform's light or dark palette.
namespace veyruna::ui {

/// Whether texts stand light on dark.
inline bool isDark(const QPalette& palette) {
  return palette.color(QPalette::WindowText).lightness() >
         palette.color(QPalette::Window).lightness();
}

/// For what went wrong; a contrast of at least 4.5 to 1 against the palette's window.
inline QColor warningColor(const QPalette& palette) {
  return isDark(palette) ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x20, 0x20);
}

/// From 1 to 21, as the contrast of a text with its ground is reckoned.
inline double contrastOf(const QColor& a, const QColor& b) {
  const auto light = [](const QColor& color) {
    const auto linear = [](float share) {
      return share <= 0.04045F ? double(share) / 12.92
                               : std::pow((double(share) + 0.055) / 1.055, 2.4);
    };
    return 0.05 + 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
  };
  return std::max(light(a), light(b)) / std::min(light(a), light(b));
}

/// The ground of a chosen button: the palette's highlight, as much darker (under a dark text,
/// lighter) as it takes to read the text on it, also where a style shades it.
inline QColor chosenGround(const QPalette& palette) {
  constexpr double readable = 6.0;
  constexpr int step = 105;  // percent
  const QColor text = palette.color(QPalette::HighlightedText);
  QColor ground = palette.color(QPalette::Highlight);
  const bool isTextLight = text.lightness() > ground.lightness();
  for (int steps = 0; steps < 40 && contrastOf(ground, text) < readable; ++steps) {
    ground = isTextLight ? ground.darker(step) : ground.lighter(step);
  }
  return ground;
}

}  // namespace veyruna::ui
