#pragma once

#include <QPointF>
#include <cmath>
#include <optional>

namespace veyruna::ui {

/// The left button held down, and what becomes of it: a click, or from the fifth point of movement
/// on a drag. Positions are points of the widget.
class Press {
 public:
  Press() = default;
  explicit Press(QPointF position) : begun_(position) {}

  [[nodiscard]] bool isDown() const { return begun_.has_value(); }
  [[nodiscard]] bool isDrag() const { return isDrag_; }

  /// Whether it becomes a drag now that the pointer has come here.
  bool becomesDrag(QPointF position) {
    constexpr double threshold = 5.0;  // points
    const QPointF way = translationTo(position);
    const bool becomes = !isDrag_ && std::hypot(way.x(), way.y()) >= threshold;
    isDrag_ = isDrag_ || becomes;
    return becomes;
  }

  /// From where the button went down; nothing where it is up.
  [[nodiscard]] QPointF translationTo(QPointF position) const {
    return begun_ ? position - *begun_ : QPointF();
  }

 private:
  std::optional<QPointF> begun_;
  bool isDrag_ = false;
};

}  // namespace veyruna::ui
