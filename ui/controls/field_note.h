#pragma once

#include <QApplication>
#include <QVBoxLayout>

#include "ui/controls/alert.h"
#include "ui/controls/small_type.h"
#include "ui/controls/warning_label.h"

namespace veyruna::ui {

/// The line under a section's fields that says what they accept, when something else was typed. Its
/// room is kept at all times, so that nothing moves when it speaks.
class FieldNote final : public WarningLabel {
 public:
  FieldNote() { setFont(smallType(QApplication::font(this))); }

  /// Empty says nothing.
  void say(const QString& note) {
    setText(note);
    alert(*this);
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ApplicationFontChange) {
      setFont(smallType(QApplication::font(this)));
    }
    return WarningLabel::event(event);
  }
};

/// Puts the note at the foot of a group, mostly into the room that is left empty there anyway.
inline void addAtFoot(QVBoxLayout& column, FieldNote* note) {
  QMargins margins = column.contentsMargins();
  margins.setBottom(1);
  column.setContentsMargins(margins);
  column.addWidget(note);
}

}  // namespace veyruna::ui
