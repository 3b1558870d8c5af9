#pragma once

#include <QLabel>
#include <string>

#include "tests/ui/golden/golden_look.h"
#include "tests/ui/golden/plain_window.h"
#include "ui/controls/program.h"

namespace veyruna::tests {

/// The window on a light desktop and, where the parameter is set, on a dark one, to be compared
/// with pictures of each.
struct LookingWindow : PlainWindow, testing::WithParamInterface<bool> {
  LookingWindow() : PlainWindow(GetParam() ? darkPalette() : lightPalette()) {}

  /// As if this were the first version, in any of them.
  static QImage pictureOf(QWidget& part) {
    for (QLabel* const label : part.findChildren<QLabel*>()) {
      if (label->text().startsWith(QLatin1String("Version"))) {
        label->setText(label->text().replace(ui::programVersion(), QStringLiteral("0.1.0")));
      }
    }
    return tests::pictureOf(part);
  }

  void compare(const QImage& picture, const std::string& name) {
    EXPECT_TRUE(isGoldenLook(picture, name + (GetParam() ? "_dark.png" : "_light.png")));
  }
  void compare(const QList<QList<QImage>>& rows, const std::string& name) {
    compare(sheetOf(rows, QApplication::palette().color(QPalette::Window)), name);
  }
  /// A control as it is, and with the focus as it comes by key.
  QImage focused(QWidget& control) {
    QTest::keyClick(control.window(), Qt::Key_Tab);
    control.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(control.hasFocus()) << control.objectName().toStdString();
    return pictureOf(control);
  }
  static QImage underMouse(QWidget& control) {
    control.setAttribute(Qt::WA_UnderMouse);
    QImage picture = pictureOf(control);
    control.setAttribute(Qt::WA_UnderMouse, false);
    return picture;
  }
  static QImage pressed(QAbstractButton& button) {
    button.setDown(true);
    QImage picture = pictureOf(button);
    button.setDown(false);
    return picture;
  }
};

}  // namespace veyruna::tests
