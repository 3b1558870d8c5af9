#include "tests/soak/random_person.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEventLoop>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QThreadPool>
#include <QTimer>
#include <stdexcept>

#include "tests/soak/gestures.h"
#include "tests/soak/windows_in_use.h"
#include "tests/support/patience.h"

namespace veyruna::tests {

namespace {

using namespace Qt::StringLiterals;

constexpr int mostWindows = 4;

QString nameOf(const QWidget& widget) {
  return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                       : widget.objectName();
}

}  // namespace

RandomPerson::RandomPerson(ui::VeyrunaAstroApp& program, const QString& folder, std::uint64_t seed,
                           std::function<void(const QString& step)> tell)
    : program_(program), folder_(folder), chance_(seed), tell_(std::move(tell)) {}

void RandomPerson::useUntil(const std::function<bool()>& isEnough) {
  QEventLoop loop;
  // Where a step waits for a dialog's answer, the next one is begun inside of it.
  int begun = 0;
  std::function<void()> next = [&] {
    const bool isLast = isEnough();
    if (isLast && begun == 0) {
      loop.quit();
      return;
    }
    QTimer::singleShot(chance_.oneIn(50) ? 40 : 0, &loop, next);
    ++begun;
    tell_(isLast ? leaveDialog() : act());
    --begun;
  };
  QTimer::singleShot(0, &loop, next);
  loop.exec();
}

QString RandomPerson::leaveDialog() {
  QWidget* const popup = QApplication::activePopupWidget();
  QWidget* const waiting = popup != nullptr ? popup : QApplication::activeModalWidget();
  if (waiting != nullptr) {
    QTest::keyClick(waiting, Qt::Key_Escape);
  }
  return u"leave"_s;
}

QString RandomPerson::act() {
  if (QWidget* const popup = QApplication::activePopupWidget()) {
    return answerPopup(*popup);
  }
  QWidget* const window = someWindow();
  return window == nullptr ? u"nothing"_s : useWindow(*window);
}

QString RandomPerson::answerPopup(QWidget& popup) {
  if (auto* const menu = qobject_cast<QMenu*>(&popup)) {
    return answerMenu(*menu);
  }
  // The list of a box.
  const Qt::Key key = chance_.oneOf(
      QList<Qt::Key>{Qt::Key_Up, Qt::Key_Down, Qt::Key_End, Qt::Key_Return, Qt::Key_Escape});
  QWidget* const focus = popup.focusWidget();
  QTest::keyClick(focus != nullptr ? focus : &popup, key);
  return u"list: key %1"_s.arg(key, 0, 16);
}

QString RandomPerson::answerMenu(QMenu& menu) {
  QList<QAction*> actions;
  for (QAction* const action : menu.actions()) {
    const bool opensWindow = action->text().contains(u"New Window"_s);
    if (action->isEnabled() && action->isVisible() && !action->isSeparator() &&
        (!opensWindow || mainWindows() < mostWindows)) {
      actions.append(action);
    }
  }
  if (actions.isEmpty() || chance_.oneIn(4)) {
    QTest::keyClick(&menu, Qt::Key_Escape);
    return u"menu: Escape"_s;
  }
  QAction* const action = chance_.oneOf(actions);
  const QString name = action->text();
  ++driven_[u"menu "_s + name];
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
  return u"menu: %1"_s.arg(name);
}

/// Files are saved into the person's folder under few names, so that some are replaced.
QString RandomPerson::answerFileDialog(QFileDialog& dialog) {
  auto* const field = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
  if (field == nullptr || chance_.oneIn(4)) {
    QTest::keyClick(&dialog, Qt::Key_Escape);
    return u"save: Escape"_s;
  }
  const QString path = folder_.filePath(u"export %1"_s.arg(chance_.below(5)));
  field->setText(path);
  QMetaObject::invokeMethod(&dialog, "accept");
  return u"save as %1"_s.arg(path);
}

QString RandomPerson::useWindow(QWidget& window) {
  if (auto* const files = qobject_cast<QFileDialog*>(&window)) {
    return answerFileDialog(*files);
  }
  auto* const main = qobject_cast<ui::MainView*>(&window);
  if (main != nullptr && chance_.oneIn(12)) {
    return chance_.oneIn(2) ? openMenu(*main) : pressShortcut(*main);
  }
  if (chance_.oneIn(25) && qobject_cast<QDialog*>(&window) == nullptr) {
    return changeWindow(window);
  }
  return useControl(window);
}

QString RandomPerson::openMenu(ui::MainView& window) {
  QMenuBar& bar = *window.menuBar();
  QAction* const menu = chance_.oneOf(bar.actions());
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu).center());
  return u"open %1"_s.arg(menu->text());
}

QString RandomPerson::pressShortcut(ui::MainView& window) {
  QList<QAction*> actions;
  for (QAction* const action : window.findChildren<QAction*>()) {
    const bool opensWindow = action->shortcut() == QKeySequence(u"Ctrl+N"_s);
    if (!action->shortcut().isEmpty() && (!opensWindow || mainWindows() < mostWindows)) {
      actions.append(action);
    }
  }
  const QKeyCombination keys = chance_.oneOf(actions)->shortcut()[0];
  QTest::keyClick(&window, keys.key(), keys.keyboardModifiers());
  return u"keys %1"_s.arg(QKeySequence(keys).toString());
}

QString RandomPerson::useControl(QWidget& window) {
  window.activateWindow();
  QList<QWidget*> controls = window.findChildren<QWidget*>();
  controls.append(&window);
  // What bears a name is a control; the rest is panes, labels and parts, met less often.
  for (int tries = 0; tries < 40; ++tries) {
    QWidget* const control = chance_.oneOf(controls);
    const bool isNamed =
        !control->objectName().isEmpty() && !control->objectName().startsWith(QLatin1String("qt_"));
    if (!control->isVisible() || !control->isEnabled() || control->window() != &window ||
        (!isNamed && !chance_.oneIn(8))) {
      continue;
    }
    const QString name = nameOf(*control);
    const auto at = pointInReach(*control, chance_);
    if (control->focusPolicy() != Qt::NoFocus || at) {
      driven_[name] += at ? 1 : 0;
    }
    if (at) {
      return name + u": "_s + doSomething(*control, *at, chance_);
    }
  }
  return u"nothing in reach"_s;
}

QString RandomPerson::changeWindow(QWidget& window) {
  switch (chance_.below(7)) {
    case 0:
      window.showMaximized();
      return u"maximize"_s;
    case 1:
      window.showFullScreen();
      return u"full screen"_s;
    case 2:
      window.close();
      return u"close"_s;
    case 3:
      if (mainWindows() < mostWindows) {
        program_.openWindow();
      }
      return u"another window"_s;
    case 4: {
      QPalette palette = QApplication::palette();
      palette.setColor(QPalette::Window, chance_.oneIn(2) ? Qt::white : QColor(30, 30, 34));
      palette.setColor(QPalette::WindowText, chance_.oneIn(2) ? Qt::black : Qt::white);
      QApplication::setPalette(palette);
      return u"other colours"_s;
    }
    default:
      window.showNormal();
      window.resize(400 + chance_.below(1'000), 300 + chance_.below(700));
      return u"resize"_s;
  }
}

QWidget* RandomPerson::someWindow() {
  if (mainWindows() == 0) {
    program_.openWindow();
  }
  const QList<QWidget*> windows = windowsInUse();
  return windows.isEmpty() ? nullptr : chance_.oneOf(windows);
}

void RandomPerson::tidyUp() {
  while (QWidget* const popup = QApplication::activePopupWidget()) {
    popup->close();
  }
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (qobject_cast<QDialog*>(window) != nullptr && window->isVisible()) {
      static_cast<QDialog*>(window)->reject();
    }
  }
  QApplication::closeAllWindows();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::setPalette(QPalette());
  program_.time().setOn(false);
  ui::MainView* const window = program_.openWindow();
  window->showNormal();
  window->resize(1'000, 700);
  window->selectTab(exports::OutputTab::starMap);
  if (!QTest::qWaitFor([this] { return !program_.model().isCalculating(); },
                       patienceMilliseconds)) {
    throw std::runtime_error("a calculation does not end");
  }
  // What the windows that are gone had begun: pieces of the map.
  QThreadPool::globalInstance()->waitForDone();
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::clipboard()->clear();  // it may hold the picture of a chart
}

}  // namespace veyruna::tests
