#pragma once

#include <QComboBox>
#include <QSlider>
#include <QWheelEvent>

namespace veyruna::ui {

/// A control that a wheel turned over it does not change unless it has the focus: the sidebar
/// scrolls instead.
template <class Control>
class Still : public Control {
 public:
  explicit Still(QWidget* parent = nullptr) : Control(parent) {
    this->setFocusPolicy(Qt::StrongFocus);
  }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (this->hasFocus()) {
      Control::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

using StillComboBox = Still<QComboBox>;
using StillSlider = Still<QSlider>;

}  // namespace veyruna::ui
