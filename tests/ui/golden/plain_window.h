#pragma once

#include "tests/ui/golden/plain_desktop.h"
#include "tests/ui/shown_window.h"

namespace veyruna::tests {

/// The window on the plain desktop, as large as it is at its first start on a large screen.
struct PlainWindow : testing::Test {
  explicit PlainWindow(const QPalette& palette = lightPalette(), double points = 9.0)
      : desktop(palette, points) {
    resize({1180, 780});
    shown.calculate();
    settle();
  }

  /// Lets every layout answer to what changed, and those around it to that.
  static void settle() {
    for (int turn = 0; turn < 5; ++turn) {
      turnEventLoop();
    }
  }

  void resize(QSize size) {
    shown.window.resize(size);
    settle();
  }

  /// Chooses the tab of this button and lets what it shows settle.
  void choose(const char* tab) {
    shown.press(tab);
    settle();
  }

  PlainDesktop desktop;
  ShownWindow shown;
};

}  // namespace veyruna::tests
