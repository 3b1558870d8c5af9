#pragma once

#include <QColor>
#include <QPalette>

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

}  // namespace veyruna::ui
