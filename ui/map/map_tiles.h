#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "model/executor.h"
#include "ui/map/map_picture.h"

class QPainter;

namespace veyruna::ui {

/// The map at the scale at which it is shown, in tiles that wait finished to be copied to
/// the screen. What is in sight, and one tile around it, is drawn with high-quality interpolation
/// by the executor; until a tile has come, its part of the picture is shown in rough pixels. Holds
/// at most `budgetBytes` of tiles: where a screen is larger than that, its rim stays rough. All
/// measures are device pixels, so that a tile is copied pixel by pixel at every scale factor.
class MapTiles final : public QObject {
  Q_OBJECT

 public:
  /// Pixels; wide, so that a frame is copied in long rows.
  static constexpr QSize tileSize{512, 256};
  static constexpr int budgetBytes = 38'000'000;

  explicit MapTiles(model::Executor executor, QObject* parent = nullptr);
  ~MapTiles() override;

  /// Never null.
  void setPicture(std::shared_ptr<const MapPicture> picture);
  [[nodiscard]] bool hasPicture() const { return picture_ != nullptr; }

  /// A frame, in device pixels.
  struct Frame {
    QRect image;    ///< where the whole picture lies
    QRect view;     ///< the part of the device in sight
    QRect exposed;  ///< what is to be painted
  };

  /// Draws what of the picture is exposed and has the tiles made that the view lacks. The painter
  /// counts in device pixels. Draws nothing before there is a picture.
  void draw(QPainter& painter, const Frame& frame);

  /// Whether what was last in sight, and the tiles around it, is all there in full quality.
  [[nodiscard]] bool isComplete() const { return tiles_.size() == wanted_.size(); }

 Q_SIGNALS:
  /// A tile is there; `area` counts from the picture's top-left corner.
  void tileCame(QRect area);

 private:
  /// One tile of the picture at one size.
  struct Key {
    int imageWidth = 0;
    int imageHeight = 0;
    int column = 0;
    int row = 0;

    friend bool operator==(const Key&, const Key&) = default;
    friend bool operator<(const Key& a, const Key& b) {
      return std::tie(a.imageWidth, a.imageHeight, a.column, a.row) <
             std::tie(b.imageWidth, b.imageHeight, b.column, b.row);
    }
  };
  struct Order;

  static QRect areaOf(const Key& key);
  static void work(Order& order, const MapPicture& picture, const QPointer<MapTiles>& tiles);
  [[nodiscard]] std::vector<Key> keysAround(const QRect& image, const QRect& view) const;
  void drawRough(QPainter& painter, const Key& key, const QRect& target) const;
  void want(std::vector<Key> keys);
  void take(const Key& key, const QImage& tile);

  model::Executor executor_;
  std::shared_ptr<const MapPicture> picture_;
  std::vector<Key> wanted_;  ///< those in sight first
  std::map<Key, QImage> tiles_;
  std::shared_ptr<Order> order_;
};

}  // namespace veyruna::ui
