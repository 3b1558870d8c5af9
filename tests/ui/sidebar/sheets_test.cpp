#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/model/fakes.h"
#include "ui/sidebar/location_sheets.h"

namespace veyruna::ui {
namespace {

struct Sheets : testing::Test, tests::FakeModel {
  QWidget window;

  SaveLocationSheet* openSave() {
    auto* const sheet = new SaveLocationSheet(model, &window);
    sheet->open();
    return sheet;
  }
};

TEST_F(Sheets, SavingSelectsTheNewPlace) {
  const QPointer<SaveLocationSheet> sheet = openSave();
  auto* const name = sheet->findChild<QLineEdit*>(QStringLiteral("nameField"));
  QTest::keyClicks(name, QStringLiteral("Harbour"));
  QTest::keyClick(name, Qt::Key_Return);
  EXPECT_EQ(sheet->result(), QDialog::Accepted);
  EXPECT_NE(model.selectedCityID(), model::manualCityID());
  EXPECT_EQ(model.cities().size(), 15);
}

TEST_F(Sheets, ANameThatExistsIsRefusedUnderTheField) {
  SaveLocationSheet* const sheet = openSave();
  auto* const name = sheet->findChild<QLineEdit*>(QStringLiteral("nameField"));
  auto* const error = sheet->findChild<QLabel*>(QStringLiteral("saveError"));
  QTest::keyClick(name, Qt::Key_Return);
  EXPECT_EQ(error->text(), QStringLiteral("Please enter a name."));
  QTest::keyClicks(name, QStringLiteral(" ebb "));
  QTest::keyClick(name, Qt::Key_Return);
  EXPECT_EQ(error->text(), QStringLiteral("\"ebb\" already exists."));
  EXPECT_TRUE(sheet->isVisible());
  QTest::keyClick(sheet, Qt::Key_Escape);
  EXPECT_FALSE(sheet->isVisible());
  EXPECT_EQ(model.cities().size(), 14);
}

TEST_F(Sheets, ReturnDeletesWhateverHasTheFocus) {
  const QUuid id = model.cities().at(1).id;
  model.setSelectedCityID(id);
  const QPointer<DeleteLocationSheet> sheet = new DeleteLocationSheet(model, &window);
  sheet->open();
  EXPECT_EQ(sheet->findChild<QLabel*>(QStringLiteral("deletePrompt"))->text(),
            QStringLiteral("Delete location \"Dravenne\"?"));
  auto* const cancel = sheet->findChild<QPushButton*>(QStringLiteral("cancelButton"));
  cancel->setFocus();
  QTest::keyClick(cancel, Qt::Key_Return);
  EXPECT_EQ(model.cities().size(), 13);
  EXPECT_EQ(model.selectedCityID(), model::manualCityID());
}

TEST_F(Sheets, EscapeDeletesNothing) {
  model.setSelectedCityID(model.cities().at(1).id);
  auto* const sheet = new DeleteLocationSheet(model, &window);
  sheet->open();
  QTest::keyClick(sheet, Qt::Key_Escape);
  EXPECT_EQ(model.cities().size(), 14);
}

}  // namespace
}  // namespace veyruna::ui
