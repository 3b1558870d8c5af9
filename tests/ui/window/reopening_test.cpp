// A window reopens exactly where it was, however often.
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>

#include "tests/ui/shown_window.h"
#include "ui/window/application.h"

namespace veyruna::ui {
namespace {

struct Reopening : testing::Test, tests::FakeWorld {
  QTemporaryDir folder;
  QString statePath = folder.filePath(QStringLiteral("window.ini"));

  /// Starts the program, lets `use` have its window, and ends it.
  void run(const std::function<void(MainView&)>& use) {
    VeyrunaAstroApp program(surroundings(), statePath);
    MainView* const window = program.openWindow();
    tests::turnEventLoop();
    use(*window);
    tests::turnEventLoop();
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static QList<int> columns(MainView& window) { return window.findChild<QSplitter*>()->sizes(); }
  static constexpr int starts = 10;
};

TEST_F(Reopening, AtItsFirstSizeItStaysWhereTheWindowManagerPutIt) {
  QRect first;
  run([&](const MainView& window) { first = window.geometry(); });
  for (int start = 0; start < starts; ++start) {
    run([&](const MainView& window) { EXPECT_EQ(window.geometry(), first) << start; });
  }
}

TEST_F(Reopening, TheFirstSizeLeavesRoomForATitleBar) {
  run([](const MainView& window) {
    const QSize room = window.screen()->availableSize();
    EXPECT_LE(window.height(), room.height() - 40);
    EXPECT_LE(window.width(), std::max(room.width(), window.minimumSizeHint().width()));
    EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry()));
  });
}

TEST_F(Reopening, WhereItWasLeftAndAsLarge) {
  for (const QRect& place :
       {QRect(40, 50, 671, 610), QRect(2, 2, 780, 790), QRect(-300, 400, 700, 600)}) {
    QRect left;
    run([&](MainView& window) {
      window.setGeometry(place);
      tests::turnEventLoop();
      left = window.geometry();
    });
    EXPECT_EQ(left.size(), place.size());
    EXPECT_EQ(left.x() < 0, place.x() < 0);
    for (int start = 0; start < starts; ++start) {
      run([&](const MainView& window) { EXPECT_EQ(window.geometry(), left) << start; });
    }
  }
}

TEST_F(Reopening, MaximizedAndFromThereToWhereItWas) {
  const QRect place(40, 50, 671, 610);
  run([&](MainView& window) {
    window.setGeometry(place);
    tests::turnEventLoop();
    window.showMaximized();
  });
  for (int start = 0; start < starts; ++start) {
    run([&](const MainView& window) {
      EXPECT_TRUE(window.isMaximized());
      EXPECT_FALSE(window.isFullScreen());
      EXPECT_GT(window.width(), place.width());
    });
  }
  run([&](MainView& window) { window.showNormal(); });
  run([&](const MainView& window) {
    EXPECT_FALSE(window.isMaximized());
    EXPECT_EQ(window.size(), place.size());
  });
}

TEST_F(Reopening, InFullScreenAndFromThereToWhereItWas) {
  const QRect place(40, 50, 671, 610);
  run([&](MainView& window) {
    window.setGeometry(place);
    tests::turnEventLoop();
    window.showFullScreen();
  });
  run([&](const MainView& window) {
    EXPECT_TRUE(window.isFullScreen());
    EXPECT_EQ(window.geometry(), window.screen()->geometry());
  });
  run([&](MainView& window) { window.showNormal(); });
  run([&](const MainView& window) {
    EXPECT_FALSE(window.isFullScreen());
    EXPECT_EQ(window.size(), place.size());
  });
}

TEST_F(Reopening, NotAsSmallAsItsMinimizedSelf) {
  const QRect place(40, 50, 671, 610);
  run([&](MainView& window) {
    window.setGeometry(place);
    tests::turnEventLoop();
    window.showMinimized();
  });
  run([&](const MainView& window) {
    EXPECT_FALSE(window.isMinimized());
    EXPECT_EQ(window.geometry(), place);
  });
}

TEST_F(Reopening, DividedAsItWas) {
  run([](MainView& window) {
    window.resize(800, 600);
    window.findChild<QSplitter*>()->setSizes({340, 400});
  });
  QList<int> left;
  run([&](MainView& window) { left = columns(window); });
  EXPECT_EQ(left.constFirst(), 340);
  for (int start = 0; start < starts; ++start) {
    run([&](MainView& window) { EXPECT_EQ(columns(window), left); });
  }
}

TEST_F(Reopening, OnTheScreenWhereItCouldNotBeReached) {
  run([](MainView& window) { window.setGeometry(9000, 9000, 700, 600); });
  run([](const MainView& window) {
    const QRect room = window.screen()->availableGeometry();
    EXPECT_TRUE(room.contains(window.frameGeometry()))
        << window.geometry().x() << ", " << window.geometry().y();
  });
}

}  // namespace
}  // namespace veyruna::ui
