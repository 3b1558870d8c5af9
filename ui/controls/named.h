#pragma once

#include <QString>
#include <QWidget>

namespace veyruna::ui {

/// Gives a control the name a screen reader speaks and the name a test finds it by.
template <class Control>
Control* named(Control* control, const char* objectName, const QString& accessibleName) {
  control->setObjectName(QString::fromLatin1(objectName));
  control->setAccessibleName(accessibleName);
  return control;
}

}  // namespace veyruna::ui
