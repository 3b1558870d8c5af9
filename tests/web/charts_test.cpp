// Charts on screen, through the web engine itself.
#include <QAbstractButton>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QWebEngineView>
#include <csignal>
#include <gtest/gtest.h>
#include <set>

#include "export/pdf_exporter.h"
#include "tests/model/fakes.h"
#include "tests/support/patience.h"
#include "ui/controls/program.h"
#include "ui/outputs/svg_view.h"
#include "ui/outputs/web_page_engine.h"
#include "ui/window/application.h"
#include "ui/window/main_view.h"

namespace veyruna::ui {
namespace {

/// A chart of one colour all over.
QString sheetOf(const char* color) {
  return QStringLiteral(
             "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 10\" "
             "preserveAspectRatio=\"none\"><rect width=\"10\" height=\"10\" fill=\"%1\"/></svg>")
      .arg(QLatin1String(color));
}

struct Charts : testing::Test {
  const PageEngine engine = webPageEngine();
  SVGView view{engine, QStringLiteral("Chart")};

  Charts() {
    view.resize(300, 200);
    static_cast<QWidget&>(view).show();
  }

  [[nodiscard]] QColor middle() {
    return view.grab().toImage().pixelColor(view.width() / 2, view.height() / 2);
  }
  [[nodiscard]] bool becomes(const QColor& color) {
    return QTest::qWaitFor([this, color] { return middle() == color; },
                           tests::patienceMilliseconds);
  }
};

TEST_F(Charts, AreDrawnAndFollowEveryUpdate) {
  view.show(sheetOf("red"));
  EXPECT_TRUE(becomes(Qt::red));
  view.show(sheetOf("blue"));
  EXPECT_TRUE(becomes(Qt::blue));
}

TEST_F(Charts, AnUpdateShowsTheOldChartUntilTheNewOneIsThere) {
  view.show(sheetOf("red"));
  ASSERT_TRUE(becomes(Qt::red));
  for (int round = 0; round < 4; ++round) {
    const QColor next = round % 2 == 0 ? Qt::blue : Qt::red;
    view.show(sheetOf(round % 2 == 0 ? "blue" : "red"));
    std::set<QRgb> others;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
          const QColor now = middle();
          if (now != Qt::red && now != Qt::blue) {
            others.insert(now.rgba());
          }
          return now == next;
        },
        tests::patienceMilliseconds));
    EXPECT_TRUE(others.empty()) << std::hex << *others.cbegin();
  }
}

TEST_F(Charts, ThePageIsTransparent) {
  QPalette green;
  green.setColor(QPalette::Window, Qt::green);
  view.setPalette(green);
  view.setAutoFillBackground(true);
  view.show(QStringLiteral(
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 30 20\"><rect width=\"1\" "
      "height=\"20\" fill=\"red\"/></svg>"));
  ASSERT_TRUE(QTest::qWaitFor(
      [this] { return view.grab().toImage().pixelColor(2, 100) == QColor(Qt::red); },
      tests::patienceMilliseconds));
  EXPECT_EQ(middle(), QColor(Qt::green));
}

TEST_F(Charts, ComeBackWhenTheProcessThatDrawsThemDies) {
  view.show(sheetOf("red"));
  ASSERT_TRUE(becomes(Qt::red));
  const auto* const page = view.findChild<QWebEngineView*>()->page();
  const qint64 before = page->renderProcessPid();
  ASSERT_GT(before, 0);
  ::kill(static_cast<pid_t>(before), SIGKILL);
  EXPECT_TRUE(QTest::qWaitFor([&] { return page->renderProcessPid() != before; },
                              tests::patienceMilliseconds));
  EXPECT_TRUE(becomes(Qt::red));
}

TEST(WindowWithCharts, DrawsBothChartsOfACalculation) {
  tests::FakeWorld world;
  const QTemporaryDir folder;
  VeyrunaAstroApp program(world.surroundings(), webPageEngine(),
                          folder.filePath(QStringLiteral("window.ini")));
  MainView* const window = program.openWindow();
  world.tasks.runNext();
  tests::turnEventLoop();
  const auto colorsIn = [window](const char* name) {
    std::set<QRgb> colors;
    const QImage chart = window->findChild<QWidget*>(QString::fromLatin1(name))->grab().toImage();
    for (int y = 0; y < chart.height(); y += 3) {
      for (int x = 0; x < chart.width(); x += 3) {
        colors.insert(chart.pixel(x, y));
      }
    }
    return colors.size();
  };
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return colorsIn("starMap") > 20; }, tests::patienceMilliseconds));
  window->selectTab(exports::OutputTab::horoscope);
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return colorsIn("horoscope") > 20; }, tests::patienceMilliseconds));
  EXPECT_EQ(window->findChildren<QWebEngineView*>().size(), 2);
}

TEST(WindowWithCharts, ThatIsQuitWhileAPdfIsMadeLosesNoFile) {
  tests::FakeWorld world;
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("table.pdf"));
  VeyrunaAstroApp program(world.surroundings(), webPageEngine(),
                          folder.filePath(QStringLiteral("window.ini")));
  MainView* const window = program.openWindow();
  world.tasks.runNext();
  tests::turnEventLoop();
  window->selectTab(exports::OutputTab::positions);
  window->findChild<QAbstractButton*>(QStringLiteral("pdfButton"))->click();
  auto* const dialog = window->findChild<QFileDialog*>(QStringLiteral("saveDialog"));
  ASSERT_NE(dialog, nullptr);
  dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
  QMetaObject::invokeMethod(dialog, "accept");
  QApplication::closeAllWindows();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(QFile::exists(path));
  EXPECT_TRUE(exports::PDFExporter::waitForAll());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().startsWith("%PDF-"));
}

TEST(Program, AnswersOnTheTerminalWithoutADisplay) {
  const auto answerTo = [](const QString& option) {
    QProcess program;
    QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
    bare.remove(QStringLiteral("DISPLAY"));
    bare.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    program.setProcessEnvironment(bare);
    program.start(QStringLiteral(VEYRUNA_ASTRO), {option});
    EXPECT_TRUE(program.waitForFinished(tests::patienceMilliseconds));
    EXPECT_EQ(program.exitCode(), 0);
    return QString::fromUtf8(program.readAllStandardOutput());
  };
  EXPECT_EQ(answerTo(QStringLiteral("--version")),
            QStringLiteral("veyruna-astro %1 (build %2)\n").arg(programVersion(), programBuild()));
  EXPECT_TRUE(answerTo(QStringLiteral("--help")).contains(QStringLiteral("Veyrunan Astrologer")));
}

}  // namespace
}  // namespace veyruna::ui
