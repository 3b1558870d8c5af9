#pragma once

#include <QImage>
#include <QWidget>

#include "drawing/picture_painter.h"
#include "ui/charts/chart_framing.h"

namespace veyruna::ui {

/// A chart on white paper, as large as fits into the view, centred; or enlarged, and then as much
/// of it as the view holds. The framing stays from chart to chart and from size to size.
class SVGView : public QWidget {
  Q_OBJECT

 public:
  explicit SVGView(const QString& accessibleName, QWidget* parent = nullptr);

  /// Shows a chart; the same chart again costs nothing. A text that is no chart is said to be none.
  void show(const QString& svg);

  /// The chart as it was given; empty before the first.
  [[nodiscard]] const QString& svg() const { return svg_; }

  /// As it is shown: within what the view's size and the chart allow.
  [[nodiscard]] ChartFraming framing() const { return withinReach(framing_, stage()); }
  void setFraming(const ChartFraming& framing);

  /// From the chart's units to this widget's points.
  [[nodiscard]] QTransform chartToView() const { return toView(framing(), stage()); }

  /// The chart with the view: what framings are worked out from.
  [[nodiscard]] ChartStage stage() const { return {picture_.viewBox, size()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

  /// What lies over the chart: painted anew each time, while the chart is copied as it is.
  virtual void paintOver(QPainter& /*painter*/) {}

  /// Another chart or another framing is shown from now on.
  virtual void pictureChanged() {}

  [[nodiscard]] const drawing::Picture& picture() const { return picture_; }

 private:
  void paintChart();

  QString svg_;
  drawing::Picture picture_;
  QString fault_;  ///< why there is no picture; empty where there is one
  ChartFraming framing_;
  drawing::PicturePainter painter_;
  QImage painted_;  ///< the view as it was painted last; none where something has changed since
};

}  // namespace veyruna::ui
