#pragma once

#include <QEvent>
#include <QGuiApplication>

#include "ui/controls/shades.h"
#include "ui/controls/wrapped_label.h"

namespace veyruna::ui {

/// Says what went wrong, in a colour that warns on light and on dark alike.
class WarningLabel : public WrappedLabel {
 public:
  WarningLabel() { follow(); }

 protected:
  void changeEvent(QEvent* event) override {
    WrappedLabel::changeEvent(event);
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
