// What is stored stays as it is, however strange, until a person changes it.
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QScrollArea>
#include <QScrollBar>

#include "tests/ui/window/control_window.h"

namespace veyruna::ui {
namespace {

struct UnchangedInputs : tests::ControlWindow {};

TEST_F(UnchangedInputs, StoredValuesOutsideTheirRangesAreShownAndStayStored) {
  model.setYear(3000);
  model.setDayIndex(45);
  model.setHour(12.3);
  model.setManualLatDeg(40.123456);
  stored();
  for (const char* const tab : {"tab2", "tab6", "tab1"}) {
    press(tab);
  }
  find<QWidget>("hourSlider")->setFocus();
  find<QWidget>("latitudeField")->setFocus();
  find<QWidget>("yearStepper")->setFocus();
  press("calculateButton");
  EXPECT_TRUE(stored().isEmpty());
  EXPECT_EQ(model.year(), 3000);
  EXPECT_EQ(model.hour(), 12.3);
  EXPECT_EQ(model.manualLatDeg(), 40.123456);
  tasks.runNext();
  tests::turnEventLoop();
  EXPECT_TRUE(model.dateLabel().startsWith(QStringLiteral("3000-02-16 12:18")))
      << model.dateLabel().toStdString();
}

TEST_F(UnchangedInputs, AWheelOverAControlWithoutFocusChangesNothing) {
  find<QWidget>("calculateButton")->setFocus();
  for (const char* const name :
       {"locationPicker", "monthPicker", "dayStepper", "yearStepper", "hourSlider"}) {
    auto* const control = find<QWidget>(name);
    QWheelEvent wheel(QPointF(5, 5), control->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(control, &wheel);
    EXPECT_FALSE(control->hasFocus());
  }
  EXPECT_TRUE(stored().isEmpty());
}

TEST_F(UnchangedInputs, AWheelOverAControlScrollsTheSidebar) {
  window.resize(1000, 420);
  tests::turnEventLoop();
  auto* const sidebar = find<QScrollArea>("sidebar");
  find<QWidget>("calculateButton")->setFocus();
  sidebar->verticalScrollBar()->setValue(0);
  ASSERT_GT(sidebar->verticalScrollBar()->maximum(), 0);
  auto* const month = find<QWidget>("monthPicker");
  const QPointF here = month->mapTo(&window, QPointF(5, 5));
  QWheelEvent wheel(month->mapFrom(&window, here), window.mapToGlobal(here), QPoint(),
                    QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  wheel.ignore();
  // A wheel that is turned goes from the control up to whoever takes it.
  for (QWidget* widget = month; widget != sidebar && !wheel.isAccepted();
       widget = widget->parentWidget()) {
    wheel.ignore();
    QCoreApplication::sendEvent(widget, &wheel);
  }
  EXPECT_GT(sidebar->verticalScrollBar()->value(), 0);
  EXPECT_TRUE(stored().isEmpty());
}

TEST_F(UnchangedInputs, AnEmptiedFieldGoesBackToWhatIsUsed) {
  auto* const latitude = find<QLineEdit>("latitudeField");
  latitude->setFocus();
  QTest::keyClick(latitude, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(latitude, Qt::Key_Delete);
  EXPECT_TRUE(latitude->text().isEmpty());
  find<QWidget>("yearStepper")->setFocus();
  EXPECT_EQ(latitude->text(), QLocale().toString(40.5));
  EXPECT_TRUE(stored().isEmpty());
}

TEST_F(UnchangedInputs, APlaceThatIsGoneShowsAnEmptyPicker) {
  model.setSelectedCityID(QUuid::createUuid());
  EXPECT_EQ(find<QComboBox>("locationPicker")->currentIndex(), -1);
  EXPECT_EQ(find<QLabel>("coordinates")->text(), QStringLiteral("0.00° N   0.00° E"));
}

}  // namespace
}  // namespace veyruna::ui
