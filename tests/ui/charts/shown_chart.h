#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <array>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "astro/angle.h"
#include "ui/charts/chart_views.h"

namespace veyruna::tests {

/// A moment and place, and which of its charts.
struct Sky {
  documents::Document chart;
  astro::Observer observer;
};

inline std::ostream& operator<<(std::ostream& stream, const Sky& sky) {
  return stream << documents::entryOf(sky.chart).heading << " of " << sky.observer.baseTime;
}

/// Ten charts: both of five skies, from the equator to the far north and south.
inline std::array<Sky, 10> tenSkies() {
  using documents::Document;
  constexpr double degree = astro::pi / 180.0;
  constexpr std::array<astro::Observer, 5> observers = {{
      {.baseTime = 259200.0, .latitude = 40.5 * degree, .longitude = -20.9 * degree},
      {.baseTime = 12345.7, .latitude = 0.0, .longitude = 0.0},
      {.baseTime = 400000.25, .latitude = -35.0 * degree, .longitude = 120.0 * degree},
      {.baseTime = 77.8, .latitude = 66.0 * degree, .longitude = 25.0 * degree},
      {.baseTime = 650001.4, .latitude = -80.0 * degree, .longitude = -170.0 * degree},
  }};
  std::array<Sky, 10> skies{};
  for (std::size_t i = 0; i < skies.size(); ++i) {
    skies[i] = {i % 2 == 0 ? Document::starMap : Document::horoscope, observers[i / 2]};
  }
  return skies;
}

/// A chart of the window, alone, shown in a widget of its own.
struct ShownChart {
  std::optional<astro::Observer> observer;
  ui::ChartSelection selection;
  std::unique_ptr<ui::ChartView> chart;

  explicit ShownChart(const Sky& sky, QSize size = {960, 640}) : observer(sky.observer) {
    const auto shown = [this] { return observer; };
    if (sky.chart == documents::Document::starMap) {
      chart = std::make_unique<ui::StarMapView>(shown, selection);
    } else {
      chart = std::make_unique<ui::HoroscopeView>(shown, selection);
    }
    chart->setAccessibleDescription(QStringLiteral("A chart"));
    chart->resize(size);
    look(sky.observer, sky.chart);
    static_cast<QWidget&>(*chart).show();
    chart->activateWindow();
    QCoreApplication::processEvents();
  }

  /// Shows another moment or place, as a calculation does.
  void look(const astro::Observer& from, documents::Document document) {
    observer = from;
    chart->show(QString::fromStdString(documents::textOf(document, from)));
  }

  /// The point of the view where a point of the chart is shown.
  [[nodiscard]] QPointF at(charts::PagePoint point) const {
    return chart->chartToView().map(QPointF(point.x, point.y));
  }

  /// Drags the enlarged chart until the point is in sight.
  void bringIntoSight(charts::PagePoint point) {
    chart->setFraming(ui::centredOn(chart->framing(), {point.x, point.y}, chart->stage()));
  }

  /// Moves the pointer there, no button down.
  void pointAt(QPointF position) {
    QMouseEvent move(QEvent::MouseMove, position, chart->mapToGlobal(position), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(chart.get(), &move);
  }

  void leave() {
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(chart.get(), &leave);
  }

  void wheel(QPointF position, int notches, Qt::KeyboardModifiers modifiers) {
    QWheelEvent turned(position, chart->mapToGlobal(position), QPoint(), QPoint(0, 120 * notches),
                       Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(chart.get(), &turned);
  }

  void press(Qt::Key key) { QTest::keyClick(chart.get(), key); }

  /// The mark that is called so; the test has failed where there is none.
  const charts::ChartMark& mark(charts::MarkKind kind, std::size_t ordinal) {
    const charts::ChartMark* const found = chart->marks().find({kind, ordinal});
    if (found == nullptr) {
      throw std::runtime_error("no such mark is shown");
    }
    return *found;
  }
};

}  // namespace veyruna::tests
