#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

namespace veyruna::tests {

/// What is unusual about a widget, a property each: "focusPolicy TabFocus".
QStringList unusualProperties(const QWidget& widget);

/// A text in one line and in quotation marks, without what differs from machine to machine.
QString quoted(QString text);

}  // namespace veyruna::tests
