#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <stdexcept>

#include "tests/model/fakes.h"
#include "tests/support/patience.h"
#include "ui/window/main_view.h"
#include "ui/window/window_state.h"

namespace veyruna::tests {

/// The real window, shown, with a model whose calculations wait.
struct ShownWindow : FakeModel {
  QTemporaryDir folder;
  ui::WindowState state{folder.filePath(QStringLiteral("window.ini"))};
  model::LiveTime time{model, store};
  ui::MainView window{model, time, state};

  ShownWindow() {
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    comeBack();
  }

  /// Makes the window the active one, as a window manager does when a sheet over it has closed.
  void comeBack() {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window, tests::patienceMilliseconds));
  }

  /// The control of this object name, which must be there or come soon: a button that is pressed by
  /// its key is seen to go down first.
  template <class Control>
  Control* find(const char* name) {
    Control* control = nullptr;
    const bool isThere = QTest::qWaitFor(
        [&] {
          control = window.findChild<Control*>(QString::fromLatin1(name));
          return control != nullptr;
        },
        patienceMilliseconds);
    EXPECT_TRUE(isThere) << name;
    if (!isThere) {
      throw std::runtime_error(name);
    }
    return control;
  }

  /// Presses a button with the mouse; it must be visible and enabled.
  void press(const char* name) {
    auto* const button = find<QAbstractButton>(name);
    EXPECT_TRUE(button->isVisible() && button->isEnabled()) << name;
    QTest::mouseClick(button, Qt::LeftButton);
  }

  /// Chooses an entry as a person does it at the keyboard.
  void choose(const char* name, const QString& entry) {
    auto* const box = find<QComboBox>(name);
    box->setFocus();
    for (int step = 0; step < box->count() && box->currentText() != entry; ++step) {
      QTest::keyClick(box, step == 0 ? Qt::Key_Home : Qt::Key_Down);
    }
    EXPECT_EQ(box->currentText(), entry);
  }

  /// Types into a field, replacing what is there.
  void type(const char* name, const QString& text) {
    auto* const field = find<QWidget>(name);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
  }
};

}  // namespace veyruna::tests
