// What a frame of the map at rest is made of, counted: every pixel in sight is copied from a
// finished tile, once and as it is. How long that takes: bench/run.
#include <QCoreApplication>
#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include "ui/map/map_tiles.h"

namespace veyruna::ui {
namespace {

/// What is drawn on a device that keeps no picture.
struct Drawn {
  int copies = 0;
  int scaled = 0;     ///< pictures that are not copied pixel by pixel
  int others = 0;     ///< anything but pictures
  qint64 pixels = 0;  ///< in sight
};

class CountingEngine final : public QPaintEngine {
 public:
  CountingEngine(QSize sight, Drawn& drawn)
      : QPaintEngine(AllFeatures), sight_(QPointF(), sight), drawn_(drawn) {}

  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState& /*state*/) override {}
  [[nodiscard]] Type type() const override { return User; }

  void drawImage(const QRectF& target, const QImage& /*image*/, const QRectF& source,
                 Qt::ImageConversionFlags /*flags*/) override {
    count(target, source);
  }
  void drawPixmap(const QRectF& target, const QPixmap& /*pixmap*/, const QRectF& source) override {
    count(target, source);
  }
  void drawRects(const QRectF* /*rects*/, int /*count*/) override { ++drawn_.others; }
  void drawRects(const QRect* /*rects*/, int /*count*/) override { ++drawn_.others; }
  void drawPath(const QPainterPath& /*path*/) override { ++drawn_.others; }

 private:
  void count(const QRectF& target, const QRectF& source) {
    ++drawn_.copies;
    drawn_.scaled += target.size() == source.size() ? 0 : 1;
    const QRectF inSight = target & sight_;
    drawn_.pixels += qRound64(inSight.width() * inSight.height());
  }

  QRectF sight_;
  Drawn& drawn_;
};

class CountingDevice final : public QPaintDevice {
 public:
  CountingDevice(QSize size, Drawn& drawn) : size_(size), engine_(size, drawn) {}
  [[nodiscard]] QPaintEngine* paintEngine() const override { return &engine_; }

 protected:
  [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth:
        return size_.width();
      case PdmHeight:
        return size_.height();
      case PdmDepth:
        return 32;
      case PdmDpiX:
      case PdmDpiY:
      case PdmPhysicalDpiX:
      case PdmPhysicalDpiY:
        return 96;
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
      default:
        return 0;
    }
  }

 private:
  QSize size_;
  mutable CountingEngine engine_;
};

Drawn drawnOf(MapTiles& tiles, const QRect& image, const QRect& view, const QRect& exposed) {
  Drawn drawn;
  CountingDevice device(view.size(), drawn);
  QPainter painter(&device);
  tiles.draw(painter, {.image = image, .view = view, .exposed = exposed});
  return drawn;
}

TEST(FrameCost, EveryPixelOfAFrameAtRestIsCopiedOnce) {
  MapTiles tiles([](const std::function<void()>& task) { task(); });
  QImage picture(500, 400, QImage::Format_RGB32);
  picture.fill(qRgb(10, 200, 30));
  tiles.setPicture(std::make_shared<const MapPicture>(picture));
  const QRect view(0, 0, 1600, 1000);
  constexpr int columns = 1600 / 512 + 2;
  constexpr int rows = 1000 / 256 + 2;
  for (const int width : {2000, 3100, 7300, 19'000}) {
    const QRect image(-width / 7, -width / 9, width, width * 4 / 5);
    drawnOf(tiles, image, view, view);
    QCoreApplication::processEvents();
    ASSERT_TRUE(tiles.isComplete()) << width;
    const Drawn whole = drawnOf(tiles, image, view, view);
    EXPECT_EQ(whole.pixels, 1600 * 1000) << width;
    EXPECT_EQ(whole.scaled, 0) << width;
    EXPECT_EQ(whole.others, 0) << width;
    EXPECT_LE(whole.copies, columns * rows) << width;
    // A mark that moves, a read-out: what it uncovers, and nothing else.
    const Drawn part = drawnOf(tiles, image, view, QRect(700, 400, 90, 30));
    EXPECT_LE(part.copies, 4) << width;
  }
}

}  // namespace
}  // namespace veyruna::ui
