#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <cstdlib>
#include <gtest/gtest.h>
#include <variant>

#include "tests/model/fakes.h"
#include "ui/controls/wrapped_label.h"
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

TEST_F(Sheets, AreCalledWhatTheyDo) {
  EXPECT_EQ(SaveLocationSheet(model, &window).windowTitle(), QStringLiteral("Save Location"));
  model.setSelectedCityID(model.cities().at(1).id);
  EXPECT_EQ(DeleteLocationSheet(model, &window).windowTitle(), QStringLiteral("Delete Location"));
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

TEST_F(Sheets, ReturnOnCancelDeletesOnceAndCancelsNothing) {
  model.setSelectedCityID(model.cities().at(1).id);
  DeleteLocationSheet sheet(model, &window);
  sheet.setAttribute(Qt::WA_DeleteOnClose, false);
  sheet.open();
  const QSignalSpy deleted(&model, &model::AstronomyModel::citiesChanged);
  const QSignalSpy ended(&sheet, &QDialog::finished);
  QTest::keyClick(sheet.findChild<QWidget*>(QStringLiteral("cancelButton")), Qt::Key_Return);
  EXPECT_EQ(model.cities().size(), 13);
  EXPECT_EQ(deleted.count(), 1);
  ASSERT_EQ(ended.count(), 1);
  EXPECT_EQ(ended.at(0).at(0).toInt(), QDialog::Accepted);
}

TEST_F(Sheets, CancelClosesAndChangesNothing) {
  const auto cancel = [](const QDialog& sheet) {
    EXPECT_TRUE(sheet.isVisible());
    EXPECT_EQ(sheet.windowModality(), Qt::WindowModal) << "the window waits for the answer";
    QTest::mouseClick(sheet.findChild<QWidget*>(QStringLiteral("cancelButton")), Qt::LeftButton);
    EXPECT_FALSE(sheet.isVisible());
    EXPECT_EQ(sheet.result(), QDialog::Rejected);
  };
  QDialog* const save = openSave();
  QTest::keyClicks(save->findChild<QWidget*>(QStringLiteral("nameField")),
                   QStringLiteral("Harbour"));
  cancel(*save);
  EXPECT_EQ(model.selectedCityID(), model::manualCityID());
  const QUuid id = model.cities().at(1).id;
  model.setSelectedCityID(id);
  auto* const remove = new DeleteLocationSheet(model, &window);
  remove->open();
  cancel(*remove);
  EXPECT_EQ(model.selectedCityID(), id);
  EXPECT_EQ(model.cities().size(), 14);
}

TEST_F(Sheets, EscapeDeletesNothing) {
  model.setSelectedCityID(model.cities().at(1).id);
  auto* const sheet = new DeleteLocationSheet(model, &window);
  sheet->open();
  QTest::keyClick(sheet, Qt::Key_Escape);
  EXPECT_EQ(model.cities().size(), 14);
}

/// Every letter of the label's text is drawn inside of it: nothing is inserted, nothing cut.
void expectWholeText(const QLabel& label, const QString& text) {
  EXPECT_EQ(label.text(), text);
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_GE(label.height(), label.heightForWidth(label.width()));
  // As much ink as the text has when it stands in one line.
  const auto ink = [](const QImage& picture) {
    const QRgb ground = picture.pixel(picture.width() - 1, picture.height() - 1);
    qint64 sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        sum += std::abs(qGray(picture.pixel(x, y)) - qGray(ground));
      }
    }
    return static_cast<double>(sum);
  };
  WrappedLabel wide(text);
  wide.setPalette(label.palette());
  wide.setFont(label.font());
  wide.resize(wide.fontMetrics().horizontalAdvance(text) + 20, wide.fontMetrics().height());
  const double whole = ink(wide.grab().toImage());
  EXPECT_NEAR(ink(const_cast<QLabel&>(label).grab().toImage()), whole, 0.1 * whole);
}

TEST(Wrapping, AShortTextAsksForOneLineAndGetsIt) {
  for (const char* const text : {"i", "W", "Hour 0:00 to 23:59", "Day 1 to 30"}) {
    const WrappedLabel label(QString::fromUtf8(text));
    const int line = label.fontMetrics().height();
    EXPECT_LE(label.heightForWidth(10'000), line) << text;
    EXPECT_EQ(label.sizeHint().height(), label.heightForWidth(10'000)) << text;
  }
}

TEST_F(Sheets, NamesAreShownAsTheyAreHoweverLong) {
  for (const QString& name :
       {QString(300, QLatin1Char('W')), QStringLiteral("<b>Bold</b> & <i>name</i>"),
        QStringLiteral("a name of many words ").repeated(12).trimmed()}) {
    model.setSelectedCityID(model::manualCityID());
    model.setSelectedCityID(std::get<QUuid>(model.addCity(name)));
    auto* const sheet = new DeleteLocationSheet(model, &window);
    sheet->open();
    tests::turnEventLoop();
    EXPECT_LT(sheet->width(), 400);
    expectWholeText(*sheet->findChild<QLabel*>(QStringLiteral("deletePrompt")),
                    QStringLiteral("Delete location \"%1\"?").arg(name));
    sheet->reject();

    SaveLocationSheet* const save = openSave();
    auto* const field = save->findChild<QLineEdit*>(QStringLiteral("nameField"));
    field->setText(name);
    QTest::keyClick(field, Qt::Key_Return);
    tests::turnEventLoop();
    EXPECT_LT(save->width(), 400);
    expectWholeText(*save->findChild<QLabel*>(QStringLiteral("saveError")),
                    QStringLiteral("\"%1\" already exists.").arg(name));
    save->reject();
  }
}

}  // namespace
}  // namespace veyruna::ui
