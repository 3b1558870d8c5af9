// What is typed into a field counts however the typing is ended, and what is refused never becomes
// another value.
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollArea>
#include <algorithm>
#include <functional>
#include <iterator>
#include <ostream>

#include "tests/support/patience.h"
#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

using model::AstronomyModel;

struct Field {
  const char* name;
  const char* typed;
  const char* refused;
  const char* note;  ///< the line that says what is accepted
  double value;      ///< of what is typed
  std::function<double(const AstronomyModel&)> inUse;
};

const std::vector<Field> fields = {
    {"latitudeField", "12", "95", "locationNote", 12.0,
     [](const AstronomyModel& model) { return model.manualLatDeg(); }},
    {"longitudeField", "7", "181", "locationNote", 7.0,
     [](const AstronomyModel& model) { return model.manualLongDeg(); }},
    {"dayStepper", "19", "45", "dateNote", 18.0,
     [](const AstronomyModel& model) { return static_cast<double>(model.dayIndex()); }},
    {"yearStepper", "900", "2001", "dateNote", 900.0,
     [](const AstronomyModel& model) { return static_cast<double>(model.year()); }},
    {"hourField", "3:45", "24:00", "timeNote", 3.75,
     [](const AstronomyModel& model) { return model.hour(); }},
};

struct Ending {
  const char* name;
  std::function<void(tests::ShownWindow&, QWidget& field)> end;
};

void press(tests::ShownWindow& shown, int key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(&shown.window, static_cast<Qt::Key>(key), modifiers);
}

/// Ways to end the typing that leave the field.
const std::vector<Ending> leavings = {
    {"Tab", [](auto& /*shown*/, QWidget& field) { QTest::keyClick(&field, Qt::Key_Tab); }},
    {"Backtab", [](auto& /*shown*/,
                   QWidget& field) { QTest::keyClick(&field, Qt::Key_Tab, Qt::ShiftModifier); }},
    {"ClickBesideTheFields",
     [](auto& shown, QWidget& /*field*/) {
       auto* const sidebar = shown.template find<QScrollArea>("sidebar");
       QTest::mouseClick(sidebar->widget(), Qt::LeftButton, {}, QPoint(2, 2));
     }},
    {"ClickOnASwitch", [](auto& shown, QWidget& /*field*/) { shown.press("localTime"); }},
    {"ClickOnALetter", [](auto& shown, QWidget& /*field*/) { shown.press("northSouthS"); }},
    {"Mnemonic", [](auto& shown, QWidget& /*field*/) { press(shown, Qt::Key_M, Qt::AltModifier); }},
    {"Calculate", [](auto& shown, QWidget& /*field*/) { shown.press("calculateButton"); }},
    {"CalculateByKey",
     [](auto& shown, QWidget& /*field*/) { press(shown, Qt::Key_Return, Qt::ControlModifier); }},
    {"CalculateByKeypad",
     [](auto& shown, QWidget& /*field*/) { press(shown, Qt::Key_Enter, Qt::ControlModifier); }},
    {"Tab5", [](auto& shown, QWidget& /*field*/) { shown.press("tab5"); }},
    {"Tab5ByKey",
     [](auto& shown, QWidget& /*field*/) { press(shown, Qt::Key_5, Qt::ControlModifier); }},
    {"Map", [](auto& shown, QWidget& /*field*/) { shown.press("mapButton"); }},
    {"NativeExport", [](auto& shown, QWidget& /*field*/) { shown.press("nativeExportButton"); }},
    {"PdfExport", [](auto& shown, QWidget& /*field*/) { shown.press("pdfButton"); }},
    {"SaveLocation", [](auto& shown, QWidget& /*field*/) { shown.press("saveButton"); }},
    {"NewWindow",
     [](auto& shown, QWidget& /*field*/) { press(shown, Qt::Key_N, Qt::ControlModifier); }},
    {"Quit", [](auto& shown, QWidget& /*field*/) { press(shown, Qt::Key_Q, Qt::ControlModifier); }},
    {"CloseByKey",
     [](auto& shown, QWidget& /*field*/) { press(shown, Qt::Key_W, Qt::ControlModifier); }},
    {"Close", [](auto& shown, QWidget& /*field*/) { shown.window.close(); }},
};

/// Ways that stay in the field.
const std::vector<Ending> stayings = {
    {"Return", [](auto& /*shown*/, QWidget& field) { QTest::keyClick(&field, Qt::Key_Return); }},
    {"KeypadEnter",
     [](auto& /*shown*/, QWidget& field) {
       QTest::keyClick(&field, Qt::Key_Enter, Qt::KeypadModifier);
     }},
    {"AnotherWindow",
     [](auto& /*shown*/, QWidget& /*field*/) {
       QWidget other;
       other.show();
       other.activateWindow();
       EXPECT_TRUE(QTest::qWaitForWindowActive(&other, tests::patienceMilliseconds));
     }},
};

/// One way of each kind: with what is typed they all do the same.
std::vector<Ending> leavingsOfEachKind() {
  std::vector<Ending> some;
  for (const Ending& ending : leavings) {
    const std::string name = ending.name;
    if (name == "Tab" || name == "ClickBesideTheFields" || name == "Calculate" ||
        name == "CalculateByKey" || name == "Tab5ByKey" || name == "PdfExport" || name == "Close") {
      some.push_back(ending);
    }
  }
  return some;
}

/// With nothing in it, a field in an inactive window waits for what is to come.
std::vector<Ending> endingsOfAnEmptyField() {
  std::vector<Ending> some = leavingsOfEachKind();
  std::ranges::copy_if(stayings, std::back_inserter(some), [](const Ending& ending) {
    return ending.name != std::string("AnotherWindow");
  });
  return some;
}

std::vector<Ending> allEndings() {
  std::vector<Ending> all = leavings;
  all.insert(all.end(), stayings.begin(), stayings.end());
  return all;
}

void PrintTo(const Field& field, std::ostream* out) {
  *out << field.name;
}
void PrintTo(const Ending& ending, std::ostream* out) {
  *out << ending.name;
}

struct Typing : testing::TestWithParam<std::tuple<Field, Ending>>, tests::ShownWindow {
  const Field field = std::get<0>(GetParam());
  const Ending ending = std::get<1>(GetParam());

  QWidget& typeInto(const char* text) {
    if (field.name == std::string("hourField")) {
      QTest::keyClick(find<QWidget>("hourSlider"), Qt::Key_F2);
    }
    type(field.name, QString::fromLatin1(text));
    return *find<QWidget>(field.name);
  }
  QString shownIn(QWidget& widget) {
    auto* const line = qobject_cast<QLineEdit*>(&widget);
    return line != nullptr ? line->text() : widget.findChild<QLineEdit*>()->text();
  }
};

struct HoweverItIsEnded : Typing {};

TEST_P(HoweverItIsEnded, WhatIsTypedCountsAndIsShown) {
  QWidget& widget = typeInto(field.typed);
  EXPECT_NE(field.inUse(model), field.value) << "counts only when it is ended";
  ending.end(*this, widget);
  EXPECT_EQ(field.inUse(model), field.value);
  EXPECT_EQ(
      shownIn(widget),
      QString::fromLatin1(field.typed).replace(QStringLiteral("3:45"), QStringLiteral("03:45")));
  EXPECT_TRUE(find<QLabel>(field.note)->text().isEmpty());
}

struct WhenItIsLeft : Typing {};

TEST_P(WhenItIsLeft, WhatIsRefusedGivesWayToTheValueInUse) {
  const double before = field.inUse(model);
  auto* const note = find<QLabel>(field.note);
  QWidget& widget = typeInto(field.refused);
  EXPECT_FALSE(note->text().isEmpty()) << "said while it is typed";
  EXPECT_FALSE(note->text().contains(QStringLiteral("still")));
  const QString range = note->text();
  ending.end(*this, widget);
  EXPECT_EQ(field.inUse(model), before);
  EXPECT_NE(shownIn(widget), QString::fromLatin1(field.refused));
  EXPECT_EQ(note->text(), range + QStringLiteral("; still ") + shownIn(widget));
}

struct WhenItIsNotLeft : Typing {};

TEST_P(WhenItIsNotLeft, WhatIsRefusedStaysToBeMended) {
  const double before = field.inUse(model);
  QWidget& widget = typeInto(field.refused);
  ending.end(*this, widget);
  EXPECT_EQ(field.inUse(model), before);
  EXPECT_EQ(shownIn(widget), QString::fromLatin1(field.refused));
  EXPECT_TRUE(widget.findChild<QWidget*>(QStringLiteral("refusedEdge"))->isVisibleTo(&widget));
  EXPECT_FALSE(find<QLabel>(field.note)->text().isEmpty());
}

struct HoweverAnEmptyFieldIsEnded : Typing {};

TEST_P(HoweverAnEmptyFieldIsEnded, TheValueInUseComesBackWithoutANote) {
  const double before = field.inUse(model);
  QWidget& widget = typeInto("");
  const QString inUse = shownIn(widget);
  QTest::keyClick(&widget, Qt::Key_Backspace);
  ASSERT_EQ(shownIn(widget), QString());
  ending.end(*this, widget);
  EXPECT_EQ(field.inUse(model), before);
  EXPECT_EQ(shownIn(widget), inUse);
  EXPECT_EQ(find<QLabel>(field.note)->text(), QString());
}

std::string nameOf(const testing::TestParamInfo<std::tuple<Field, Ending>>& info) {
  return std::string(std::get<0>(info.param).name) + "_" + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Sidebar, HoweverItIsEnded,
                         testing::Combine(testing::ValuesIn(fields),
                                          testing::ValuesIn(allEndings())),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Sidebar, WhenItIsLeft,
                         testing::Combine(testing::ValuesIn(fields),
                                          testing::ValuesIn(leavingsOfEachKind())),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Sidebar, WhenItIsNotLeft,
                         testing::Combine(testing::ValuesIn(fields), testing::ValuesIn(stayings)),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(Sidebar, HoweverAnEmptyFieldIsEnded,
                         testing::Combine(testing::ValuesIn(fields),
                                          testing::ValuesIn(endingsOfAnEmptyField())),
                         nameOf);

/// The keys of all menu entries but that of the manual, which is read while typing goes on.
QList<QKeySequence> menuKeys(const QMenuBar& menus) {
  QList<QKeySequence> keys;
  for (const QAction* const menu : menus.actions()) {
    for (const QAction* const action : menu->menu()->actions()) {
      if (!action->shortcut().isEmpty() && action->shortcut() != QKeySequence(Qt::Key_F1)) {
        keys.append(action->shortcut());
      }
    }
  }
  return keys;
}

TEST(EveryKeyOfTheMenus, TakesOverWhatIsTyped) {
  const QList<QKeySequence> keys = menuKeys(*tests::ShownWindow().window.menuBar());
  EXPECT_GE(keys.size(), 3);
  for (const QKeySequence& key : keys) {
    tests::ShownWindow shown;
    shown.time.setOn(true);  // some keys move it
    shown.type("yearStepper", QStringLiteral("900"));
    QTest::keySequence(&shown.window, key);
    EXPECT_EQ(shown.model.year(), 900) << key.toString().toStdString();
  }
}

}  // namespace
}  // namespace veyruna::ui
