#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <optional>
#include <vector>

#include "model/executor.h"
#include "ui/controls/press.h"
#include "ui/map/map_layout.h"
#include "ui/map/map_marks.h"
#include "ui/map/map_picture.h"

class QNativeGestureEvent;

namespace veyruna::ui {

class MapTiles;
class TranslucentLabel;

/// The map as it is seen and touched: shows the picture in a given layout with its marks and
/// read-outs, and says what the pointer, the fingers and the arrow keys do there. Knows nothing of
/// zooms, pans and models; positions and translations are points of this widget.
class MapArea final : public QWidget {
  Q_OBJECT

 public:
  /// The picture is read by the executor when the area is first seen; until then, and where there
  /// is none, its background is shown.
  MapArea(PictureSource source, model::Executor executor, QWidget* parent = nullptr);

  void showLayout(const Layout& layout);
  void showMarks(std::vector<MapMark> marks);
  /// The text in the corner; none where it is empty.
  void showReadout(const QString& text);

  /// Whether the picture is there, everything in sight in full quality.
  [[nodiscard]] bool isComplete() const;

 Q_SIGNALS:
  void resized(QSizeF size);
  void pointerMoved(QPointF position);
  void pointerLeft();
  void clicked(QPointF position);
  /// From the fifth point of movement on; the translation since the button was pressed.
  void dragMoved(QPointF translation);
  void dragEnded(QPointF translation);
  /// From a hundredth of a change on; the magnification since the fingers were put down.
  void pinchMoved(double magnification);
  void pinchEnded(double magnification);
  /// A drag or pinch was broken off; nothing of it stays.
  void gesturesCancelled();
  void panRequested(QPointF translation);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void readPicture();
  void takePicture(const std::shared_ptr<const MapPicture>& picture);
  void repaintTile(QRect area);
  void drawMap(QPainter& painter, const QRectF& exposed);
  bool pinch(const QNativeGestureEvent& event);
  void point(QPointF position);
  void leave();
  void showNameUnderPointer();
  void cancelGestures();

  PictureSource source_;
  model::Executor executor_;
  MapTiles* tiles_;
  TranslucentLabel* readout_;
  TranslucentLabel* placeName_;
  Layout shown_;
  bool isDrawn_ = false;  ///< as it is to be shown now
  std::vector<MapMark> marks_;
  MarkStamps stamps_;
  bool hasAskedForPicture_ = false;

  std::optional<QPointF> pointer_;
  Press press_;
  double magnification_ = 1.0;
  bool isPinching_ = false;
};

}  // namespace veyruna::ui
