#pragma once

#include "ui/charts/chart_view.h"

namespace veyruna::ui {

/// The star map of the last calculation.
class StarMapView final : public ChartView {
 public:
  StarMapView(const ShownMarks::ObserverSource& observerOfShown, ChartSelection& selection)
      : ChartView({documents::Document::starMap, "starMap", tr("Star map"), {}}, observerOfShown,
                  selection) {}
};

/// The horoscope of the last calculation.
class HoroscopeView final : public ChartView {
 public:
  HoroscopeView(const ShownMarks::ObserverSource& observerOfShown, ChartSelection& selection)
      : ChartView({documents::Document::horoscope, "horoscope", tr("Horoscope"), {panel, wheel}},
                  observerOfShown, selection) {}

 private:
  static constexpr QRectF wheel{-10.0, -10.0, 380.0, 380.0};
  static constexpr QRectF panel{396.0, -10.0, 308.0, 376.0};
};

}  // namespace veyruna::ui
