// Printing through the real window and a print command that only writes down what it is given.
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include "export/export_content.h"
#include "tests/support/pdf_dates.h"
#include "tests/ui/shown_window.h"
#include "ui/window/print_sheet.h"

namespace veyruna::ui {
namespace {

struct Printing : testing::Test, tests::ShownWindow {
  QDir programs{folder.path()};
  QByteArray usualPath = qgetenv("PATH");

  Printing() {
    qputenv("PATH", folder.path().toUtf8());  // no print command but these
    calculate();
  }
  ~Printing() override { qputenv("PATH", usualPath); }

  void install(const char* name, const QByteArray& script) {
    QFile file(programs.filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\nPATH=/usr/bin:/bin\ncd '" + folder.path().toUtf8() + "'\n" + script);
    file.close();
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  }
  void installPrinters() {
    install("lpstat",
            "[ \"$1\" = -e ] && printf 'Attic\\nStudy\\n'\n"
            "[ \"$1\" = -d ] && echo 'system default destination: Study'\nexit 0\n");
    install("lp", "printf '%s\\n' \"$@\" > arguments; cat > pages\n");
  }
  void askToPrint() { QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier); }
  QString notice() { return find<QLabel>("exportNotice")->text(); }
  bool comesToSay(const QString& beginning) {
    return QTest::qWaitFor([&] { return notice().startsWith(beginning); }, 60'000);
  }
  PrintSheet* sheet() {
    PrintSheet* found = nullptr;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          found = window.findChild<PrintSheet*>();
          return found != nullptr && found->isVisible();
        },
        60'000));
    return found;
  }
  QByteArray contentOf(const char* name) {
    QFile file(programs.filePath(QString::fromLatin1(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
  }
};

TEST_F(Printing, ThePagesOfThePdfGoToThePrinterThatWasChosen) {
  installPrinters();
  window.selectTab(exports::OutputTab::horoscope);
  const QByteArray pdf = exports::pdfOf(
      *exports::sheetExport(model, exports::OutputTab::horoscope, documents::Form::pdf));
  askToPrint();
  PrintSheet* const question = sheet();
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(question->windowModality(), Qt::WindowModal);
  auto* const printer = question->findChild<QComboBox*>(QStringLiteral("printer"));
  EXPECT_EQ(printer->count(), 2);
  EXPECT_EQ(printer->currentText(), QStringLiteral("Study"));
  printer->setCurrentText(QStringLiteral("Attic"));
  question->findChild<QSpinBox*>(QStringLiteral("copies"))->setValue(3);
  QTest::keyClick(question, Qt::Key_Return);
  EXPECT_TRUE(notice().startsWith(QStringLiteral("Printing Horoscope - ")));
  EXPECT_TRUE(comesToSay(QStringLiteral("Sent to Attic: Horoscope - "))) << notice().toStdString();
  EXPECT_EQ(tests::withoutDates(contentOf("pages")), tests::withoutDates(pdf));
  EXPECT_EQ(QString::fromUtf8(contentOf("arguments")),
            QStringLiteral("-d\nAttic\n-n\n3\n-t\nHoroscope - 40.50°N 20.90°W - 720-01-01 12-00\n"
                           "-o\nfit-to-page\n"));
}

TEST_F(Printing, NothingIsPrintedWhereThePersonCancels) {
  installPrinters();
  askToPrint();
  QTest::keyClick(sheet(), Qt::Key_Escape);
  EXPECT_EQ(contentOf("pages"), QByteArray("(no file)"));
  EXPECT_EQ(notice(), QString());
}

TEST_F(Printing, SaysThatItLooksForPrintersUntilItKnows) {
  installPrinters();
  install("lpstat",
          "until [ -e answer ]; do sleep 0.01; done; [ \"$1\" = -e ] && echo Attic; exit 0\n");
  askToPrint();
  EXPECT_EQ(notice(), QStringLiteral("Looking for printers …"));
  QFile answer(programs.filePath(QStringLiteral("answer")));
  ASSERT_TRUE(answer.open(QIODevice::WriteOnly));
  ASSERT_NE(sheet(), nullptr);
  EXPECT_EQ(notice(), QString());
}

TEST_F(Printing, WithoutAPrintCommandItSaysSo) {
  askToPrint();
  EXPECT_EQ(notice(), QStringLiteral("Not printed: this computer has no print command (lp)"));
}

TEST_F(Printing, TheUsualPrinterIsUnderstoodWhateverTheLanguage) {
  install("lpstat",
          "[ \"$1\" = -e ] && printf 'Attic\\nStudy\\n'\n"
          "[ \"$1\" = -d ] && [ \"$LC_ALL\" = C ] && echo 'system default destination: Study'\n"
          "[ \"$1\" = -d ] && [ \"$LC_ALL\" != C ] && echo 'Standardziel Study'\n"
          "exit 0\n");
  install("lp", "cat > /dev/null\n");
  askToPrint();
  const PrintSheet* const question = sheet();
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(question->printer(), QStringLiteral("Study"));
}

TEST_F(Printing, CancelPrintsNothing) {
  installPrinters();
  askToPrint();
  PrintSheet* const question = sheet();
  ASSERT_NE(question, nullptr);
  const auto* const buttons = question->findChild<QDialogButtonBox*>();
  QTest::mouseClick(buttons->button(QDialogButtonBox::Cancel), Qt::LeftButton);
  EXPECT_FALSE(question->isVisible());
  EXPECT_EQ(contentOf("pages"), QByteArray("(no file)"));
}

TEST_F(Printing, WithoutAPrinterItSaysSo) {
  installPrinters();
  install("lpstat", "exit 0\n");
  askToPrint();
  EXPECT_TRUE(comesToSay(QStringLiteral("Not printed: no printer is set up")));
  install("lpstat", "echo 'lpstat: Scheduler is not running.' >&2; exit 1\n");
  askToPrint();
  EXPECT_TRUE(comesToSay(QStringLiteral("Not printed: lpstat: Scheduler is not running.")));
  ASSERT_TRUE(programs.remove(QStringLiteral("lpstat")));
  askToPrint();
  EXPECT_TRUE(comesToSay(QStringLiteral("Not printed: lpstat cannot be started")));
}

TEST_F(Printing, AFailureIsSaid) {
  installPrinters();
  install("lp", "cat > /dev/null; echo 'lp: The printer is on fire.' >&2; exit 1\n");
  askToPrint();
  sheet()->accept();
  EXPECT_TRUE(comesToSay(QStringLiteral("Not printed: lp: The printer is on fire.")));
}

TEST_F(Printing, WhatWasSentIsPrintedThoughItsWindowIsClosed) {
  installPrinters();
  // A slow print command, which takes the pages when it may.
  install("lp",
          "echo > begun; until [ -e mayGoOn ]; do sleep 0.05; done; cat > pages; mv pages all\n");
  auto* const other = new MainView(model, time, state);
  other->show();
  other->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(other, tests::patienceMilliseconds));
  QTest::keyClick(other, Qt::Key_P, Qt::ControlModifier);
  PrintSheet* question = nullptr;
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return (question = other->findChild<PrintSheet*>()) != nullptr; },
                      tests::patienceMilliseconds));
  question->accept();
  ASSERT_TRUE(QTest::qWaitFor([&] { return programs.exists(QStringLiteral("begun")); },
                              tests::patienceMilliseconds));
  delete other;
  install("mayGoOn", "");
  ASSERT_TRUE(QTest::qWaitFor([&] { return programs.exists(QStringLiteral("all")); },
                              tests::patienceMilliseconds));
  EXPECT_TRUE(contentOf("all").startsWith("%PDF-"));
  EXPECT_TRUE(contentOf("all").endsWith("%%EOF\n"));
}

TEST_F(Printing, AskedTwiceItAsksForThePrinterOnce) {
  installPrinters();
  // It answers when it may, and a second one would have answered as soon.
  install("lpstat",
          "echo >> asked; until [ -e mayAnswer ]; do sleep 0.05; done\n"
          "[ \"$1\" = -e ] && printf 'Attic\\nStudy\\n'\nexit 0\n");
  askToPrint();
  askToPrint();
  install("mayAnswer", "");
  PrintSheet* const question = sheet();
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(contentOf("asked").count('\n'), 2) << "for the names, and for the usual one";
  question->reject();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  comeBack();
  askToPrint();
  EXPECT_NE(sheet(), nullptr) << "the next order is asked about again";
}

TEST_F(Printing, AfterAFailureTheNextOrderIsTaken) {
  installPrinters();
  install("lpstat", "exit 1\n");
  askToPrint();
  EXPECT_TRUE(comesToSay(QStringLiteral("Not printed: lpstat failed")));
  installPrinters();
  askToPrint();
  EXPECT_NE(sheet(), nullptr);
}

TEST_F(Printing, AFailureStaysWhateverIsCalculatedElsewhere) {
  askToPrint();
  EXPECT_NE(notice(), QString());
  calculate();
  EXPECT_EQ(notice(), QStringLiteral("Not printed: this computer has no print command (lp)"));
  press("calculateButton");
  EXPECT_EQ(notice(), QString());
}

TEST_F(Printing, AFailureStaysThoughTimePlayedWhenItWasAskedFor) {
  QTest::keyClick(&window, Qt::Key_L, Qt::ControlModifier);
  time.play(model::LiveTime::Motion::forward);
  askToPrint();  // time rests then, and everything is calculated
  const QString failure = notice();
  EXPECT_NE(failure, QString());
  ASSERT_TRUE(QTest::qWaitFor([this] { return tasks.count() > 0; }, tests::patienceMilliseconds));
  while (tasks.count() > 0) {
    tasks.runNext();
    tests::turnEventLoop();
  }
  EXPECT_FALSE(model.isCalculating());
  EXPECT_EQ(notice(), failure);
}

TEST_F(Printing, TheResultSaysWhereTheInputsHaveChanged) {
  installPrinters();
  model.setYear(900);
  askToPrint();
  sheet()->accept();
  EXPECT_TRUE(comesToSay(QStringLiteral("Sent to Study: Star Map - ")));
  EXPECT_TRUE(
      notice().endsWith(QStringLiteral(". It holds 720-01-01, Wendmark; the inputs have changed")));
}

}  // namespace
}  // namespace veyruna::ui
