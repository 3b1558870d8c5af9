// The tiles' workers on plain threads, where the thread sanitizer sees everything they share.
#include <QImage>
#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include "tests/support/patience.h"
#include "ui/map/map_tiles.h"

namespace veyruna::ui {
namespace {

class PlainThreads {
 public:
  PlainThreads() = default;
  PlainThreads(const PlainThreads&) = delete;
  PlainThreads& operator=(const PlainThreads&) = delete;
  ~PlainThreads() {
    for (std::thread& thread : threads_) {
      thread.join();
    }
  }

  model::Executor executor() {
    return [this](std::function<void()> task) { threads_.emplace_back(std::move(task)); };
  }

 private:
  std::vector<std::thread> threads_;
};

std::shared_ptr<const MapPicture> somePicture() {
  QImage image(500, 400, QImage::Format_RGB32);
  image.fill(qRgb(10, 200, 30));
  return std::make_shared<const MapPicture>(image);
}

void draw(MapTiles& tiles, QImage& frame, const QRect& image) {
  QPainter painter(&frame);
  tiles.draw(painter, {.image = image, .view = frame.rect(), .exposed = frame.rect()});
}

TEST(MapTilesOnThreads, ComeWhateverIsAskedForMeanwhile) {
  PlainThreads threads;
  MapTiles tiles(threads.executor());
  tiles.setPicture(somePicture());
  QImage frame(800, 600, QImage::Format_RGB32);
  for (int turn = 0; turn < 30; ++turn) {
    draw(tiles, frame, QRect(-turn * 40, -turn * 20, 1000 + turn / 3 * 400, 800 + turn / 3 * 320));
    if (turn % 4 == 0) {
      QCoreApplication::processEvents();
    }
  }
  const bool complete =
      QTest::qWaitFor([&tiles] { return tiles.isComplete(); }, tests::patienceMilliseconds);
  EXPECT_TRUE(complete);
  const QRect last(-29 * 40, -29 * 20, 1000 + 9 * 400, 800 + 9 * 320);
  frame.fill(Qt::black);
  draw(tiles, frame, last);
  for (const QPoint point : {QPoint(0, 0), QPoint(799, 0), QPoint(400, 300), QPoint(799, 599)}) {
    EXPECT_EQ(frame.pixel(point), qRgb(10, 200, 30));
  }
}

TEST(MapTilesOnThreads, MayBeDeletedAtAnyMoment) {
  for (int run = 0; run < 40; ++run) {
    PlainThreads threads;
    auto tiles = std::make_unique<MapTiles>(threads.executor());
    tiles->setPicture(somePicture());
    QImage frame(800, 600, QImage::Format_RGB32);
    draw(*tiles, frame, QRect(0, 0, 1000 + run, 800));
    std::this_thread::sleep_for(std::chrono::microseconds(run * 50));
    tiles.reset();
    QCoreApplication::processEvents();
  }
}

}  // namespace
}  // namespace veyruna::ui
