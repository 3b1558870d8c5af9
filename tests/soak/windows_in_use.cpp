#include "tests/soak/windows_in_use.h"

#include <QApplication>
#include <QDialog>

#include "ui/window/about_view.h"
#include "ui/window/main_view.h"

namespace veyruna::tests {

QList<QWidget*> windowsInUse() {
  QList<QWidget*> windows;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    const bool isWindow = qobject_cast<ui::MainView*>(window) != nullptr ||
                          qobject_cast<ui::AboutView*>(window) != nullptr ||
                          qobject_cast<QDialog*>(window) != nullptr;
    if (isWindow && window->isVisible() && !window->isMinimized()) {
      windows.append(window);
    }
  }
  const QList<QWidget*> all = windows;
  for (QWidget* const dialog : all) {
    if (dialog->isModal() && dialog->windowModality() == Qt::ApplicationModal) {
      return {dialog};
    }
    if (dialog->isModal() && dialog->parentWidget() != nullptr) {
      windows.removeAll(dialog->parentWidget()->window());
    }
  }
  return windows;
}

int mainWindows() {
  int count = 0;
  for (const QWidget* const window : QApplication::topLevelWidgets()) {
    count += qobject_cast<const ui::MainView*>(window) != nullptr && window->isVisible() ? 1 : 0;
  }
  return count;
}

}  // namespace veyruna::tests
