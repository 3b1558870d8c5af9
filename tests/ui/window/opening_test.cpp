// A window that opens: nothing but it comes up, whatever was stored.
#include <QLabel>
#include <QTest>
#include <QToolButton>
#include <limits>

#include "tests/support/patience.h"
#include "tests/ui/window/windows.h"

namespace veyruna::ui {
namespace {

/// The kinds of the windows that came up while it lived.
class ShownWindows final : public QObject {
 public:
  ShownWindows() { qApp->installEventFilter(this); }
  [[nodiscard]] QStringList kinds() const { return kinds_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* const widget = qobject_cast<const QWidget*>(watched);
    if (event->type() == QEvent::Show && widget != nullptr && widget->isWindow()) {
      kinds_.append(QString::fromLatin1(widget->metaObject()->className()));
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QStringList kinds_;
};

using Opening = tests::Windows;

TEST_F(Opening, NothingButTheWindowComesUp) {
  for (const bool isLive : {false, true}) {
    program.time().setOn(isLive);
    for (const QUuid& place : {model::manualCityID(), program.model().cities().at(3).id}) {
      program.model().setSelectedCityID(place);
      const ShownWindows shown;
      program.openWindow();
      finishCalculations();
      EXPECT_EQ(shown.kinds(), QStringList(QStringLiteral("veyruna::ui::MainView"))) << isLive;
    }
  }
}

/// A start with a stored moment that no calendar reaches.
struct FarAway : tests::Windows {
  void startIn(qint64 year, bool isLive) {
    program.model().setYear(year);
    program.time().setOn(isLive);
    window = program.openWindow();
    finishCalculations();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window, tests::patienceMilliseconds));
  }
  void expectThatTimeCannotMove() {
    EXPECT_EQ(window->findChild<QLabel*>(QStringLiteral("errorMessage"))->text(),
              QStringLiteral("This moment is too far away to calculate."));
    const auto* const back = window->findChild<QToolButton*>(QStringLiteral("timeBeginning"));
    EXPECT_EQ(back->toolTip(), QStringLiteral("Back to where time began to move"));
    const qint64 year = program.model().year();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Home}) {
      QTest::keyClick(window, key, Qt::AltModifier);
      tests::turnEventLoop();
      EXPECT_EQ(program.model().year(), year);
    }
  }

  MainView* window = nullptr;
};

TEST_F(FarAway, AWindowOpensWithLiveOn) {
  for (const qint64 year : {qint64{900'000'000'000}, std::numeric_limits<qint64>::max(),
                            std::numeric_limits<qint64>::min()}) {
    startIn(year, true);
    expectThatTimeCannotMove();
    window->close();
    program.time().setOn(false);
  }
}

TEST_F(FarAway, LiveIsTurnedOnAndLeadsBack) {
  startIn(900'000'000'000, false);
  QTest::keyClick(window, Qt::Key_L, Qt::ControlModifier);
  finishCalculations();
  EXPECT_TRUE(program.time().isOn());
  expectThatTimeCannotMove();
  program.model().setYear(720);
  tests::turnEventLoop();
  EXPECT_TRUE(window->findChild<QToolButton*>(QStringLiteral("timeBeginning"))
                  ->toolTip()
                  .endsWith(QStringLiteral(", 720-01-01 12:00 OST")));
}

}  // namespace
}  // namespace veyruna::ui
