#pragma once

#include <QImage>
#include <QString>
#include <atomic>
#include <functional>
#include <vector>

namespace veyruna::ui {

/// The way to get the map's picture; called once, away from the interface thread. A null image:
/// there is none.
using PictureSource = std::function<QImage()>;

/// A picture in a file or a resource; none where it cannot be read.
PictureSource pictureFile(const QString& path);

/// The decoded picture with its halvings, so that every scale finds a level at most twice as large
/// as what is shown. Takes 4/3 of the picture's own memory, four bytes a pixel; opaque. Unchanged
/// once made: any thread may read it.
class MapPicture {
 public:
  /// A picture that is not null.
  explicit MapPicture(QImage whole);

  [[nodiscard]] QSize size() const { return levels_.front().size(); }

  /// One pixel of level n stands for exactly 2ⁿ × 2ⁿ of the picture, cut off at its right and
  /// bottom edge.
  [[nodiscard]] const QImage& level(int index) const {
    isMade_.load(std::memory_order_acquire);
    return levels_[static_cast<std::size_t>(index)];
  }

  /// The coarsest level that is still as fine as `scale`, shown pixels to one of the picture.
  [[nodiscard]] int levelFor(double scale) const;

 private:
  std::vector<QImage> levels_;
  /// One thread makes it, others read it: this orders the two for everyone to see, however the
  /// picture is handed on.
  std::atomic<bool> isMade_ = false;
};

}  // namespace veyruna::ui
