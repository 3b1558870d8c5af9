#pragma once

#include <QColor>
#include <QPainter>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <utility>
#include <vector>

#include "tests/model/fakes.h"
#include "ui/map/map_tiles.h"

namespace veyruna::tests {

/// Red tells how far to the right, green how far down.
inline std::shared_ptr<const ui::MapPicture> slopingPicture() {
  QImage image(510, 386, QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      image.setPixel(x, y, qRgb(x / 2, y / 2, 77));
    }
  }
  return std::make_shared<const ui::MapPicture>(image);
}

/// Tiles of that picture, shown in a frame and made when the test says so.
struct MadeTiles : testing::Test {
  HeldTasks tasks;
  ui::MapTiles tiles{tasks.executor()};
  std::vector<QRect> came;
  QImage frame{QSize(1300, 700), QImage::Format_RGB32};

  MadeTiles() {
    tiles.setPicture(slopingPicture());
    QObject::connect(&tiles, &ui::MapTiles::tileCame, [this](QRect area) { came.push_back(area); });
  }

  void draw(const QRect& image) { draw(tiles, image); }
  void draw(ui::MapTiles& some, const QRect& image) {
    QPainter painter(&frame);
    some.draw(painter, {.image = image, .view = frame.rect(), .exposed = frame.rect()});
  }
  void makeAll() {
    while (tasks.count() > 0) {
      tasks.runNext();
    }
  }

  /// The tiles of a picture that the view touches; with `rim`, those that touch one of them too.
  static std::vector<QRect> expected(const QRect& image, const QRect& view, bool rim) {
    std::vector<QRect> all;
    std::vector<QRect> seen;
    for (int y = 0; y < image.height(); y += 256) {
      for (int x = 0; x < image.width(); x += 512) {
        all.push_back(QRect(x, y, 512, 256) & QRect(QPoint(), image.size()));
        if (all.back().translated(image.topLeft()).intersects(view)) {
          seen.push_back(all.back());
        }
      }
    }
    const auto touchesSeen = [&seen](const QRect& tile) {
      return std::ranges::any_of(seen, [&tile](const QRect& other) {
        return tile.adjusted(-1, -1, 1, 1).intersects(other);
      });
    };
    if (rim) {
      std::erase_if(all, [&](const QRect& tile) { return !touchesSeen(tile); });
    }
    return rim ? all : seen;
  }

  static std::vector<QRect> sorted(std::vector<QRect> areas) {
    std::ranges::sort(areas, [](const QRect& a, const QRect& b) {
      return std::pair(a.y(), a.x()) < std::pair(b.y(), b.x());
    });
    return areas;
  }

  /// Red and green tell the place, as the picture's colours do, within a level or two.
  void expectThePicture(const QRect& image) const {
    for (int y = 0; y < frame.height(); y += 3) {
      for (int x = 0; x < frame.width(); x += 3) {
        if (!image.contains(x, y)) {
          ASSERT_EQ(frame.pixel(x, y), QColor(Qt::magenta).rgb()) << x << ' ' << y;
          continue;
        }
        const double across = (x + 0.5 - image.x()) / image.width() * 510.0 - 0.5;
        const double down = (y + 0.5 - image.y()) / image.height() * 386.0 - 0.5;
        const QRgb seen = frame.pixel(x, y);
        const double coarseness = std::max(1.0, 510.0 / image.width());
        ASSERT_NEAR(qRed(seen), across / 2.0, 1.0 + coarseness) << x << ' ' << y;
        ASSERT_NEAR(qGreen(seen), down / 2.0, 1.0 + coarseness) << x << ' ' << y;
        ASSERT_NEAR(qBlue(seen), 77, 1) << x << ' ' << y;
      }
    }
  }
};

}  // namespace veyruna::tests
