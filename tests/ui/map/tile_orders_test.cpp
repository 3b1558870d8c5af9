// Which tiles are made, in what order, how often, by how many threads and with how much memory.
#include <QPainter>
#include <QThread>
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <malloc.h>

#include "tests/ui/map/made_tiles.h"

namespace veyruna::tests {
namespace {

const std::vector<QRect> layouts = {
    {-1400, -900, 5000, 3784}, {0, 0, 5000, 3784},       {-3700, -3084, 5000, 3784},
    {-512, -256, 3000, 2270},  {-511, -255, 3000, 2270}, {200, 100, 700, 530},
    {0, 0, 1300, 984},         {1200, 650, 2000, 1514},  {-1999, -1513, 2000, 1514},
};

TEST_F(MadeTiles, WhatIsInSightIsMadeFirstThenOneTileAround) {
  for (const QRect& image : layouts) {
    ui::MapTiles fresh(tasks.executor());
    fresh.setPicture(slopingPicture());
    came.clear();
    QObject::connect(&fresh, &ui::MapTiles::tileCame, [this](QRect area) { came.push_back(area); });
    draw(fresh, image);
    makeAll();
    turnEventLoop();
    EXPECT_TRUE(fresh.isComplete());
    EXPECT_EQ(sorted(came), sorted(expected(image, frame.rect(), true))) << image.x();
    const auto seen = expected(image, frame.rect(), false);
    ASSERT_GE(came.size(), seen.size());
    EXPECT_EQ(sorted({came.begin(), came.begin() + static_cast<std::ptrdiff_t>(seen.size())}),
              sorted(seen))
        << image.x();
  }
}

TEST_F(MadeTiles, OutOfSightNothingIsMade) {
  for (const QRect& image : {QRect(1300, 0, 500, 378), QRect(-500, 0, 500, 378),
                             QRect(0, 700, 500, 378), QRect(0, -378, 500, 378)}) {
    draw(image);
    EXPECT_EQ(tasks.count(), 0U);
  }
}

TEST_F(MadeTiles, NoTileIsMadeTwiceHoweverOftenItIsAskedFor) {
  const QRect image(-1400, -900, 5000, 3784);
  draw(image);
  draw(image);
  draw(image.translated(300, 20));  // while they still wait, other tiles are wanted
  draw(image);
  makeAll();  // made, and not delivered yet
  draw(image.translated(40, 20));
  draw(image.translated(-300, 20));  // another column comes near
  makeAll();
  turnEventLoop();
  draw(image);
  makeAll();
  turnEventLoop();
  for (std::size_t i = 0; i < came.size(); ++i) {
    EXPECT_EQ(std::ranges::count(came, came[i]), 1) << came[i].x() << ' ' << came[i].y();
  }
  EXPECT_TRUE(tiles.isComplete());
}

TEST_F(MadeTiles, ATileOutOfSightBeforeItWasBegunIsNotMade) {
  draw({-1400, -900, 5000, 3784});
  draw({0, 0, 900, 681});
  makeAll();
  turnEventLoop();
  EXPECT_EQ(sorted(came), sorted(expected({0, 0, 900, 681}, frame.rect(), true)));
}

TEST_F(MadeTiles, ATileThatComesTooLateIsNotKept) {
  draw({-1400, -900, 5000, 3784});
  makeAll();
  draw({0, 0, 900, 681});
  turnEventLoop();
  EXPECT_TRUE(came.empty());
  EXPECT_FALSE(tiles.isComplete());
  makeAll();
  turnEventLoop();
  EXPECT_TRUE(tiles.isComplete());
  frame.fill(Qt::magenta);
  draw({0, 0, 900, 681});
  expectThePicture({0, 0, 900, 681});
}

TEST_F(MadeTiles, OneThreadOfTheMachineStaysFree) {
  const int threads = QThread::idealThreadCount();
  for (int turn = 0; turn < 10; ++turn) {  // and stays so while nobody gets round to working
    draw({-1400 - turn, -900, 5000 + turn, 3784});
    const auto busy = static_cast<int>(tasks.count());
    if (threads > 1 && threads <= 12) {
      EXPECT_EQ(threads - busy, 1);
    } else {
      EXPECT_GE(busy, 1);
      EXPECT_LE(busy, std::max(1, threads - 1));
    }
  }
  makeAll();
  turnEventLoop();
  draw({-1400, -900, 6000, 4541});  // those that have ended make room for others
  EXPECT_EQ(tasks.count(), static_cast<std::size_t>(std::clamp(threads - 1, 1, 12)));
}

TEST_F(MadeTiles, ForOneTileOneWorkerIsEnough) {
  draw({0, 0, 300, 200});
  EXPECT_EQ(tasks.count(), 1U);
  draw({0, 0, 300, 200});
  EXPECT_EQ(tasks.count(), 1U);
}

TEST_F(MadeTiles, HoldNoMoreThan38MillionBytes) {
  frame = QImage(QSize(8000, 3000), QImage::Format_RGB32);
  draw({-100, -100, 9000, 6811});
  makeAll();
  turnEventLoop();
  EXPECT_EQ(came.size(), 38'000'000U / (512 * 256 * 4));
  EXPECT_TRUE(tiles.isComplete());
}

/// Bytes taken from the heap; where another allocator stands in for the C library's, none.
std::size_t bytesInUse() {
  const struct mallinfo2 heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

TEST_F(MadeTiles, ZoomedToAndFroTheirMemoryIsUsedAgain) {
  frame = QImage(QSize(500, 200), QImage::Format_RGB32);
  const auto zoomThrough = [this](int first) {
    for (int turn = 0; turn < 6; ++turn) {
      draw({-1000, -700, 3000 + first + turn, 2270});
      makeAll();
      if (turn % 2 == 0) {  // every other time they come too late
        turnEventLoop();
      }
    }
    turnEventLoop();
  };
  zoomThrough(0);
  const std::size_t before = bytesInUse();
  zoomThrough(100);
  zoomThrough(200);
  constexpr std::size_t fewTiles = std::size_t{4} * 512 * 256 * 4;
  EXPECT_LE(bytesInUse(), before + fewTiles);
}

TEST_F(MadeTiles, RoughAndSharpThePictureIsInItsPlaceAndNothingBeside) {
  for (const QRect& image :
       {QRect(-1400, -900, 5000, 3784), QRect(200, 100, 700, 530), QRect(50, 60, 250, 189),
        QRect(1000, 500, 120, 91), QRect(-30, -20, 64, 48), QRect(400, 300, 20, 15)}) {
    frame.fill(Qt::magenta);
    draw(image);
    expectThePicture(image);
    makeAll();
    turnEventLoop();
    ASSERT_TRUE(tiles.isComplete());
    frame.fill(Qt::magenta);
    draw(image);
    expectThePicture(image);
  }
}

TEST_F(MadeTiles, OnlyWhatIsExposedIsDrawn) {
  frame.fill(Qt::magenta);
  QPainter painter(&frame);
  tiles.draw(painter,
             {.image = {0, 0, 5000, 3784}, .view = frame.rect(), .exposed = {0, 0, 10, 10}});
  EXPECT_NE(frame.pixel(5, 5), QColor(Qt::magenta).rgb());
  EXPECT_EQ(frame.pixel(600, 5), QColor(Qt::magenta).rgb());
  EXPECT_EQ(frame.pixel(5, 300), QColor(Qt::magenta).rgb());
  EXPECT_GT(tasks.count(), 0U);
}

TEST_F(MadeTiles, WithoutAPictureNothingIsDrawnOrMade) {
  ui::MapTiles bare(tasks.executor());
  frame.fill(Qt::magenta);
  QPainter painter(&frame);
  bare.draw(painter, {.image = {0, 0, 500, 378}, .view = frame.rect(), .exposed = frame.rect()});
  EXPECT_FALSE(bare.hasPicture());
  EXPECT_EQ(tasks.count(), 0U);
  EXPECT_EQ(frame.pixel(5, 5), QColor(Qt::magenta).rgb());
}

TEST_F(MadeTiles, ThoseNotBegunWhenTheyGoAreNotMade) {
  auto going = std::make_unique<ui::MapTiles>(tasks.executor());
  going->setPicture(slopingPicture());
  int delivered = 0;
  QObject::connect(going.get(), &ui::MapTiles::tileCame, [&delivered] { ++delivered; });
  QPainter painter(&frame);
  going->draw(painter,
              {.image = {-1400, -900, 5000, 3784}, .view = frame.rect(), .exposed = frame.rect()});
  going.reset();
  makeAll();
  turnEventLoop();
  EXPECT_EQ(delivered, 0);
}

}  // namespace
}  // namespace veyruna::tests
