// The keyboard alone does everything, and every control can be named, found and reached.
#include <QAccessible>
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSet>
#include <QShortcut>
#include <QSlider>
#include <QTableWidget>

#include "tests/support/patience.h"
#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

using exports::OutputTab;

/// Whether the widget is a control of ours, not a part that Qt puts into one.
bool isControl(const QWidget& widget) {
  if (widget.objectName().startsWith(QLatin1String("qt_")) ||
      widget.inherits("QTableCornerButton") ||
      qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) != nullptr) {
    return false;
  }
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QSlider*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QTableWidget*>(&widget) != nullptr;
}

/// The key behind "&" in a title, in upper case; empty where there is none.
QString mnemonicOf(const QString& title) {
  return QKeySequence::mnemonic(title).toString();
}

struct Keyboard : testing::Test, tests::ShownWindow {
  Keyboard() { calculate(); }

  /// The controls that can be seen and used now.
  QList<QWidget*> controls() {
    QList<QWidget*> all;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
      if (isControl(*widget) && widget->isVisible() && widget->isEnabled()) {
        all.append(widget);
      }
    }
    return all;
  }

  /// Where Tab leads from the first tab's button, until it comes round.
  QList<QWidget*> tabRound() {
    QList<QWidget*> round;
    find<QWidget>("tab1")->setFocus();
    while (round.size() < 200) {
      round.append(QApplication::focusWidget());
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      if (round.contains(QApplication::focusWidget())) {
        break;
      }
    }
    return round;
  }

  void showEveryKindOfControl(const std::function<void()>& look) {
    for (const QUuid& place : {model::manualCityID(), model.cities().at(3).id}) {
      model.setSelectedCityID(place);
      time.setOn(place != model::manualCityID());  // with and without the bar that moves it
      for (const OutputTab tab : exports::outputTabs) {
        window.selectTab(tab);
        tests::turnEventLoop();
        SCOPED_TRACE(exports::title(tab).toStdString());
        look();
      }
    }
  }
};

TEST_F(Keyboard, EveryControlHasANameToSpeakAndOneToFind) {
  showEveryKindOfControl([this] {
    QSet<QString> names;
    for (const QWidget* const control : controls()) {
      EXPECT_FALSE(control->accessibleName().isEmpty())
          << control->metaObject()->className() << control->objectName().toStdString();
      EXPECT_FALSE(control->objectName().isEmpty()) << control->accessibleName().toStdString();
      EXPECT_FALSE(names.contains(control->objectName())) << control->objectName().toStdString();
      names.insert(control->objectName());
      const QAccessibleInterface* const spoken =
          QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control));
      ASSERT_NE(spoken, nullptr);
      EXPECT_NE(spoken->role(), QAccessible::NoRole) << control->objectName().toStdString();
      EXPECT_NE(spoken->role(), QAccessible::Client) << control->objectName().toStdString();
    }
    EXPECT_GT(names.size(), 15);
  });
}

TEST_F(Keyboard, TabReachesEveryControl) {
  showEveryKindOfControl([this] {
    const QList<QWidget*> round = tabRound();
    for (QWidget* const control : controls()) {
      bool isReached = round.contains(control);
      // Of segments that exclude each other one is reached; the arrow keys reach the others.
      for (QWidget* const sibling : control->parentWidget()->findChildren<QWidget*>()) {
        isReached =
            isReached || (control->parentWidget()->inherits("veyruna::ui::SegmentedPicker") &&
                          round.contains(sibling));
      }
      EXPECT_TRUE(isReached) << control->objectName().toStdString();
    }
  });
}

TEST_F(Keyboard, TabGoesAsOneReads) {
  showEveryKindOfControl([this] {
    const auto* const sidebar = window.findChild<QWidget*>(QStringLiteral("sidebar"));
    const QWidget* before = nullptr;
    for (const QWidget* const here : tabRound()) {
      const bool isInSidebar = sidebar->isAncestorOf(here);
      if (before != nullptr && isInSidebar && sidebar->isAncestorOf(before)) {
        const QRect was(before->mapTo(&window, QPoint()), before->size());
        const QRect is(here->mapTo(&window, QPoint()), here->size());
        const bool isSameRow = is.top() <= was.bottom() && was.top() <= is.bottom();
        EXPECT_TRUE(isSameRow ? is.left() > was.left() : is.top() > was.top())
            << before->objectName().toStdString() << " to " << here->objectName().toStdString();
      }
      before = here;
    }
  });
}

TEST_F(Keyboard, NoTwoShortcutsAndNoTwoMnemonicsAreAlike) {
  showEveryKindOfControl([this] {
    QMap<QString, QStringList> users;
    for (const QAction* const action : window.menuBar()->actions()) {
      users[mnemonicOf(action->text())].append(action->text());
    }
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
      if (!widget->isVisible()) {
        continue;
      }
      if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) {
        users[mnemonicOf(button->text())].append(button->text());
      } else if (const auto* const label = qobject_cast<const QLabel*>(widget);
                 label != nullptr && label->buddy() != nullptr) {
        users[mnemonicOf(label->text())].append(label->text());
      }
    }
    for (const QAction* const action : window.findChildren<QAction*>()) {
      for (const QKeySequence& keys : action->shortcuts()) {
        const bool isEverywhere = action->shortcutContext() == Qt::WindowShortcut;
        users[isEverywhere ? keys.toString() : QString()].append(action->text());
      }
    }
    for (const QShortcut* const shortcut : window.findChildren<QShortcut*>()) {
      users[shortcut->key().toString()].append(QStringLiteral("shortcut"));
    }
    users.remove(QString());
    EXPECT_GT(users.size(), 15);
    for (auto user = users.cbegin(); user != users.cend(); ++user) {
      EXPECT_EQ(user->size(), 1) << user.key().toStdString() << ": "
                                 << user->join(QStringLiteral(", ")).toStdString();
    }
  });
}

TEST_F(Keyboard, TheMenusAnswerToTheirKeys) {
  QMap<QString, QString> keys;
  for (const QAction* const menu : window.menuBar()->actions()) {
    for (const QAction* const action : menu->menu()->actions()) {
      keys[action->text().remove(QLatin1Char('&'))] = action->shortcut().toString();
    }
  }
  EXPECT_EQ(keys[QStringLiteral("Quit")], QStringLiteral("Ctrl+Q"));
  EXPECT_EQ(keys[QStringLiteral("New Window")], QStringLiteral("Ctrl+N"));
  EXPECT_EQ(keys[QStringLiteral("Close")], QStringLiteral("Ctrl+W"));
  EXPECT_EQ(keys[QStringLiteral("Veyruna Astro Help")], QString());  // F1 knows the chapter
  EXPECT_EQ(keys[QStringLiteral("Save as SVG…")], QStringLiteral("Ctrl+S"));
  EXPECT_EQ(keys[QStringLiteral("Save as PDF…")], QStringLiteral("Ctrl+Shift+S"));
  EXPECT_EQ(keys[QStringLiteral("Print…")], QStringLiteral("Ctrl+P"));
  EXPECT_EQ(keys[QStringLiteral("Live")], QStringLiteral("Ctrl+L"));
  EXPECT_EQ(keys[QStringLiteral("Step Forward")], QStringLiteral("Alt+Right"));
  EXPECT_EQ(keys[QStringLiteral("Step Back")], QStringLiteral("Alt+Left"));
  EXPECT_EQ(keys[QStringLiteral("Now")], QStringLiteral("Alt+Home"));
  EXPECT_EQ(keys[QStringLiteral("Play\tSpace")], QString());  // the focus comes first
  EXPECT_EQ(keys[QStringLiteral("Play Backwards\tShift+Space")], QString());
  EXPECT_TRUE(keys.contains(QStringLiteral("Save as HTML…")));
  keys.remove(QString());  // separators
  EXPECT_EQ(keys.size(), 16);
}

TEST_F(Keyboard, APersonWithoutAMouseSavesAPlaceAndReadsItsTables) {
  // The place: Alt+A goes to the latitude, Tab on to its letter and the longitude.
  QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("12"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);  // from N to S
  EXPECT_FALSE(model.latNorth());
  QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("34"));
  QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
  auto* const sheet = find<QDialog>("saveSheet");
  ASSERT_TRUE(QTest::qWaitForWindowActive(sheet, tests::patienceMilliseconds));
  EXPECT_TRUE(QTest::qWaitFor(
      [] {
        return QApplication::focusWidget() != nullptr &&
               QApplication::focusWidget()->objectName() == QLatin1String("nameField");
      },
      tests::patienceMilliseconds));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Lookout"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(find<QLabel>("coordinates")->text(), QStringLiteral("12.00° S   34.00° W"));

  // The moment.
  comeBack();
  QTest::keyClick(&window, Qt::Key_M, Qt::AltModifier);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("30"));
  QTest::keyClick(&window, Qt::Key_I, Qt::AltModifier);
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return model.useLocalTime(); }, tests::patienceMilliseconds));
  QTest::keyClick(&window, Qt::Key_Return, Qt::ControlModifier);
  tasks.runNext();
  tests::turnEventLoop();
  EXPECT_TRUE(model.dateLabel().startsWith(QStringLiteral("720-02-30")))
      << model.dateLabel().toStdString();

  // The tables: from the hours to the months, and through the table.
  QTest::keyClick(&window, Qt::Key_4, Qt::ControlModifier);
  EXPECT_EQ(window.selectedTab(), OutputTab::sunMoon);
  auto* const hourly = find<QWidget>("showHourly");
  hourly->setFocus();
  QTest::keyClick(hourly, Qt::Key_Right);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  auto* const table = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->toPlainText(), model.basicTableMonthly());

  // The export.
  QTest::keyClick(&window, Qt::Key_T, Qt::AltModifier);
  find<QDialog>("saveDialog")->reject();
}

TEST_F(Keyboard, TheDeleteSheetDeletesOnReturnAndKeepsOnEscape) {
  model.setSelectedCityID(model.cities().at(2).id);
  QTest::keyClick(&window, Qt::Key_D, Qt::AltModifier);
  QTest::keyClick(find<QDialog>("deleteSheet"), Qt::Key_Escape);
  EXPECT_EQ(model.cities().size(), 14);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  comeBack();
  QTest::keyClick(&window, Qt::Key_D, Qt::AltModifier);
  QTest::keyClick(find<QDialog>("deleteSheet"), Qt::Key_Return);
  EXPECT_EQ(model.cities().size(), 13);
}

}  // namespace
}  // namespace veyruna::ui
