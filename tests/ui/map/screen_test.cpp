// The map area as it stands on the screen: its ground, its frame while it has the focus, and that
// whatever happens the screen shows at once what a fresh drawing would.
#include <QBackingStore>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <limits>

#include "tests/ui/map/drawn_picker.h"

namespace veyruna::tests {
namespace {

QPalette paletteOf(QColor window, QColor highlight) {
  QPalette palette;
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, window.lightness() < 128 ? Qt::white : Qt::black);
  palette.setColor(QPalette::Highlight, highlight);
  return palette;
}
const QPalette light = paletteOf(QColor(200, 150, 100), QColor(30, 90, 220));
const QPalette dark = paletteOf(QColor(30, 40, 50), QColor(250, 180, 20));

struct Screen : DrawnPicker {
  /// A pixel of the map area by its points, at its middle where points have several.
  static QRgb at(const QImage& image, double x, double y) {
    return image.pixel((QPointF(x, y) * image.devicePixelRatio()).toPoint());
  }

  void expectGround(QColor ground) {
    const QImage image = shown();
    for (const QPointF point : {QPointF(300, 300), QPointF(3, 3), QPointF(790, 640)}) {
      const QColor seen(at(image, point.x(), point.y()));
      EXPECT_NEAR(seen.red(), ground.red(), 1) << point.x();
      EXPECT_NEAR(seen.green(), ground.green(), 1) << point.x();
      EXPECT_NEAR(seen.blue(), ground.blue(), 1) << point.x();
    }
  }

  /// The window as the platform has it.
  [[nodiscard]] QImage onScreen() const {
    for (int turn = 0; turn < 3; ++turn) {
      turnEventLoop();
    }
    const auto* const painted = dynamic_cast<QImage*>(window.backingStore()->paintDevice());
    return painted != nullptr ? painted->copy() : QImage();
  }

  /// What was painted because the area asked for it is what is painted where everything is.
  void expectUpToDate(const char* after) {
    const QImage asAsked = onScreen();
    ASSERT_FALSE(asAsked.isNull()) << after;
    window.update();
    area->update();
    const auto parts = area->findChildren<QWidget*>();
    for (QWidget* const part : parts) {
      part->update();
    }
    EXPECT_EQ(asAsked, onScreen()) << after;
  }

  void fingers(Qt::NativeGestureType type, double increment = 0.0) const {
    const QPointF point(200.0, 200.0);
    QNativeGestureEvent gesture(type, QPointingDevice::primaryPointingDevice(), 2, point, point,
                                QPointF(area->mapToGlobal(point.toPoint())), increment, QPointF());
    QCoreApplication::sendEvent(area, &gesture);
  }
};

TEST_F(Screen, OnALightWindowTheGroundIsFourPercentDarker) {
  area->setPalette(light);
  expectGround(QColor(192, 144, 96));
}

TEST_F(Screen, OnADarkWindowTheGroundIsLighterThanTheWindow) {
  area->setPalette(dark);
  expectGround(QColor(37, 50, 62));  // 1.3 times 0.96 as bright
}

TEST_F(Screen, HalfWayToWhiteAWindowIsLight) {
  area->setPalette(paletteOf(QColor(128, 128, 128), Qt::red));
  expectGround(QColor(123, 123, 123));
  area->setPalette(paletteOf(QColor(127, 127, 127), Qt::red));
  expectGround(QColor(158, 158, 158));
}

TEST_F(Screen, AFrameTwoPointsWideInTheHighlightsColourShowsTheFocus) {
  for (const QPalette& palette : {light, dark}) {
    area->setPalette(palette);
    beside->setFocusPolicy(Qt::StrongFocus);
    beside->setFocus();
    const QImage without = shown();
    area->setFocus();
    const QImage with = shown();
    const QRgb highlight = palette.color(QPalette::Highlight).rgb();
    for (const double depth : {0.75, 1.25}) {
      EXPECT_EQ(at(with, depth, 300), highlight);
      EXPECT_EQ(at(with, 799.99 - depth, 300), highlight);
      EXPECT_EQ(at(with, 400, depth), highlight);
      EXPECT_EQ(at(with, 400, 652.99 - depth), highlight);
      EXPECT_EQ(at(with, 700, depth), highlight);
    }
    const double pixels = with.devicePixelRatio();
    const int frame = static_cast<int>(std::ceil(2.5 * pixels));
    const QRect within = with.rect().adjusted(frame, frame, -frame, -frame);
    EXPECT_EQ(with.copy(within), without.copy(within));
    EXPECT_NE(at(without, 0.75, 300), highlight);
  }
}

TEST_F(Screen, AMapTooLargeTooSmallOrTooFarToBeSeenIsGround) {
  area->setPalette(light);
  const QRgb ground = at(shown(), 400, 300);
  finish();
  const QRgb map = at(shown(), 400, 300);
  ASSERT_NE(map, ground);
  for (const double increment : {2e9, 1e30, 1e300, -1.0 + 1e-9}) {
    fingers(Qt::BeginNativeGesture);
    fingers(Qt::ZoomNativeGesture, increment);
    QImage plain = shown();
    plain.fill(ground);
    EXPECT_EQ(shown(), plain) << increment;
    fingers(Qt::EndNativeGesture);
    push("resetButton");
  }
  for (const QPointF pull :
       {QPointF(3e9, 0), QPointF(-3e9, 0), QPointF(0, 3e9), QPointF(0, -3e9)}) {
    for (const double undo : {1.0, -1.0}) {
      Q_EMIT area->panRequested(pull * undo);
      if (undo > 0.0) {
        QImage plain = shown();
        plain.fill(ground);
        EXPECT_EQ(shown(), plain) << pull.x() << ' ' << pull.y();
      }
    }
    EXPECT_EQ(at(shown(), 400, 300), map);
  }
}

TEST_F(Screen, AMapOfAFewPixelsIsSeen) {
  area->setPalette(light);
  finish();
  const QRgb ground = at(shown(), 400, 5);
  fingers(Qt::BeginNativeGesture);
  fingers(Qt::ZoomNativeGesture, -0.99);
  EXPECT_NE(at(shown(), 400, 326.5), ground);  // 8 × 6 points of it in the middle
  EXPECT_EQ(at(shown(), 390, 326.5), ground);
  EXPECT_EQ(at(shown(), 400, 320), ground);
}

TEST_F(Screen, ShowsAtOnceWhatIsDone) {
  expectUpToDate("nothing");
  tasks.runNext();
  expectUpToDate("the picture");
  finish();
  expectUpToDate("the tiles");
  pointAt({400, 300});
  expectUpToDate("the read-out");
  push("zoomInButton");
  expectUpToDate("a zoom");
  finish();
  expectUpToDate("its tiles");
  press({400, 300});
  pointAt({440, 320});
  expectUpToDate("a drag");
  release({440, 320});
  expectUpToDate("its end");
  click({500, 330});
  expectUpToDate("a pick");
  model.addCity(QStringLiteral("Here"));
  expectUpToDate("a place saved");
  pointAt({500, 330});
  expectUpToDate("its name");
  model.deleteCity(model.cities().back().id);
  model.setSelectedCityID(QUuid::createUuid());
  expectUpToDate("a place deleted");
  area->setFocus();
  expectUpToDate("the focus");
  pointAt(besideMap());
  expectUpToDate("the pointer gone");
  area->setPalette(dark);
  expectUpToDate("a dark palette");
}

TEST_F(Screen, EveryTileThatComesIsPaintedWhereverTheMapLies) {
  tasks.runNext();
  turnEventLoop();
  for (const QPointF pull : {QPointF(0.4, 0.7), QPointF(-310.3, 120.6), QPointF(200.9, -290.2)}) {
    Q_EMIT area->panRequested(pull);
    push("zoomInButton");
    expectUpToDate("rough");
    ASSERT_FALSE(area->isComplete());
    while (tasks.count() > 0) {
      tasks.runNext();
    }
    expectUpToDate("sharp");
    EXPECT_TRUE(area->isComplete());
  }
}

TEST_F(Screen, ADragBrokenOffIsNoLongerSeen) {
  finish();
  area->setFocus();
  const QImage before = shown();
  press({300, 300});
  pointAt({400, 350});
  ASSERT_NE(shown(), before);
  view->hide();
  view->show();
  turnEventLoop();
  pointAt(besideMap());
  area->setFocus();
  EXPECT_EQ(shown(), before);
}

}  // namespace
}  // namespace veyruna::tests
