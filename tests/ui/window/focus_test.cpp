// Where the focus goes when something was done, and the keys that lead to the inputs.
#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include "tests/support/patience.h"
#include "tests/ui/window/control_window.h"

namespace veyruna::ui {
namespace {

struct Focus : tests::ControlWindow {};

/// The name of what has the focus; the window must have it back from its sheet.
QString focused() {
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; },
                              tests::patienceMilliseconds));
  const QWidget* const widget = QApplication::focusWidget();
  return widget == nullptr ? QString() : widget->objectName();
}

TEST_F(Focus, AfterAPlaceWasSavedTheFocusIsOnThePicker) {
  find<QWidget>("saveButton")->setFocus();
  QTest::keyClick(find<QWidget>("saveButton"), Qt::Key_Space);
  QTest::keyClicks(find<QLineEdit>("nameField"), QStringLiteral("Harbour"));
  QTest::keyClick(find<QLineEdit>("nameField"), Qt::Key_Return);
  comeBack();
  EXPECT_EQ(focused(), QStringLiteral("locationPicker"));
  // A hasty second Return or Space deletes nothing.
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(window.findChild<QDialog*>(QStringLiteral("deleteSheet")), nullptr);
  EXPECT_EQ(model.cities().size(), 15);
}

TEST_F(Focus, AfterAPlaceWasDeletedTheFocusIsOnThePicker) {
  model.setSelectedCityID(model.cities().at(2).id);
  find<QWidget>("deleteButton")->setFocus();
  QTest::keyClick(find<QWidget>("deleteButton"), Qt::Key_Space);
  QTest::keyClick(find<QDialog>("deleteSheet"), Qt::Key_Return);
  comeBack();
  EXPECT_EQ(focused(), QStringLiteral("locationPicker"));
}

TEST_F(Focus, AfterASheetThatWasCancelledTheFocusIsWhereItWas) {
  find<QWidget>("saveButton")->setFocus();
  QTest::keyClick(find<QWidget>("saveButton"), Qt::Key_Space);
  QTest::keyClick(find<QDialog>("saveSheet"), Qt::Key_Escape);
  comeBack();
  EXPECT_EQ(focused(), QStringLiteral("saveButton"));
}

TEST_F(Focus, AfterPickFromMapTheFocusIsOnTheMap) {
  find<QWidget>("mapButton")->setFocus();
  QTest::keyClick(find<QWidget>("mapButton"), Qt::Key_Space);
  EXPECT_EQ(focused(), QStringLiteral("mapArea"));
  const QString before = find<QLabel>("zoomReadout")->text();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Plus);
  EXPECT_NE(find<QLabel>("zoomReadout")->text(), before) << "its keys work at once";
  // The tab itself keeps the focus where it is: one goes through the tabs by key.
  press("tab1");
  find<QWidget>("tab1")->setFocus();
  QTest::keyClick(&window, Qt::Key_6, Qt::ControlModifier);
  EXPECT_EQ(focused(), QStringLiteral("tab1"));
}

TEST_F(Focus, TheColourButtonThatGoesHandsItsFocusToTheMapButton) {
  press("tab2");
  find<QWidget>("colorModeButton")->setFocus();
  QTest::keyClick(&window, Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(focused(), QStringLiteral("mapButton"));
}

TEST_F(Focus, EveryInputHasAKeyOfItsOwn) {
  for (const auto& [letter, name] :
       {std::pair(Qt::Key_L, "locationPicker"), std::pair(Qt::Key_A, "latitudeField"),
        std::pair(Qt::Key_N, "longitudeField"), std::pair(Qt::Key_M, "monthPicker"),
        std::pair(Qt::Key_Y, "dayStepper"), std::pair(Qt::Key_R, "yearStepper"),
        std::pair(Qt::Key_U, "hourSlider"), std::pair(Qt::Key_E, "laterButton")}) {
    QTest::keyClick(&window, letter, Qt::AltModifier);
    EXPECT_EQ(focused(), QString::fromLatin1(name));
  }
  // What is typed then replaces what stands there.
  QTest::keyClick(&window, Qt::Key_Y, Qt::AltModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("17"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(model.dayIndex(), 16);
}

}  // namespace
}  // namespace veyruna::ui
