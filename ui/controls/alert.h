#pragma once

#include <QAccessible>

class QLabel;
class QWidget;

namespace veyruna::ui {

/// Has a screen reader say a text that has come by itself; of an empty one, nothing.
void alert(QLabel& label);

/// Tells a screen reader that the value of a field is another one.
void tellValue(QWidget& field, qint64 value);

/// Hands all that is told to `handler` and returns the one before, which is
/// QAccessible::updateAccessibility at first. For tests: where no screen is, Qt passes none on.
QAccessible::UpdateHandler installAlertHandler(QAccessible::UpdateHandler handler);

}  // namespace veyruna::ui
