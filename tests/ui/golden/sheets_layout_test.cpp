// The sheets over the window, About, and what the status bar tells, line by line.
#include <QDialog>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>
#include <chrono>

#include "tests/support/golden.h"
#include "tests/ui/golden/layout_text.h"
#include "tests/ui/golden/plain_window.h"
#include "ui/window/about_view.h"
#include "ui/window/export_notice.h"
#include "ui/window/print_sheet.h"

namespace veyruna::ui {
namespace {

struct SheetLayout : tests::PlainWindow {
  static void compare(const char* name, const QWidget& part) {
    EXPECT_TRUE(QTest::qWaitFor([&part] { return part.window()->isActiveWindow(); },
                                tests::patienceMilliseconds));
    settle();
    EXPECT_TRUE(tests::isGolden(std::string("ui/layouts/") + name, tests::layoutText(part)));
  }
  QDialog& sheet(const char* name) { return *shown.find<QDialog>(name); }
};

TEST_F(SheetLayout, SaveLocation) {
  shown.press("saveButton");
  QDialog& question = sheet("saveSheet");
  compare("save_sheet.txt", question);
  auto* const name = question.findChild<QWidget*>(QStringLiteral("nameField"));
  QTest::keyClicks(name, QStringLiteral("Ebb"));
  QTest::keyClick(name, Qt::Key_Return);
  compare("save_sheet_refusing.txt", question);
}

TEST_F(SheetLayout, DeleteLocation) {
  shown.model.setSelectedCityID(shown.model.cities().at(3).id);
  shown.press("deleteButton");
  compare("delete_sheet.txt", sheet("deleteSheet"));
}

TEST_F(SheetLayout, DeleteLocationOfALongName) {
  const QString name = QStringLiteral("a name of many words ").repeated(12).trimmed();
  shown.model.setSelectedCityID(std::get<QUuid>(shown.model.addCity(name)));
  shown.press("deleteButton");
  compare("delete_sheet_of_a_long_name.txt", sheet("deleteSheet"));
}

TEST_F(SheetLayout, Print) {
  PrintSheet question({QStringLiteral("Attic"), QStringLiteral("Study")}, QStringLiteral("Study"),
                      &shown.window);
  question.setAttribute(Qt::WA_DeleteOnClose, false);
  question.open();
  compare("print_sheet.txt", question);
}

TEST_F(SheetLayout, About) {
  AboutView about;
  about.show();
  compare("about.txt", about);
}

TEST_F(SheetLayout, WhatTheStatusBarTells) {
  auto* const notice = shown.window.findChild<ExportNotice*>();
  const auto* const leaving = notice->findChild<QTimer*>();
  compare("status_bar.txt", *shown.window.statusBar());
  notice->showSuccess(QStringLiteral("Saved moon.txt"), QStringLiteral("/tmp"));
  EXPECT_TRUE(leaving->isActive() && leaving->isSingleShot());
  EXPECT_EQ(leaving->intervalAsDuration(), std::chrono::seconds(8));
  compare("status_bar_saved.txt", *shown.window.statusBar());
  notice->showFailure(QStringLiteral("Not saved: no room is left (moon.txt)"));
  EXPECT_FALSE(leaving->isActive()) << "stays";
  compare("status_bar_not_saved.txt", *shown.window.statusBar());
  notice->showProgress(QStringLiteral("Printing Star Map …"));
  EXPECT_FALSE(leaving->isActive()) << "stays";
  compare("status_bar_printing.txt", *shown.window.statusBar());
}

}  // namespace
}  // namespace veyruna::ui
