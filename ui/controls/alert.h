#pragma once

#include <QAccessible>

class QLabel;

namespace veyruna::ui {

/// Has a screen reader say a text that has come by itself; of an empty one, nothing.
void alert(QLabel& label);

/// Hands all alerts to `handler` and returns the one before, which is
/// QAccessible::updateAccessibility at first. For tests: where no screen is, Qt passes none on.
QAccessible::UpdateHandler installAlertHandler(QAccessible::UpdateHandler handler);

}  // namespace veyruna::ui
