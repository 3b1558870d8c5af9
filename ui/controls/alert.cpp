#include "ui/controls/alert.h"

#include <QLabel>
#include <QWidget>
#include <utility>

namespace veyruna::ui {

namespace {

QAccessible::UpdateHandler alertHandler = &QAccessible::updateAccessibility;

}  // namespace

void alert(QLabel& label) {
  if (label.text().isEmpty()) {
    return;
  }
  QAccessibleEvent event(&label, QAccessible::Alert);
  alertHandler(&event);
}

void tellValue(QWidget& field, qint64 value) {
  QAccessibleValueChangeEvent event(&field, value);
  alertHandler(&event);
}

QAccessible::UpdateHandler installAlertHandler(QAccessible::UpdateHandler handler) {
  return std::exchange(alertHandler, handler);
}

}  // namespace veyruna::ui
