// The map without a pointer.
#include "tests/ui/map/shown_picker.h"

namespace veyruna::tests {
namespace {

TEST_F(ShownPicker, TheMapTakesTheFocusAndHasAName) {
  EXPECT_EQ(area->focusPolicy(), Qt::StrongFocus);
  EXPECT_FALSE(area->accessibleName().isEmpty());
  EXPECT_FALSE(area->accessibleDescription().isEmpty());
  for (const char* const name : {"zoomOutButton", "zoomInButton", "resetButton"}) {
    const auto* const control = view->findChild<QWidget*>(QString::fromLatin1(name));
    ASSERT_NE(control, nullptr) << name;
    EXPECT_FALSE(control->accessibleName().isEmpty()) << name;
  }
  // What it reads is spoken, and beside it what that is.
  const auto* const zoom = view->findChild<QLabel*>(QStringLiteral("zoomReadout"));
  ASSERT_NE(zoom, nullptr);
  EXPECT_TRUE(zoom->accessibleName().isEmpty());
  EXPECT_FALSE(zoom->accessibleDescription().isEmpty());
}

TEST_F(ShownPicker, TheArrowsLookThatWay) {
  area->setFocus();
  QTest::keyClick(window.windowHandle(), Qt::Key_Right);
  EXPECT_EQ(view->pan(), QPointF(-40.0, 0.0));
  QTest::keyClick(window.windowHandle(), Qt::Key_Down);
  EXPECT_EQ(view->pan(), QPointF(-40.0, -40.0));
  QTest::keyClick(window.windowHandle(), Qt::Key_Left);
  QTest::keyClick(window.windowHandle(), Qt::Key_Left);
  QTest::keyClick(window.windowHandle(), Qt::Key_Up);
  EXPECT_EQ(view->pan(), QPointF(40.0, 0.0));
}

TEST_F(ShownPicker, TheReadoutFollowsTheMapUnderAPointerAtRest) {
  pointAt({400, 300});
  const QString before = text("mapReadout");
  QTest::keyClick(area, Qt::Key_Right);
  EXPECT_NE(text("mapReadout"), before);
  pointAt({401, 300});
  pointAt({400, 300});
  const QString moved = text("mapReadout");
  QTest::keyClick(area, Qt::Key_Left);
  EXPECT_EQ(text("mapReadout"), before);
  QTest::keyClick(area, Qt::Key_Right);
  EXPECT_EQ(text("mapReadout"), moved);
}

TEST_F(ShownPicker, EveryZoomKeyGoesOneStep) {
  struct Step {
    Qt::Key in;
    Qt::Key out;
    Qt::KeyboardModifiers held;
  };
  for (const auto& [in, out, held] : {Step{Qt::Key_Plus, Qt::Key_Minus, Qt::NoModifier},
                                      {Qt::Key_Plus, Qt::Key_Minus, Qt::KeypadModifier},
                                      {Qt::Key_Plus, Qt::Key_Minus, Qt::ShiftModifier},
                                      {Qt::Key_Equal, Qt::Key_Minus, Qt::NoModifier},
                                      {Qt::Key_PageUp, Qt::Key_PageDown, Qt::NoModifier},
                                      {Qt::Key_PageUp, Qt::Key_PageDown, Qt::KeypadModifier}}) {
    for (const char* const name : {"mapArea", "zoomOutButton", "zoomInButton", "resetButton"}) {
      auto* const control = view->findChild<QWidget*>(QString::fromLatin1(name));
      control->setFocus();
      ASSERT_TRUE(control->hasFocus()) << name;
      QTest::keyClick(window.windowHandle(), in, held);
      EXPECT_EQ(zoomText(), QStringLiteral("140%")) << name << ' ' << in;
      QTest::keyClick(window.windowHandle(), in, held);
      EXPECT_EQ(zoomText(), QStringLiteral("195%")) << name << ' ' << in;
      QTest::keyClick(window.windowHandle(), out, held);
      QTest::keyClick(window.windowHandle(), out, held);
      EXPECT_EQ(zoomText(), QStringLiteral("100%")) << name << ' ' << out;
    }
  }
}

TEST_F(ShownPicker, AKeyZoomsAboutThePointerOrElseTheCentre) {
  area->setFocus();
  pointAt({250, 400});
  const QString under = text("mapReadout");
  for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_Plus, Qt::Key_PageDown}) {
    QTest::keyClick(window.windowHandle(), key);
    EXPECT_EQ(text("mapReadout"), under);
  }
  EXPECT_NE(view->pan(), QPointF());
  push("resetButton");
  pointAt(besideMap());
  QTest::keyClick(window.windowHandle(), Qt::Key_PageUp);
  EXPECT_NEAR(view->pan().x(), 0.0, 1e-9);
  EXPECT_NEAR(view->pan().y(), 0.0, 1e-9);
}

TEST_F(ShownPicker, AZoomKeyWithCtrlOrAltIsNotTheMaps) {
  area->setFocus();
  for (const Qt::KeyboardModifier held : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
    for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Right}) {
      QKeyEvent event(QEvent::KeyPress, key, held);
      QCoreApplication::sendEvent(area, &event);
      EXPECT_FALSE(event.isAccepted()) << key << ' ' << held;
    }
  }
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
  EXPECT_EQ(view->pan(), QPointF());
}

TEST_F(ShownPicker, OtherKeysPassOn) {
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_A, Qt::Key_Escape}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    event.accept();
    QCoreApplication::sendEvent(area, &event);
  }
  QKeyEvent withAlt(QEvent::KeyPress, Qt::Key_Left, Qt::AltModifier);
  QCoreApplication::sendEvent(area, &withAlt);
  EXPECT_EQ(view->pan(), QPointF());
  EXPECT_EQ(zoomText(), QStringLiteral("100%"));
}

}  // namespace
}  // namespace veyruna::tests
