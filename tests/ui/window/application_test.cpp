// The windows as a group: what opens, what is remembered, what closes.
#include "ui/window/application.h"

#include <QFile>
#include <QLabel>
#include <QMenuBar>

#include "tests/ui/opened_addresses.h"
#include "tests/ui/shown_window.h"
#include "ui/window/about_view.h"

namespace veyruna::ui {
namespace {

struct Application : testing::Test, tests::FakeWorld {
  QTemporaryDir folder;
  QString statePath = folder.filePath(QStringLiteral("sub/window.ini"));
  VeyrunaAstroApp program{surroundings(), tests::recordingEngine(), statePath};

  ~Application() override {
    QApplication::closeAllWindows();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static QList<MainView*> windows() {
    QList<MainView*> open;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      if (auto* const window = qobject_cast<MainView*>(widget); window && window->isVisible()) {
        open.append(window);
      }
    }
    return open;
  }
  static void trigger(const MainView& window, const char* title) {
    for (const QAction* const menu : window.menuBar()->actions()) {
      for (QAction* const action : menu->menu()->actions()) {
        if (action->text().remove(QLatin1Char('&')) == QLatin1String(title)) {
          action->trigger();
          return;
        }
      }
    }
    FAIL() << title;
  }
  void finishCalculations() {
    while (tasks.count() > 0) {
      tasks.runNext();
    }
    tests::turnEventLoop();
  }
};

TEST_F(Application, EachWindowCalculatesWhenItOpensAndNotWhenItComesBack) {
  MainView* const window = program.openWindow();
  EXPECT_EQ(tasks.count(), 1);
  finishCalculations();
  window->showMinimized();
  window->showNormal();
  window->hide();
  window->show();
  EXPECT_EQ(tasks.count(), 0);
  trigger(*window, "New Window");
  EXPECT_EQ(windows().size(), 2);
  EXPECT_EQ(tasks.count(), 1);
}

TEST_F(Application, AnotherWindowStandsBesideTheFirstOnTheSameModel) {
  MainView* const first = program.openWindow();
  finishCalculations();
  first->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(first));
  trigger(*first, "New Window");
  QList<MainView*> both = windows();
  both.removeOne(first);
  ASSERT_EQ(both.size(), 1);
  EXPECT_NE(both[0]->pos(), first->pos());
  program.model().setYear(901);
  for (const MainView* const window : windows()) {
    EXPECT_EQ(window->findChild<QAbstractSpinBox*>(QStringLiteral("yearStepper"))->text(),
              QStringLiteral("Year 901"));
  }
  // Each has its own tab.
  first->selectTab(exports::OutputTab::positions);
  EXPECT_EQ(both[0]->selectedTab(), exports::OutputTab::starMap);
}

TEST_F(Application, CloseClosesOneWindowAndQuitAllOfThem) {
  MainView* const first = program.openWindow();
  MainView* const second = program.openWindow();
  program.openAbout();
  trigger(*first, "Close");
  EXPECT_EQ(windows(), QList<MainView*>({second}));
  trigger(*second, "Quit");
  EXPECT_EQ(windows(), QList<MainView*>());
  for (const QWidget* const widget : QApplication::topLevelWidgets()) {
    EXPECT_FALSE(widget->isVisible()) << widget->metaObject()->className();
  }
}

TEST_F(Application, AboutClosesOnEscape) {
  AboutView* const about = program.openAbout();
  ASSERT_TRUE(QTest::qWaitForWindowActive(about));
  QTest::keyClick(about, Qt::Key_Escape);
  EXPECT_FALSE(about->isVisible());
}

TEST_F(Application, AStateFileThatCannotBeReadIsKeptAside) {
  const QString path = folder.filePath(QStringLiteral("window.ini"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("\x01\x02 no state at all\n[[[");
  file.close();
  {
    WindowState state(path);
    EXPECT_FALSE(state.placement());
    state.setExportFolder(folder.path());
  }
  const QStringList kept =
      QDir(folder.path()).entryList({QStringLiteral("*unreadable*")}, QDir::Files);
  EXPECT_EQ(kept.size(), 1);
  EXPECT_EQ(WindowState(path).exportFolder(), folder.path());
}

TEST_F(Application, AStateThatIsNonsenseIsAFirstStart) {
  QDir(folder.path()).mkpath(QStringLiteral("sub"));
  QFile file(statePath);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(
      "[General]\nframe=@Rect(0 0 -4 2000000000)\nsize=nonsense\nisMaximized=maybe\n"
      "sidebarWidth=-7\nexportFolder=/nowhere/at/all\n");
  file.close();
  VeyrunaAstroApp again(surroundings(), tests::recordingEngine(), statePath);
  const MainView* const window = again.openWindow();
  EXPECT_GE(window->width(), window->minimumSizeHint().width());
  EXPECT_NE(again.state().exportFolder(), QStringLiteral("/nowhere/at/all"));
}

TEST_F(Application, AboutOpensOnceAndComesForward) {
  MainView* const window = program.openWindow();
  trigger(*window, "About Veyruna Astro");
  const AboutView* const about = program.openAbout();
  trigger(*window, "About Veyruna Astro");
  int shown = 0;
  for (const QWidget* const widget : QApplication::topLevelWidgets()) {
    shown += qobject_cast<const AboutView*>(widget) != nullptr && widget->isVisible() ? 1 : 0;
  }
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(about->width(), 650);
  EXPECT_FALSE(about->testAttribute(Qt::WA_QuitOnClose));
  const QPixmap picture =
      about->findChild<QLabel*>(QStringLiteral("picture"))->pixmap(Qt::ReturnByValue);
  EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(100, 100));
  EXPECT_EQ(about->windowTitle(), QStringLiteral("About Veyruna Astro"));
}

TEST_F(Application, AboutNamesTheProgramItsVersionAndItsMakers) {
  const AboutView* const about = program.openAbout();
  QStringList texts;
  for (const auto* const label : about->findChildren<QLabel*>()) {
    texts.append(label->text());
  }
  EXPECT_TRUE(texts.contains(QStringLiteral("Veyrunan Astrologer")));
  EXPECT_EQ(texts.filter(QStringLiteral("Version ")).size(), 1);
  EXPECT_GE(texts.filter(QStringLiteral("<b>")).size(), 2);
}

TEST_F(Application, AboutIsDraggedByItsBackground) {
  AboutView* const about = program.openAbout();
  const QPoint before = about->pos();
  const QPoint grip(20, 20);
  QTest::mousePress(about, Qt::LeftButton, {}, grip);
  QTest::mouseMove(about, grip + QPoint(30, 10));
  QTest::mouseRelease(about, Qt::LeftButton, {}, grip);
  EXPECT_EQ(about->pos(), before + QPoint(30, 10));
}

TEST_F(Application, ALinkWithoutAnAddressIsDisabledAndSaysSo) {
  const AboutView* const about = program.openAbout();
  QStringList titles;
  for (auto* const button : about->findChildren<QAbstractButton*>()) {
    titles.append(button->text());
    EXPECT_FALSE(button->toolTip().isEmpty()) << button->text().toStdString();
    if (!button->isEnabled()) {
      EXPECT_EQ(button->toolTip(), QStringLiteral("No address has been given for this yet."));
    }
  }
  ASSERT_EQ(titles.size(), 5);
  EXPECT_EQ(titles[0], QStringLiteral("Application Documentation"));
  EXPECT_EQ(titles[1], QStringLiteral("Developer Website"));
}

TEST_F(Application, TheDocumentationIsTheManualOfTheProgram) {
  tests::OpenedAddresses opened;
  const AboutView* const about = program.openAbout();
  about->findChild<QAbstractButton*>(QStringLiteral("linkApplication Documentation"))->click();
  trigger(*program.openWindow(), "Veyruna Astro Help");
  ASSERT_EQ(opened.addresses().size(), 2);
  EXPECT_EQ(opened.addresses()[0], opened.addresses()[1]);
  EXPECT_TRUE(QFile::exists(opened.addresses()[0].toLocalFile()));
  EXPECT_EQ(opened.addresses()[0].fileName(), QStringLiteral("index.html"));
}

}  // namespace
}  // namespace veyruna::ui
