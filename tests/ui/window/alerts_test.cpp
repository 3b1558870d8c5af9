// What a screen reader says of texts that come and change by themselves.
#include "tests/ui/alerts.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>

#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

struct Spoken : testing::Test, tests::ShownWindow {
  tests::Alerts alerts;

  void exportTo(const QString& path) {
    press("nativeExportButton");
    auto* const dialog = find<QFileDialog>("saveDialog");
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
    QMetaObject::invokeMethod(dialog, "accept");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  QString text(const char* label) { return find<QLabel>(label)->text(); }
};

TEST_F(Spoken, WhatIsSaidGoesToTheScreenReader) {
  EXPECT_EQ(alerts.former(), &QAccessible::updateAccessibility);
}

TEST_F(Spoken, HowAnExportEndedIsSaidAtOnce) {
  calculate();
  tests::Alerts::heard();
  exportTo(folder.filePath(QStringLiteral("sky.svg")));
  EXPECT_EQ(tests::Alerts::heard(), QStringList(QStringLiteral("Saved sky.svg")));
  exportTo(QStringLiteral("/proc/sky.svg"));
  const QString failure = text("exportNotice");
  EXPECT_TRUE(failure.startsWith(QStringLiteral("Not saved: "))) << failure.toStdString();
  EXPECT_EQ(tests::Alerts::heard(), QStringList(failure));
  // That it goes is no news.
  press("tab2");
  EXPECT_EQ(text("exportNotice"), QString());
  EXPECT_EQ(tests::Alerts::heard(), QStringList());
}

TEST_F(Spoken, WhatAFieldAcceptsIsSaidWhenItRefuses) {
  for (const auto& [field, note] :
       {std::pair("latitudeField", "locationNote"), std::pair("yearStepper", "dateNote")}) {
    type(field, QStringLiteral("99999"));
    const QStringList heard = tests::Alerts::heard();
    ASSERT_FALSE(heard.isEmpty()) << field;
    EXPECT_FALSE(text(note).isEmpty());
    EXPECT_EQ(heard.constLast(), text(note));
  }
}

TEST_F(Spoken, DayAndYearHaveTheirValuesAsTheyAreShown) {
  struct Field {
    const char* name;
    int value;
    int most;
  };
  for (const auto& [name, value, most] :
       {Field{"dayStepper", 1, 30}, Field{"yearStepper", 720, 2000}}) {
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(find<QWidget>(name));
    ASSERT_NE(spoken->valueInterface(), nullptr) << name;
    QAccessibleValueInterface& is = *spoken->valueInterface();
    EXPECT_EQ(is.currentValue().toInt(), value) << name;
    EXPECT_EQ(is.minimumValue().toInt(), 1) << name;
    EXPECT_EQ(is.maximumValue().toInt(), most) << name;
    EXPECT_EQ(is.minimumStepSize().toInt(), 1) << name;
    is.setCurrentValue(17);
    EXPECT_EQ(is.currentValue().toInt(), 17) << name;
    is.setCurrentValue(most + 1);
    EXPECT_EQ(is.currentValue().toInt(), most) << name;
  }
  EXPECT_EQ(model.dayIndex(), 29);
  EXPECT_EQ(model.year(), 2000);
}

TEST_F(Spoken, AValueThatChangesIsToldOnce) {
  tests::Alerts::values();
  QTest::keyClick(find<QWidget>("yearStepper"), Qt::Key_Up);
  EXPECT_EQ(tests::Alerts::values(), QStringList(QStringLiteral("Year 721")));
  type("dayStepper", QStringLiteral("30"));
  EXPECT_EQ(tests::Alerts::values(), QStringList()) << "it does not count yet";
  QTest::keyClick(find<QWidget>("dayStepper"), Qt::Key_Return);
  EXPECT_EQ(tests::Alerts::values(), QStringList(QStringLiteral("Day of the month 30")));
  model.setYear(900);
  model.setYear(900);
  EXPECT_EQ(tests::Alerts::values(), QStringList(QStringLiteral("Year 900")));
}

TEST_F(Spoken, WhyNothingCanBeCalculatedIsSaid) {
  model.setYear(5'000'000'000);
  press("calculateButton");
  ASSERT_FALSE(text("errorMessage").isEmpty());
  EXPECT_EQ(tests::Alerts::heard(), QStringList(text("errorMessage")));
}

TEST_F(Spoken, WhyAPlaceIsNotSavedIsSaid) {
  press("saveButton");
  QTest::keyClicks(find<QLineEdit>("nameField"), QStringLiteral("Ebb"));
  QTest::keyClick(find<QLineEdit>("nameField"), Qt::Key_Return);
  ASSERT_FALSE(text("saveError").isEmpty());
  EXPECT_EQ(tests::Alerts::heard(), QStringList(text("saveError")));
}

TEST_F(Spoken, EveryTextIsSpokenAsItStandsThere) {
  model.setSelectedCityID(model.cities().at(2).id);
  calculate();
  int texts = 0;
  for (const char* const tab : {"tab1", "tab2", "tab3", "tab4", "tab5", "tab6"}) {
    press(tab);
    for (QLabel* const label : window.findChildren<QLabel*>()) {
      if (!label->isVisible() || label->text().isEmpty() || label->buddy() != nullptr) {
        continue;
      }
      const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(label);
      ASSERT_NE(spoken, nullptr);
      EXPECT_EQ(spoken->text(QAccessible::Name), label->text())
          << label->objectName().toStdString();
      ++texts;
    }
  }
  EXPECT_GT(texts, 30);
}

}  // namespace
}  // namespace veyruna::ui
