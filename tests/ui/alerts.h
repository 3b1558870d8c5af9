#pragma once

#include <QStringList>
#include <utility>

#include "ui/controls/alert.h"

namespace veyruna::tests {

/// Stands in for a screen reader while it lives: hears what calls for attention unasked, and which
/// values change. There is one at a time.
class Alerts {
 public:
  Alerts() : former_(ui::installAlertHandler(&hear)) {
    heard_.clear();
    values_.clear();
  }
  ~Alerts() { ui::installAlertHandler(former_); }
  Alerts(const Alerts&) = delete;
  Alerts& operator=(const Alerts&) = delete;

  /// Who hears otherwise.
  [[nodiscard]] QAccessible::UpdateHandler former() const { return former_; }

  /// What is spoken for each that has called since the last time, in order.
  static QStringList heard() { return std::exchange(heard_, {}); }

  /// The names and values that have changed since the last time, in order: "Year 721".
  static QStringList values() { return std::exchange(values_, {}); }

 private:
  static void hear(QAccessibleEvent* event) {
    QAccessibleInterface* const what = event->accessibleInterface();
    if (event->type() == QAccessible::ValueChanged && what != nullptr) {
      const QVariant value = static_cast<const QAccessibleValueChangeEvent*>(event)->value();
      values_.append(what->text(QAccessible::Name) + QLatin1Char(' ') + value.toString());
      return;
    }
    heard_.append(event->type() != QAccessible::Alert ? QStringLiteral("(no alert)")
                  : what == nullptr                   ? QStringLiteral("(nothing)")
                                                      : what->text(QAccessible::Name));
  }

  static inline QStringList heard_;
  static inline QStringList values_;
  QAccessible::UpdateHandler former_;
};

}  // namespace veyruna::tests
