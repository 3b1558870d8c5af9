#pragma once

#include <QList>
#include <QWidget>

namespace veyruna::tests {

/// Windows that can be used now, and no popups: only the dialog over a window that has one.
QList<QWidget*> windowsInUse();

/// How many windows on the sky are open.
int mainWindows();

}  // namespace veyruna::tests
