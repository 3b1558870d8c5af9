#pragma once

#include <QLabel>
#include <QString>
#include <concepts>

namespace veyruna::ui {

/// Gives a control the name a screen reader speaks and the name a test finds it by. A label's text
/// is what is spoken of it, so there the name is a remark beside it.
template <class Control>
Control* named(Control* control, const char* objectName, const QString& spoken) {
  control->setObjectName(QString::fromLatin1(objectName));
  if constexpr (std::derived_from<Control, QLabel>) {
    control->setAccessibleDescription(spoken);
  } else {
    control->setAccessibleName(spoken);
  }
  return control;
}

}  // namespace veyruna::ui
