// The About window, the Help menu and F1: what they say comes from the owner's file.
#include <QAbstractButton>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QStatusBar>
#include <QTest>

#include "tests/support/patience.h"
#include "tests/support/source_path.h"
#include "tests/ui/opened_addresses.h"
#include "tests/ui/window/windows.h"
#include "ui/controls/icons.h"
#include "ui/controls/program.h"
#include "ui/window/about_view.h"
#include "ui/window/product.h"

namespace veyruna::ui {
namespace {

struct About : tests::Windows {
  static QList<QAbstractButton*> links(const AboutView& about) {
    return about.findChildren<QAbstractButton*>();
  }
};

TEST_F(About, ClosesOnEscape) {
  AboutView* const about = program.openAbout();
  ASSERT_TRUE(QTest::qWaitForWindowActive(about, tests::patienceMilliseconds));
  QTest::keyClick(about, Qt::Key_Escape);
  EXPECT_FALSE(about->isVisible());
}

/// How often a window was put on top of the others.
struct Raises : QObject {
  int count = 0;

  bool eventFilter(QObject* watched, QEvent* event) override {
    count += event->type() == QEvent::ZOrderChange ? 1 : 0;
    return QObject::eventFilter(watched, event);
  }
};

TEST_F(About, OpensOnceAndComesForward) {
  MainView* const window = program.openWindow();
  trigger(*window, "About Veyruna Astro");
  AboutView* const about = program.openAbout();
  Raises raises;
  about->installEventFilter(&raises);
  trigger(*window, "About Veyruna Astro");
  EXPECT_EQ(raises.count, 1);
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

TEST_F(About, NamesTheProgramItsVersionAndItsMakers) {
  const AboutView* const about = program.openAbout();
  QStringList texts;
  for (const auto* const label : about->findChildren<QLabel*>()) {
    texts.append(label->text());
  }
  EXPECT_TRUE(texts.contains(QStringLiteral("Veyrunan Astrologer")));
  EXPECT_EQ(texts.filter(QStringLiteral("Version ")).size(), 1);
  EXPECT_GE(texts.filter(QStringLiteral("<b>")).size(), 2);
}

TEST_F(About, IsDraggedByItsBackground) {
  AboutView* const about = program.openAbout();
  const QPoint before = about->pos();
  const QPoint grip(20, 20);
  QTest::mousePress(about, Qt::LeftButton, {}, grip);
  QTest::mouseMove(about, grip + QPoint(30, 10));
  QTest::mouseRelease(about, Qt::LeftButton, {}, grip);
  EXPECT_EQ(about->pos(), before + QPoint(30, 10));
}

TEST_F(About, IsLetGoWithTheButtonAndDraggedByTheFirstOneAlone) {
  AboutView* const about = program.openAbout();
  const QPoint before = about->pos();
  const QPoint grip(20, 20);
  QTest::mousePress(about, Qt::LeftButton, {}, grip);
  QTest::mouseRelease(about, Qt::LeftButton, {}, grip);
  QTest::mouseMove(about, grip + QPoint(30, 10));
  EXPECT_EQ(about->pos(), before);
  QTest::mousePress(about, Qt::RightButton, {}, grip);
  QTest::mouseMove(about, grip + QPoint(40, 20));
  EXPECT_EQ(about->pos(), before);
  QTest::mouseRelease(about, Qt::RightButton, {}, grip);
}

TEST_F(About, ItsGroundChangesWhileThePointerIsOverIt) {
  AboutView* const about = program.openAbout();
  const auto ground = [about] { return about->grab().toImage().pixelColor(2, 2); };
  const QColor before = ground();
  QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), about->mapToGlobal(QPointF(5, 5)));
  QCoreApplication::sendEvent(about, &enter);
  EXPECT_NE(ground(), before);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(about, &leave);
  EXPECT_EQ(ground(), before);
}

TEST_F(About, ShowsItsFiveLinksInOneRowWhole) {
  const AboutView* const about = program.openAbout();
  tests::turnEventLoop();
  ASSERT_EQ(links(*about).size(), 5);
  int end = 0;
  for (const auto* const button : links(*about)) {
    EXPECT_EQ(button->y(), links(*about)[0]->y());
    EXPECT_GE(button->x(), end) << button->text().toStdString();
    EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(button->text()));
    end = button->geometry().right();
  }
  EXPECT_LT(end, about->width());
  EXPECT_EQ(links(*about)[0]->text(), QStringLiteral("Application Documentation"));
  EXPECT_EQ(links(*about)[1]->text(), QStringLiteral("Developer Website"));
}

TEST_F(About, ALinkWithoutAnAddressSaysWhyItDoesNothing) {
  const AboutView* const about = program.openAbout();
  const auto* const status = about->findChild<QLabel*>(QStringLiteral("linkStatus"));
  int without = 0;
  for (const auto* const button : links(*about)) {
    EXPECT_FALSE(button->toolTip().isEmpty()) << button->text().toStdString();
    EXPECT_EQ(button->accessibleDescription(), button->toolTip());
    if (!button->isEnabled()) {
      ++without;
      EXPECT_EQ(button->toolTip(), QStringLiteral("No address has been given for this yet."));
      ASSERT_NE(status, nullptr);
      EXPECT_TRUE(status->isVisible());
      EXPECT_TRUE(status->text().contains(button->text())) << button->text().toStdString();
    }
  }
  EXPECT_EQ(without > 0, status != nullptr);
  EXPECT_TRUE(links(*about)[0]->isEnabled());
}

TEST_F(About, TheHelpMenuSaysWhyALinkDoesNothing) {
  const MainView* const window = program.openWindow();
  const ProductLink& website = product().developerWebsite;
  QAction* const action = entry(*window, website.title);
  EXPECT_EQ(action->isEnabled(), website.address.isValid());
  EXPECT_EQ(action->toolTip(), leadsTo(website));
  EXPECT_EQ(action->statusTip(), leadsTo(website));
  EXPECT_TRUE(qobject_cast<QMenu*>(action->parent())->toolTipsVisible());
}

TEST_F(About, ALinkSaysWhereItLeads) {
  EXPECT_EQ(leadsTo({QStringLiteral("Chat"), QUrl(QStringLiteral("https://example.org/chat"))}),
            QStringLiteral("https://example.org/chat"));
  EXPECT_EQ(labelOf(QStringLiteral("Rules & Lore")), QStringLiteral("Rules && Lore"));
}

TEST_F(About, EveryWindowAndMenuIsCalledByTheProductsNames) {
  const MainView* const window = program.openWindow();
  EXPECT_EQ(product().name, QStringLiteral("Veyruna Astro"));
  EXPECT_EQ(window->windowTitle(), product().title);
  EXPECT_EQ(window->menuBar()->actions().constFirst()->text(), QLatin1Char('&') + product().name);
  EXPECT_EQ(program.openAbout()->windowTitle(), QStringLiteral("About ") + product().name);
}

TEST_F(About, TheDesktopListsTheProgramByItsName) {
  QFile file(QString::fromStdString(tests::sourcePath("packaging/org.veyruna.astro.desktop")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
  EXPECT_TRUE(lines.contains(QStringLiteral("Name=") + product().name));
}

TEST_F(About, TheProgramTellsTheDesktopWhatItIs) {
  EXPECT_EQ(QApplication::applicationName(), product().name);
  // By this name a desktop finds the entry, and with it the program's picture in its bars.
  EXPECT_TRUE(QFile::exists(QString::fromStdString(tests::sourcePath(
      "packaging/" + QGuiApplication::desktopFileName().toStdString() + ".desktop"))));
  const MainView* const window = program.openWindow();
  EXPECT_EQ(window->windowIcon().pixmap(64, 64).toImage(), programIcon().pixmap(64, 64).toImage());
  EXPECT_FALSE(window->windowIcon().isNull());
}

TEST_F(About, TheVersionIsTheOneThatIsBuilt) {
  EXPECT_EQ(programVersion(), QStringLiteral(VEYRUNA_EXPECTED_VERSION));
  EXPECT_EQ(programBuild(), QStringLiteral(VEYRUNA_EXPECTED_BUILD));
  const AboutView* const about = program.openAbout();
  QStringList texts;
  for (const auto* const label : about->findChildren<QLabel*>()) {
    texts.append(label->text());
  }
  EXPECT_TRUE(texts.contains(
      QStringLiteral("Version " VEYRUNA_EXPECTED_VERSION " (Build " VEYRUNA_EXPECTED_BUILD ")")));
}

TEST_F(About, TheDocumentationIsTheManualOfTheProgram) {
  tests::OpenedAddresses opened;
  const AboutView* const about = program.openAbout();
  about->findChild<QAbstractButton*>(QStringLiteral("linkApplication Documentation"))->click();
  trigger(*program.openWindow(), "Veyruna Astro Help");
  ASSERT_EQ(opened.addresses().size(), 2);
  EXPECT_EQ(opened.addresses()[0], opened.addresses()[1]);
  EXPECT_TRUE(QFile::exists(opened.addresses()[0].toLocalFile()));
  EXPECT_EQ(opened.addresses()[0].fileName(), QStringLiteral("index.html"));
}

TEST_F(About, F1OpensTheChapterOfTheTabInFront) {
  tests::OpenedAddresses opened;
  MainView* const window = program.openWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window, tests::patienceMilliseconds));
  const QStringList chapters = {QStringLiteral("star-map.html"), QStringLiteral("horoscope.html"),
                                QStringLiteral("tables.html"),   QStringLiteral("tables.html"),
                                QStringLiteral("tables.html"),   QStringLiteral("map.html")};
  ASSERT_EQ(chapters.size(), qsizetype{exports::outputTabs.size()});
  for (const exports::OutputTab tab : exports::outputTabs) {
    window->selectTab(tab);
    QTest::keyClick(window, Qt::Key_F1);
    ASSERT_FALSE(opened.addresses().isEmpty());
    const QUrl page = opened.addresses().constLast();
    EXPECT_EQ(page.fileName(), chapters[static_cast<int>(tab)]);
    EXPECT_TRUE(QFile::exists(page.toLocalFile()));
  }
  EXPECT_EQ(opened.addresses().size(), chapters.size());
}

}  // namespace
}  // namespace veyruna::ui
