#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

/// Where a chart lies in its view when it is enlarged and moved. Views are measured in points
/// (device-independent pixels) from their top-left corner, charts in their own units.
namespace veyruna::ui {

/// How a person looks at a chart.
struct ChartFraming {
  double zoom = 1.0;         ///< times the size at which the chart just fits, 1 to mostChartZoom
  QPointF middle{0.5, 0.5};  ///< what lies in the view's middle, in shares of the chart's box

  friend bool operator==(const ChartFraming&, const ChartFraming&) = default;
};

inline constexpr double mostChartZoom = 16.0;

/// A chart and the view it is shown in.
struct ChartStage {
  QRectF box;   ///< the chart's
  QSizeF view;  ///< may be empty; a chart then has no place in it
};

/// The framing moved so far that it shows nothing beyond what the whole view shows at zoom 1, and
/// its zoom brought into range. What is no number is the fitted chart.
ChartFraming withinReach(const ChartFraming& framing, const ChartStage& stage);

/// The rectangle of the view that the chart is fitted into and centred in; larger than the view
/// where it is enlarged.
QRectF targetOf(const ChartFraming& framing, const ChartStage& stage);

/// From the chart's units to the view's points.
QTransform toView(const ChartFraming& framing, const ChartStage& stage);

/// Enlarged by a factor, with what lies at `anchor` kept there as far as the reach allows.
ChartFraming zoomedAbout(const ChartFraming& framing, double factor, QPointF anchor,
                         const ChartStage& stage);

/// Moved by points, as a hand moves paper.
ChartFraming draggedBy(const ChartFraming& framing, QPointF translation, const ChartStage& stage);

/// With a part of the chart as large as the view can hold, in its middle.
ChartFraming fittedTo(const QRectF& part, const ChartStage& stage);

/// With a point of the chart in the middle, at the same zoom.
ChartFraming centredOn(const ChartFraming& framing, QPointF point, const ChartStage& stage);

}  // namespace veyruna::ui
