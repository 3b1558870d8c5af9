#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <optional>

#include "model/astronomy_model.h"
#include "ui/map/map_layout.h"
#include "ui/map/map_picture.h"
#include "ui/map/scroll_monitor.h"

class QHBoxLayout;
class QLabel;

namespace veyruna::ui {

class MapArea;

/// The map of Tamsorel with its zoom controls: a click inside the mapped area becomes the model's
/// manual place. Calculates nothing. Zoom and pan live as long as the view; the model may go
/// before.
class MapLocationPickerView final : public QWidget {
  Q_OBJECT

 public:
  static constexpr double minZoom = 1.0;
  static constexpr double maxZoom = 12.0;

  /// `picture` is called once, by the executor, when the view is first seen.
  MapLocationPickerView(model::AstronomyModel& model, PictureSource picture,
                        model::Executor executor = model::poolExecutor(),
                        QWidget* parent = nullptr);
  ~MapLocationPickerView() override;

  [[nodiscard]] double zoom() const { return framing_.zoom; }
  [[nodiscard]] QPointF pan() const { return framing_.pan; }  ///< points from the view's centre
  /// Where the picture lies in the map area now, pinched and dragged as it stands.
  [[nodiscard]] Layout mapLayout() const;
  /// The place under the pointer; nothing beside the map.
  [[nodiscard]] std::optional<MapPlace> hover() const { return hover_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;  ///< the map itself gets it
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QHBoxLayout* makeControls();
  void addShortcuts();
  void followArea();
  void followModel();

  void zoomBy(double factor);
  void zoomByScrolling(double scrollingDelta);
  void reset();
  void pickAt(QPointF point);
  void setFraming(const Framing& framing);
  void showLayout();
  void showHover();
  void showMarks();

  QPointer<model::AstronomyModel> model_;
  Framing framing_;  ///< zoom and pan at rest
  double pinchDelta_ = 1.0;
  QPointF dragDelta_;
  std::optional<MapPlace> hover_;
  std::optional<QPointF> lastHoverLocation_;
  QSizeF lastViewSize_{0.0, 0.0};
  std::unique_ptr<ScrollMonitor> scrollMonitor_;

  QLabel* zoomReadout_ = nullptr;
  MapArea* area_;
};

}  // namespace veyruna::ui
