#pragma once

#include <optional>
#include <vector>

#include "ui/charts/svg_view.h"
#include "ui/controls/press.h"

class QNativeGestureEvent;

namespace veyruna::ui {

/// A chart that is enlarged, moved and fitted: Ctrl and the wheel or a pinch about the pointer, the
/// keys + − 0, a drag, a double click on one of its parts and again to go back. A wheel alone does
/// nothing.
class ZoomedView : public SVGView {
  Q_OBJECT

 public:
  /// `parts`: what a double click fits into the view, in the chart's units; where none of them lies
  /// it is the whole chart.
  ZoomedView(const QString& accessibleName, std::vector<QRectF> parts, QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

  /// The left button went down and up on one point.
  virtual void clicked(QPointF /*position*/) {}

  /// What the keys enlarge about.
  [[nodiscard]] virtual QPointF keyAnchor() const { return QRectF(rect()).center(); }

  [[nodiscard]] bool isDragging() const { return press_.isDrag(); }

 private:
  void zoomBy(double factor, QPointF anchor);
  bool pinch(const QNativeGestureEvent& event);
  [[nodiscard]] QRectF partAt(QPointF position) const;
  void endDrag();

  std::vector<QRectF> parts_;
  std::optional<ChartFraming> beforeFit_;  ///< where the next double click goes back to
  std::optional<ChartFraming> fit_;        ///< the framing that the last one led to
  Press press_;
  ChartFraming pressedFraming_;  ///< when the button went down
};

}  // namespace veyruna::ui
