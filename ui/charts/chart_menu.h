#pragma once

#include <QPoint>

namespace veyruna::ui {

class ChartView;

/// Opens what can be done with a chart as a menu, named "chartMenu", at a point of the screen.
void openChartMenu(ChartView& chart, QPoint at);

}  // namespace veyruna::ui
