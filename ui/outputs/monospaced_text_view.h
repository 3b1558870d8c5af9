#pragma once

#include "ui/controls/with_placeholder.h"

class QPlainTextEdit;

namespace veyruna::ui {

/// A table of fixed-width text: not wrapped, scrolled both ways, to be selected and copied.
class MonospacedTextView final : public WithPlaceholder {
 public:
  MonospacedTextView(const QString& accessibleName, const QString& placeholder,
                     QWidget* parent = nullptr);

  /// Shows a text; the same text again changes nothing, not even where it is scrolled to.
  void show(const QString& text);

 private:
  explicit MonospacedTextView(QPlainTextEdit* view, const QString& placeholder, QWidget* parent);

  QPlainTextEdit* view_;
};

}  // namespace veyruna::ui
