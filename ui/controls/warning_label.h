#pragma once

#include <QEvent>
#include <QGuiApplication>
#include <QLabel>

#include "ui/controls/shades.h"

namespace veyruna::ui {

/// Says what went wrong, in a colour that warns on light and on dark alike.
class WarningLabel final : public QLabel {
 public:
  WarningLabel() {
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    follow();
  }

 protected:
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !isFollowing_) {
      follow();
    }
  }

 private:
  void follow() {
    isFollowing_ = true;  // setting the palette is a change of it
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, warningColor(QGuiApplication::palette()));
    setPalette(colors);
    isFollowing_ = false;
  }

  bool isFollowing_ = false;
};

}  // namespace veyruna::ui
