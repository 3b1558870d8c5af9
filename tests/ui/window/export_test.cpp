// The two export commands through the real window, its dialog and its disk.
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>

#include "tests/model/disk.h"
#include "tests/support/patience.h"
#include "tests/ui/opened_addresses.h"
#include "tests/ui/shown_window.h"

namespace veyruna::ui {
namespace {

using exports::OutputTab;

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

struct Exports : testing::Test, tests::ShownWindow {
  QDir disk{folder.path()};

  Exports() {
    state.setExportFolder(folder.path());
    model.setHour(6.5);
    calculate();
  }

  /// Chooses an export command and returns the dialog it opens.
  QFileDialog* ask(const char* button) {
    press(button);
    return find<QFileDialog>("saveDialog");
  }
  static QLineEdit* nameField(QFileDialog* dialog) {
    return dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  }
  static void confirm(QFileDialog* dialog) {
    QMetaObject::invokeMethod(dialog, "accept");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  void save(const char* button, const QString& name) {
    QFileDialog* const dialog = ask(button);
    nameField(dialog)->setText(name);
    confirm(dialog);
  }
  /// Answers the next question whether a file is to be replaced.
  static std::shared_ptr<bool> answerQuestionWith(QMessageBox::StandardButton answer) {
    auto wasAsked = std::make_shared<bool>(false);
    QTimer::singleShot(0, [answer, wasAsked] {
      if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        *wasAsked = true;
        box->button(answer)->click();
      }
    });
    return wasAsked;
  }
  QString notice() { return find<QLabel>("exportNotice")->text(); }
  void selectPlaceCalled(const QString& name) {
    model.setSelectedCityID(std::get<QUuid>(model.addCity(name)));
  }
};

TEST_F(Exports, TheDialogCarriesTheMessageTheWholeNameAndOneTypeOfFile) {
  struct Case {
    OutputTab tab;
    const char* button;
    const char* message;
    const char* name;
    const char* type;
  };
  const Case cases[] = {
      {OutputTab::starMap, "nativeExportButton", "SVG file", "Star Map", "svg"},
      {OutputTab::starMap, "pdfButton", "PDF file", "Star Map", "pdf"},
      {OutputTab::horoscope, "nativeExportButton", "SVG file", "Horoscope", "svg"},
      {OutputTab::horoscope, "pdfButton", "PDF file", "Horoscope", "pdf"},
      {OutputTab::planets, "nativeExportButton", "text file", "Planets", "txt"},
      {OutputTab::planets, "pdfButton", "PDF file", "Planets", "pdf"},
      {OutputTab::sunMoon, "nativeExportButton", "text file", "Sun & Moon", "txt"},
      {OutputTab::sunMoon, "pdfButton", "PDF file", "Sun & Moon", "pdf"},
      {OutputTab::positions, "nativeExportButton", "text file", "Positions", "txt"},
      {OutputTab::positions, "pdfButton", "PDF file", "Positions", "pdf"},
  };
  for (const Case& wanted : cases) {
    window.selectTab(wanted.tab);
    QFileDialog* const dialog = ask(wanted.button);
    EXPECT_EQ(
        dialog->windowTitle(),
        QStringLiteral("Choose where to save the %1").arg(QString::fromLatin1(wanted.message)));
    EXPECT_EQ(nameField(dialog)->text(),
              QStringLiteral("%1 - 40.50°N 20.90°W - 720-01-01 06-30.%2")
                  .arg(QString::fromLatin1(wanted.name), QString::fromLatin1(wanted.type)));
    EXPECT_EQ(dialog->nameFilters().size(), 1);
    EXPECT_TRUE(dialog->nameFilters().constFirst().endsWith(
        QStringLiteral("(*.%1)").arg(QString::fromLatin1(wanted.type))));
    EXPECT_EQ(dialog->windowModality(), Qt::WindowModal);
    dialog->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  EXPECT_EQ(disk.entryList(QDir::Files).filter(QStringLiteral("720-")), QStringList());
}

TEST_F(Exports, TheProposedNameIsTakenAsItStands) {
  for (const char* const name :
       {"Ebb & <Flow>", "Sky \"Peak\"", "One \" quote", "Möwe 🌙 月", "קוסם", "40.5 N.x"}) {
    selectPlaceCalled(QString::fromUtf8(name));
    confirm(ask("nativeExportButton"));
    const QString file =
        QStringLiteral("Star Map - %1 - 720-01-01 06-30.svg").arg(QString::fromUtf8(name));
    EXPECT_EQ(contentOf(disk.filePath(file)), model.starMapSVG().toUtf8()) << name;
    EXPECT_EQ(notice(), QStringLiteral("Saved ") + file);
  }
}

TEST_F(Exports, APlaceOf300CharactersStillGivesAFile) {
  selectPlaceCalled(QString(300, QLatin1Char('o')));
  confirm(ask("nativeExportButton"));
  const QStringList saved = disk.entryList({QStringLiteral("*.svg")});
  ASSERT_EQ(saved.size(), 1);
  EXPECT_EQ(saved.constFirst().toUtf8().size(), 255);
  EXPECT_TRUE(saved.constFirst().endsWith(QStringLiteral("ooo - 720-01-01 06-30.svg")));
}

TEST_F(Exports, ANameWithoutItsSuffixGetsIt) {
  save("nativeExportButton", QStringLiteral("sky over 40.50°N"));
  EXPECT_EQ(contentOf(disk.filePath(QStringLiteral("sky over 40.50°N.svg"))),
            model.starMapSVG().toUtf8());
  save("nativeExportButton", QStringLiteral("upper.SVG"));
  EXPECT_TRUE(disk.exists(QStringLiteral("upper.SVG")));
}

TEST_F(Exports, AnExistingFileIsReplacedOnlyAfterTheQuestion) {
  const QString path = disk.filePath(QStringLiteral("old.svg"));
  tests::writeBytes(path, "old");
  QFileDialog* const dialog = ask("nativeExportButton");
  nameField(dialog)->setText(QStringLiteral("old"));  // the suffix makes it the file that exists
  auto asked = answerQuestionWith(QMessageBox::No);
  QMetaObject::invokeMethod(dialog, "accept");
  EXPECT_TRUE(*asked);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(contentOf(path), QByteArray("old"));
  asked = answerQuestionWith(QMessageBox::Yes);
  confirm(dialog);
  EXPECT_TRUE(*asked);
  EXPECT_EQ(contentOf(path), model.starMapSVG().toUtf8());
}

TEST_F(Exports, WhatIsSavedIsWhatWasOnScreenWhenTheCommandWasChosen) {
  const QByteArray before = model.starMapSVG().toUtf8();
  QFileDialog* const dialog = ask("nativeExportButton");
  model.setYear(900);
  calculate();
  ASSERT_NE(model.starMapSVG().toUtf8(), before);
  nameField(dialog)->setText(QStringLiteral("then.svg"));
  confirm(dialog);
  EXPECT_EQ(contentOf(disk.filePath(QStringLiteral("then.svg"))), before);
}

TEST_F(Exports, ThePdfIsThereWhenItIsSaidToBe) {
  window.selectTab(OutputTab::horoscope);
  save("pdfButton", QStringLiteral("wheel"));
  EXPECT_TRUE(contentOf(disk.filePath(QStringLiteral("wheel.pdf"))).startsWith("%PDF-"));
  EXPECT_EQ(notice(), QStringLiteral("Saved wheel.pdf"));
}

TEST_F(Exports, OneAfterTheOtherAllAreThere) {
  for (int number = 0; number < 4; ++number) {
    save("pdfButton", QStringLiteral("sky %1.pdf").arg(number));
  }
  for (int number = 0; number < 4; ++number) {
    EXPECT_TRUE(
        contentOf(disk.filePath(QStringLiteral("sky %1.pdf").arg(number))).startsWith("%PDF-"));
  }
}

TEST_F(Exports, AFailureIsSaidInPlainWordsAndInNoDialog) {
  QFileDialog* const dialog = ask("pdfButton");
  nameField(dialog)->setText(QStringLiteral("/proc/wheel.pdf"));
  confirm(dialog);
  EXPECT_TRUE(notice().startsWith(QStringLiteral("Not saved: "))) << notice().toStdString();
  EXPECT_TRUE(notice().endsWith(QStringLiteral("(wheel.pdf)"))) << notice().toStdString();
  EXPECT_FALSE(find<QWidget>("openFolder")->isVisible());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Exports, AFolderThatVanishesWhileOneIsAskedIsAFailure) {
  ASSERT_TRUE(disk.mkdir(QStringLiteral("gone")));
  state.setExportFolder(disk.filePath(QStringLiteral("gone")));
  QFileDialog* const dialog = ask("nativeExportButton");
  nameField(dialog)->setText(QStringLiteral("sky.svg"));
  ASSERT_TRUE(disk.rmdir(QStringLiteral("gone")));
  confirm(dialog);
  EXPECT_TRUE(notice().startsWith(QStringLiteral("Not saved: "))) << notice().toStdString();
  EXPECT_EQ(state.exportFolder().contains(QStringLiteral("gone")), false);
}

TEST_F(Exports, ATypedNameThatIsTooLongIsAFailure) {
  save("nativeExportButton", QString(300, QLatin1Char('x')));
  EXPECT_TRUE(notice().startsWith(QStringLiteral("Not saved: "))) << notice().toStdString();
}

TEST_F(Exports, OpenFolderOpensTheFolderOfTheFile) {
  save("nativeExportButton", QStringLiteral("sky.svg"));
  tests::OpenedAddresses opened;
  press("openFolder");
  EXPECT_EQ(opened.addresses(), QList<QUrl>({QUrl::fromLocalFile(folder.path())}));
}

TEST_F(Exports, TheFolderOfTheLastExportIsRemembered) {
  ASSERT_TRUE(disk.mkdir(QStringLiteral("prints")));
  QFileDialog* dialog = ask("nativeExportButton");
  nameField(dialog)->setText(disk.filePath(QStringLiteral("prints/sky.svg")));
  confirm(dialog);
  EXPECT_TRUE(disk.exists(QStringLiteral("prints/sky.svg")));
  EXPECT_EQ(ask("nativeExportButton")->directory(), QDir(disk.filePath(QStringLiteral("prints"))));
  const WindowState again(disk.filePath(QStringLiteral("window.ini")));
  EXPECT_EQ(again.exportFolder(), disk.filePath(QStringLiteral("prints")));
}

TEST_F(Exports, AFolderThatCouldNotBeWrittenToIsNotOfferedAgain) {
  QFileDialog* const dialog = ask("nativeExportButton");
  nameField(dialog)->setText(QStringLiteral("/proc/sky.svg"));
  confirm(dialog);
  EXPECT_TRUE(notice().startsWith(QStringLiteral("Not saved: "))) << notice().toStdString();
  EXPECT_EQ(state.exportFolder(), folder.path());
}

TEST_F(Exports, ThePlatformsOwnDialogReplacesNothingUnasked) {
  // Such a dialog asks about the name as it was typed, and knows nothing of the suffix.
  const QString path = disk.filePath(QStringLiteral("old.svg"));
  tests::writeBytes(path, "old");
  QFileDialog* const dialog = ask("nativeExportButton");
  auto asked = answerQuestionWith(QMessageBox::No);
  Q_EMIT dialog->fileSelected(disk.filePath(QStringLiteral("old")));
  EXPECT_TRUE(*asked);
  EXPECT_EQ(contentOf(path), QByteArray("old"));
  EXPECT_EQ(notice(), QString());
  asked = answerQuestionWith(QMessageBox::Yes);
  Q_EMIT dialog->fileSelected(disk.filePath(QStringLiteral("old")));
  EXPECT_TRUE(*asked);
  EXPECT_EQ(contentOf(path), model.starMapSVG().toUtf8());
  // What it has asked about is not asked again.
  asked = answerQuestionWith(QMessageBox::No);
  Q_EMIT dialog->fileSelected(path);
  QCoreApplication::processEvents();
  EXPECT_FALSE(*asked);
  dialog->reject();
}

TEST_F(Exports, TheResultSaysWhereTheInputsHaveChangedSinceTheCalculation) {
  model.setYear(3);
  model.setDayIndex(6);
  calculate();
  save("nativeExportButton", QStringLiteral("sky.svg"));
  EXPECT_EQ(notice(), QStringLiteral("Saved sky.svg"));
  model.setYear(900);
  save("nativeExportButton", QStringLiteral("then.svg"));
  EXPECT_EQ(notice(), QStringLiteral("Saved then.svg. It holds 003-01-07, Wendmark; the inputs "
                                     "have changed"));
  // What counts is what was on the screen when the command was chosen.
  window.selectTab(OutputTab::horoscope);
  QFileDialog* const dialog = ask("pdfButton");
  model.setYear(3);
  nameField(dialog)->setText(QStringLiteral("wheel.pdf"));
  confirm(dialog);
  EXPECT_TRUE(notice().endsWith(QStringLiteral("the inputs have changed")));
  // A place without a name is told by its coordinates.
  model.setManualLatDeg(12.25);
  calculate();
  model.setManualLatDeg(13.25);
  save("nativeExportButton", QStringLiteral("place.svg"));
  EXPECT_TRUE(notice().contains(QStringLiteral("It holds 003-01-07, 12.25° N   20.90° W;")))
      << notice().toStdString();
}

TEST_F(Exports, BeforeTheFirstCalculationNoInputsHaveChanged) {
  tests::FakeModel fresh;
  fresh.model.setYear(900);
  EXPECT_FALSE(fresh.model.inputsHaveChanged());
}

TEST_F(Exports, AFailureStaysUntilTheNextAction) {
  const auto failAgain = [this] {
    save("nativeExportButton", QStringLiteral("/proc/sky.svg"));
    EXPECT_TRUE(notice().startsWith(QStringLiteral("Not saved: "))) << notice().toStdString();
  };
  failAgain();
  // Longer than a success does.
  for (const auto* const timer : window.findChildren<QTimer*>()) {
    EXPECT_FALSE(timer->isActive() && timer->interval() > 1000);
  }
  press("tab2");
  EXPECT_EQ(notice(), QString());
  failAgain();
  calculate();
  EXPECT_NE(notice(), QString()) << "what another window calculates is no action here";
  press("calculateButton");
  EXPECT_EQ(notice(), QString());
  tasks.runNext();
  tests::turnEventLoop();
  failAgain();
  ask("pdfButton")->reject();
  EXPECT_EQ(notice(), QString());
  // Only a failure: what was written is still said.
  save("pdfButton", QStringLiteral("wheel.pdf"));
  press("tab1");
  EXPECT_EQ(notice(), QStringLiteral("Saved wheel.pdf"));
}

TEST_F(Exports, TheFileMenuSavesWhatTheTabShows) {
  QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(nameField(find<QFileDialog>("saveDialog"))->text().endsWith(QStringLiteral(".svg")));
  find<QFileDialog>("saveDialog")->reject();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  comeBack();
  window.selectTab(OutputTab::sunMoon);
  type("yearStepper", QStringLiteral("901"));
  QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(nameField(find<QFileDialog>("saveDialog"))->text().endsWith(QStringLiteral(".txt")));
  EXPECT_EQ(model.year(), 901);
  find<QFileDialog>("saveDialog")->reject();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  comeBack();
  QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(nameField(find<QFileDialog>("saveDialog"))->text().endsWith(QStringLiteral(".pdf")));
}

TEST_F(Exports, TheFileMenuSavesHtmlOfEveryTabThatHasSomethingToSave) {
  for (const OutputTab tab : exports::outputTabs) {
    window.selectTab(tab);
    QMenu* const file = window.menuBar()->actions().at(1)->menu();
    const QList<QAction*> actions = file->actions();
    const auto found = std::ranges::find(actions, QStringLiteral("Save as &HTML…"), &QAction::text);
    ASSERT_NE(found, actions.end());
    EXPECT_EQ((*found)->isEnabled(), tab != OutputTab::location);
    (*found)->trigger();
    if (tab == OutputTab::location) {
      EXPECT_EQ(window.findChild<QFileDialog*>(QStringLiteral("saveDialog")), nullptr);
      continue;
    }
    auto* const dialog = find<QFileDialog>("saveDialog");
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Choose where to save the HTML file"));
    EXPECT_TRUE(nameField(dialog)->text().endsWith(QStringLiteral(".html")));
    const QString name = QStringLiteral("page %1.html").arg(static_cast<int>(tab));
    nameField(dialog)->setText(disk.filePath(name));
    confirm(dialog);
    EXPECT_EQ(notice(), QStringLiteral("Saved ") + name);
    const QByteArray page = contentOf(disk.filePath(name));
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html>"));
    for (const exports::TabSection& section : exports::entryOf(tab).sections) {
      EXPECT_TRUE(page.contains(model.text(section.document).toUtf8()));
    }
  }
}

TEST_F(Exports, TheFileMenuFollowsTheTab) {
  const QList<QAction*> file = window.menuBar()->actions().at(1)->menu()->actions();
  const auto entry = [&file](Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const auto found = std::find_if(file.begin(), file.end(), [&](const QAction* action) {
      return action->shortcut() == QKeySequence(key | modifiers);
    });
    return found == file.end() ? nullptr : *found;
  };
  QAction* const native = entry(Qt::Key_S, Qt::ControlModifier);
  QAction* const pdf = entry(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  QAction* const print = entry(Qt::Key_P, Qt::ControlModifier);
  ASSERT_TRUE(native != nullptr && pdf != nullptr && print != nullptr);
  for (const OutputTab tab : exports::outputTabs) {
    window.selectTab(tab);
    EXPECT_EQ(native->text().remove(QLatin1Char('&')), exports::isChart(tab)
                                                           ? QStringLiteral("Save as SVG…")
                                                           : QStringLiteral("Save as Text…"));
    for (const QAction* const action : {native, pdf, print}) {
      EXPECT_EQ(action->isEnabled(), tab != OutputTab::location);
      EXPECT_EQ(action->statusTip().isEmpty(), tab != OutputTab::location);
    }
  }
}

TEST_F(Exports, AWindowThatGoesWhileOneIsAskedWritesNothing) {
  for (const char* const button : {"nativeExportButton", "pdfButton"}) {
    MainView other(model, time, state);
    other.setAttribute(Qt::WA_DeleteOnClose, false);
    other.show();
    QTest::mouseClick(other.findChild<QAbstractButton*>(QString::fromLatin1(button)),
                      Qt::LeftButton);
    ASSERT_NE(other.findChild<QFileDialog*>(QStringLiteral("saveDialog")), nullptr);
    other.close();
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(disk.entryList(QDir::Files).filter(QStringLiteral("720-")), QStringList());
}

TEST_F(Exports, TheNoticeGoesAfterAFewSeconds) {
  save("nativeExportButton", QStringLiteral("<b>sky.svg"));
  EXPECT_EQ(notice(), QStringLiteral("Saved <b>sky.svg"));
  EXPECT_FALSE(find<QLabel>("exportNotice")->toolTip().contains(QStringLiteral("<b>")));
  EXPECT_TRUE(QTest::qWaitFor([this] { return notice().isEmpty(); }, tests::patienceMilliseconds));
  EXPECT_FALSE(find<QWidget>("openFolder")->isVisible());
}

TEST_F(Exports, BeforeTheFirstCalculationTheDocumentsAreEmpty) {
  tests::FakeModel fresh;
  model::LiveTime freshTime(fresh.model, fresh.store);
  MainView empty(fresh.model, freshTime, state);
  empty.setAttribute(Qt::WA_DeleteOnClose, false);
  empty.show();
  empty.selectTab(OutputTab::planets);
  QTest::mouseClick(empty.findChild<QAbstractButton*>(QStringLiteral("nativeExportButton")),
                    Qt::LeftButton);
  auto* const dialog = empty.findChild<QFileDialog*>(QStringLiteral("saveDialog"));
  nameField(dialog)->setText(QStringLiteral("empty.txt"));
  confirm(dialog);
  EXPECT_EQ(contentOf(disk.filePath(QStringLiteral("empty.txt"))).count('\n'), 2);
}

}  // namespace
}  // namespace veyruna::ui
