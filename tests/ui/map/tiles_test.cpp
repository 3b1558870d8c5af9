// The picture on the screen: not there, rough, sharp; exactly where its layout says.
#include "tests/support/patience.h"
#include "tests/ui/map/drawn_picker.h"
#include "ui/map/map_tiles.h"

namespace veyruna::tests {
namespace {

struct PlacedPicture : DrawnPicker {
  /// The part of the picture at a point, from 0 to 1 across and down, as its colour tells.
  static QPointF partAt(const QImage& image, QPointF point) {
    const double pixels = image.devicePixelRatio();
    const QRgb color = image.pixel((point * pixels).toPoint());
    return {qRed(color) / 255.0, qGreen(color) / 255.0};
  }
  void expectThePictureWhereItShouldBe(const char* when) const {
    const QImage image = shown();
    const ui::Layout layout = view->mapLayout();
    for (const QPointF point : {QPointF(150, 150), QPointF(400, 300), QPointF(700, 500)}) {
      const QPointF inside = point - layout.origin;
      const QPointF part = partAt(image, point);
      EXPECT_NEAR(part.x(), inside.x() / layout.displaySize.width(), 0.006) << when;
      EXPECT_NEAR(part.y(), inside.y() / layout.displaySize.height(), 0.006) << when;
    }
  }
};

TEST_F(PlacedPicture, TheFirstFrameIsRoughAndInItsPlace) {
  tasks.runNext();  // the picture
  turnEventLoop();
  EXPECT_FALSE(area->isComplete());
  expectThePictureWhereItShouldBe("rough");
}

TEST_F(PlacedPicture, SharpItIsInTheSamePlaceAtEveryZoom) {
  finish();
  expectThePictureWhereItShouldBe("sharp");
  pointAt({300, 400});
  for (int step = 0; step < 9; ++step) {
    turnWheel(area, Qt::AltModifier, {120, 0});
    expectThePictureWhereItShouldBe("rough");
    finish();
    expectThePictureWhereItShouldBe("sharp");
  }
}

TEST_F(PlacedPicture, DraggedFarItIsRoughThenSharpInItsPlace) {
  finish();
  for (int step = 0; step < 6; ++step) {
    push("zoomInButton");
  }
  finish();
  press({100, 100});
  pointAt({700, 600});
  expectThePictureWhereItShouldBe("dragged");
  release({700, 600});
  expectThePictureWhereItShouldBe("let go");
  finish();
  expectThePictureWhereItShouldBe("sharp");
}

TEST_F(DrawnPicker, AShortDragFindsItsMarginSharp) {
  finish();
  for (int step = 0; step < 6; ++step) {
    push("zoomInButton");
  }
  finish();
  press({400, 300});
  pointAt({440, 260});
  const QImage atOnce = shown();
  finish();
  EXPECT_EQ(shown(), atOnce);
}

TEST_F(DrawnPicker, BesideThePictureIsGround) {
  finish();
  const QImage image = shown();
  const double pixels = image.devicePixelRatio();
  const auto at = [&](double x, double y) {
    return image.pixel((QPointF(x, y) * pixels).toPoint());
  };
  // The picture is 800 × 605.4 in an area of 800 × 653: 23.8 points are free above and below.
  EXPECT_EQ(at(400, 5), at(20, 640));
  EXPECT_EQ(at(400, 22), at(400, 5));
  EXPECT_NE(at(400, 26), at(400, 5));
  EXPECT_NE(at(400, 627), at(400, 5));
  EXPECT_EQ(at(400, 631), at(400, 5));
}

TEST(MapMemory, ThePictureAndItsTilesTakeLessThan120Megabytes) {
  const ui::MapPicture picture(QImage(4316, 3266, QImage::Format_RGB32));
  qsizetype bytes = ui::MapTiles::budgetBytes;
  int level = 0;
  do {
    bytes += picture.level(level).sizeInBytes();
  } while (picture.level(level++).height() > 32);
  constexpr qsizetype workingMemory = 520 * 512 * 16;  // a worker's rows at two pixels to one
  EXPECT_LT(bytes + workingMemory, 120'000'000);
}

TEST_F(DrawnPicker, WithoutAPictureAClickStillPicks) {
  ui::MapLocationPickerView bare(
      model, [] { return QImage(); }, immediateExecutor());
  bare.resize(600, 600);
  bare.show();
  turnEventLoop();
  auto* const map = bare.findChild<ui::MapArea*>();
  QTest::mouseClick(map, Qt::LeftButton, {}, map->rect().center());
  EXPECT_EQ(model.selectedCityID(), model::manualCityID());
  EXPECT_FALSE(map->isComplete());
}

TEST_F(DrawnPicker, ThreadsMayDrawTheTiles) {
  ui::MapLocationPickerView real(model, &smallPicture);
  real.resize(900, 700);
  real.show();
  auto* const map = real.findChild<ui::MapArea*>();
  EXPECT_TRUE(QTest::qWaitFor([map] { return map->isComplete(); }, tests::patienceMilliseconds));
  for (int step = 0; step < 5; ++step) {
    QTest::keyClick(map, Qt::Key_Plus);
    turnEventLoop();
  }
  EXPECT_TRUE(QTest::qWaitFor([map] { return map->isComplete(); }, tests::patienceMilliseconds));
}

TEST_F(DrawnPicker, ThePickerMayGoWhileThreadsDraw) {
  for (int run = 0; run < 60; ++run) {
    auto real =
        std::make_unique<ui::MapLocationPickerView>(model, &smallPicture, model::poolExecutor());
    real->resize(900, 700);
    real->show();
    for (int turn = 0; turn < run % 7; ++turn) {
      turnEventLoop();
      real->grab();
      QTest::keyClick(real->findChild<ui::MapArea*>(), Qt::Key_Plus);
    }
    real.reset();
    turnEventLoop();
  }
}

}  // namespace
}  // namespace veyruna::tests
