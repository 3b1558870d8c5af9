#pragma once

#include "ui/charts/svg_view.h"

namespace veyruna::ui {

/// The star map of the last calculation.
class StarMapView final : public SVGView {
 public:
  StarMapView() : SVGView(tr("Star map")) { setObjectName(QStringLiteral("starMap")); }
};

/// The horoscope of the last calculation.
class HoroscopeView final : public SVGView {
 public:
  HoroscopeView() : SVGView(tr("Horoscope")) { setObjectName(QStringLiteral("horoscope")); }
};

}  // namespace veyruna::ui
