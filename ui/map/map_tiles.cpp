#include "ui/map/map_tiles.h"

#include <QCoreApplication>
#include <QPainter>
#include <QThread>
#include <algorithm>
#include <deque>
#include <mutex>
#include <utility>

#include "ui/map/map_resample.h"

namespace veyruna::ui {

namespace {

constexpr int tileBytes = MapTiles::tileSize.width() * MapTiles::tileSize.height() * 4;
constexpr std::size_t mostTiles = MapTiles::budgetBytes / tileBytes;

/// One thread of the machine stays free for what else the person asks for.
int mostWorkers() {
  return std::max(1, QThread::idealThreadCount() - 1);
}

/// The columns and rows of tiles that a part of the picture touches.
QRect tilesTouching(const QRect& part) {
  constexpr int width = MapTiles::tileSize.width();
  constexpr int height = MapTiles::tileSize.height();
  return {QPoint(part.left() / width, part.top() / height),
          QPoint(part.right() / width, part.bottom() / height)};
}

QSizeF scaleOf(const QSize& picture, QSizeF shown) {
  return {shown.width() / picture.width(), shown.height() / picture.height()};
}

}  // namespace

/// What is still to be made. Shared with the workers, which look here before each tile: what has
/// gone out of sight is never begun. Tiles no longer wanted are drawn over, so that the memory for
/// all of them is taken once.
struct MapTiles::Order {
  std::mutex mutex;
  std::deque<Key> waiting;
  std::vector<Key> begun;  ///< and not yet delivered
  std::vector<QImage> spare;
  int workers = 0;
};

MapTiles::MapTiles(model::Executor executor, QObject* parent)
    : QObject(parent), executor_(std::move(executor)), order_(std::make_shared<Order>()) {}

MapTiles::~MapTiles() {
  const std::scoped_lock locked(order_->mutex);
  order_->waiting.clear();
}

void MapTiles::setPicture(std::shared_ptr<const MapPicture> picture) {
  picture_ = std::move(picture);
}

QRect MapTiles::areaOf(const Key& key) {
  return QRect(QPoint(key.column * tileSize.width(), key.row * tileSize.height()), tileSize) &
         QRect(0, 0, key.imageWidth, key.imageHeight);
}

std::vector<MapTiles::Key> MapTiles::keysAround(const QRect& image, const QRect& view) const {
  const QRect whole = QRect(QPoint(), image.size());
  const QRect inSight = (view & image).translated(-image.topLeft());
  if (inSight.isEmpty()) {
    return {};
  }
  const QRect seen = tilesTouching(inSight);
  const QRect all = tilesTouching(whole) & seen.adjusted(-1, -1, 1, 1);
  std::vector<Key> keys;
  for (int row = all.top(); row <= all.bottom(); ++row) {
    for (int column = all.left(); column <= all.right(); ++column) {
      keys.push_back({image.width(), image.height(), column, row});
    }
  }
  std::stable_partition(keys.begin(), keys.end(),
                        [&seen](const Key& key) { return seen.contains(key.column, key.row); });
  keys.resize(std::min(keys.size(), mostTiles));
  return keys;
}

void MapTiles::draw(QPainter& painter, const Frame& frame) {
  const auto& [image, view, exposed] = frame;
  const QRect part = (exposed & image).translated(-image.topLeft());
  if (!picture_) {
    return;
  }
  if (!part.isEmpty()) {
    const QRect touched = tilesTouching(part);
    for (int row = touched.top(); row <= touched.bottom(); ++row) {
      for (int column = touched.left(); column <= touched.right(); ++column) {
        const Key key{image.width(), image.height(), column, row};
        const QRect target = areaOf(key).translated(image.topLeft());
        const auto tile = tiles_.find(key);
        if (tile != tiles_.end()) {
          painter.drawImage(target.topLeft(), tile->second, QRect(QPoint(), target.size()));
        } else {
          drawRough(painter, key, target);
        }
      }
    }
  }
  want(keysAround(image, view));
}

void MapTiles::drawRough(QPainter& painter, const Key& key, const QRect& target) const {
  const QSizeF scale = scaleOf(picture_->size(), QSizeF(key.imageWidth, key.imageHeight));
  const int level = picture_->levelFor(scale.width());
  const QSizeF levelScale = scale * (1 << level);
  const QRectF area = areaOf(key);
  const QRectF source(area.x() / levelScale.width(), area.y() / levelScale.height(),
                      area.width() / levelScale.width(), area.height() / levelScale.height());
  painter.drawImage(QRectF(target), picture_->level(level), source);
}

void MapTiles::want(std::vector<Key> keys) {
  if (keys == wanted_) {
    return;
  }
  wanted_ = std::move(keys);
  const auto isWanted = [this](const Key& key) {
    return std::ranges::find(wanted_, key) != wanted_.end();
  };
  std::vector<QImage> spare;
  std::erase_if(tiles_, [&](const auto& tile) {
    const bool isSpare = !isWanted(tile.first);
    if (isSpare) {
      spare.push_back(tile.second);
    }
    return isSpare;
  });

  int newWorkers = 0;
  {
    const std::scoped_lock locked(order_->mutex);
    order_->spare.insert(order_->spare.end(), spare.begin(), spare.end());
    order_->waiting.clear();
    for (const Key& key : wanted_) {
      if (!tiles_.contains(key) && std::ranges::find(order_->begun, key) == order_->begun.end()) {
        order_->waiting.push_back(key);
      }
    }
    newWorkers =
        std::min(mostWorkers() - order_->workers, static_cast<int>(order_->waiting.size()));
    order_->workers += std::max(0, newWorkers);
  }
  for (int worker = 0; worker < newWorkers; ++worker) {
    executor_([tiles = QPointer<MapTiles>(this), order = order_, picture = picture_] {
      work(*order, *picture, tiles);
    });
  }
}

void MapTiles::work(Order& order, const MapPicture& picture, const QPointer<MapTiles>& tiles) {
  Resampler resampler;
  while (true) {
    Key key;
    QImage tile;
    {
      const std::scoped_lock locked(order.mutex);
      if (order.waiting.empty()) {
        --order.workers;
        return;
      }
      key = order.waiting.front();
      order.waiting.pop_front();
      order.begun.push_back(key);
      if (!order.spare.empty()) {
        tile = std::move(order.spare.back());
        order.spare.pop_back();
      }
    }
    if (tile.isNull()) {
      tile = QImage(tileSize, QImage::Format_RGB32);
    }
    const QSizeF scale = scaleOf(picture.size(), QSizeF(key.imageWidth, key.imageHeight));
    const int level = picture.levelFor(scale.width());
    const QRect area = areaOf(key);
    resampler.draw(picture.level(level), scale * (1 << level), area.topLeft(), area.size(), tile);
    QMetaObject::invokeMethod(
        qApp,
        [tiles, key, tile] {
          if (tiles) {
            tiles->take(key, tile);
          }
        },
        Qt::QueuedConnection);
  }
}

void MapTiles::take(const Key& key, const QImage& tile) {
  const bool isWanted = std::ranges::find(wanted_, key) != wanted_.end();
  {
    const std::scoped_lock locked(order_->mutex);
    std::erase(order_->begun, key);
    if (!isWanted) {
      order_->spare.push_back(tile);
    }
  }
  if (isWanted) {
    tiles_[key] = tile;
    Q_EMIT tileCame(areaOf(key));
  }
}

}  // namespace veyruna::ui
