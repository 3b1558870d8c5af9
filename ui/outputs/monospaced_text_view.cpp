#include "ui/outputs/monospaced_text_view.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "ui/controls/fixed_pitch_font.h"
#include "ui/controls/named.h"

namespace veyruna::ui {

MonospacedTextView::MonospacedTextView(const QString& accessibleName, const QString& placeholder,
                                       QWidget* parent)
    : MonospacedTextView(named(new QPlainTextEdit, "tableText", accessibleName), placeholder,
                         parent) {}

MonospacedTextView::MonospacedTextView(QPlainTextEdit* view, const QString& placeholder,
                                       QWidget* parent)
    : WithPlaceholder(view, placeholder, parent), view_(view) {
  view_->setReadOnly(true);
  view_->setLineWrapMode(QPlainTextEdit::NoWrap);
  view_->setFont(fixedPitchFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)));
  view_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  view_->setUndoRedoEnabled(false);
  view_->document()->setDocumentMargin(8);
}

void MonospacedTextView::show(const QString& text) {
  if (view_->toPlainText() != text) {
    // The same lines of the new table: one compares two moments.
    const int line = view_->verticalScrollBar()->value();
    const int column = view_->horizontalScrollBar()->value();
    view_->setPlainText(text);
    view_->verticalScrollBar()->setValue(line);
    view_->horizontalScrollBar()->setValue(column);
  }
  showView(!text.isEmpty());
}

}  // namespace veyruna::ui
