#pragma once

#include "ui/outputs/svg_view.h"

namespace veyruna::ui {

/// The star map of the last calculation.
class StarMapView final : public SVGView {
 public:
  explicit StarMapView(const PageEngine& engine) : SVGView(engine, tr("Star map")) {
    setObjectName(QStringLiteral("starMap"));
  }
};

/// The horoscope of the last calculation.
class HoroscopeView final : public SVGView {
 public:
  explicit HoroscopeView(const PageEngine& engine) : SVGView(engine, tr("Horoscope")) {
    setObjectName(QStringLiteral("horoscope"));
  }
};

}  // namespace veyruna::ui
