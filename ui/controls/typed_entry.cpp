#include "ui/controls/typed_entry.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <utility>

#include "ui/controls/refused_edge.h"

namespace veyruna::ui {

TypedEntry::TypedEntry(QWidget& field, QLineEdit& line, Rules rules)
    : QObject(&field),
      field_(field),
      line_(line),
      rules_(std::move(rules)),
      edge_(new RefusedEdge(field)) {
  field_.installEventFilter(this);
  connect(&line_, &QLineEdit::textEdited, this, [this] {
    isTyping_ = true;
    judge();
  });
}

void TypedEntry::show(const QString& text) {
  isTyping_ = false;
  inUse_ = text;
  line_.setText(text);
  line_.setCursorPosition(0);
  note(QString(), false);
}

void TypedEntry::judge() {
  const QString text = line_.text();
  const bool isRefused = rules_.read(text) == Reading::refused;
  note(isRefused ? rules_.accepted(text) : QString(), isRefused);
  if (!isRefused) {
    Q_EMIT noted(QString());  // where fields share a line, it may still speak of the last one
  }
}

void TypedEntry::take() {
  isTyping_ = false;
  rules_.take(line_.text());
}

void TypedEntry::finish() {
  if (!isTyping_) {
    return;
  }
  const QString text = line_.text();
  if (rules_.read(text) == Reading::accepted) {
    take();
    return;
  }
  const QString accepted = rules_.accepted(text);
  giveUp();
  if (!text.trimmed().isEmpty()) {
    note(tr("%1; still %2").arg(accepted, inUse_), false);
  }
}

void TypedEntry::giveUp() {
  if (isTyping_) {
    show(inUse_);
  }
}

bool TypedEntry::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    onKey(*static_cast<QKeyEvent*>(event));
  } else if (event->type() == QEvent::FocusOut) {
    onLeaving(*static_cast<QFocusEvent*>(event));
  }
  return QObject::eventFilter(watched, event);
}

void TypedEntry::onKey(const QKeyEvent& event) {
  if (!isTyping_) {
    return;
  }
  if (event.key() == Qt::Key_Escape) {
    giveUp();
  } else if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
    const QString text = line_.text();
    if (rules_.read(text) == Reading::accepted) {
      take();
    } else if (text.trimmed().isEmpty()) {
      giveUp();
    } else {
      note(rules_.accepted(text), true);
    }
  }
}

void TypedEntry::onLeaving(const QFocusEvent& event) {
  if (event.reason() == Qt::PopupFocusReason) {
    return;  // the field's own menu, which cuts and pastes in it
  }
  // Who looks something up in another window finds what they were typing as they left it.
  if (event.reason() != Qt::ActiveWindowFocusReason ||
      rules_.read(line_.text()) == Reading::accepted) {
    finish();
  }
}

void TypedEntry::note(const QString& note, bool isRefused) {
  edge_->setVisible(isRefused);
  edge_->raise();
  if (note != note_) {
    note_ = note;
    field_.setAccessibleDescription(note);
    Q_EMIT noted(note);
  }
}

}  // namespace veyruna::ui
