// What an answer to the pointer costs on a chart of 900 × 900 and of 1800 × 1800 on the software
// renderer: from the event to the finished pixels, at zooms from 1 to 16; and a frame of its own of
// the same chart, enlarged as far.
#include <QApplication>
#include <QMouseEvent>
#include <benchmark/benchmark.h>
#include <optional>
#include <string>

#include "ui/charts/chart_views.h"

namespace veyruna {
namespace {

using documents::Document;

/// A chart of the first start as it stands in a window of so many pixels each way.
class ShownChart {
 public:
  explicit ShownChart(int side) : chart_([this] { return observer_; }, selection_) {
    chart_.setAttribute(Qt::WA_DontShowOnScreen);
    chart_.resize(side, side);
    chart_.show(QString::fromStdString(documents::textOf(Document::horoscope, *observer_)));
    static_cast<QWidget&>(chart_).show();
  }

  void zoomTo(double zoom) { chart_.setFraming({zoom, {0.25, 0.5}}); }

  void pointAt(QPointF position) {
    QMouseEvent move(QEvent::MouseMove, position, position, Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&chart_, &move);
  }

  /// Paints what waits to be painted, into the window's own store.
  static void paint() { QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest); }

  /// As a calculation does that leads to another moment.
  void passTime() {
    observer_ = observer_->at(observer_->baseTime + 0.01);
    chart_.show(QString::fromStdString(documents::textOf(Document::horoscope, *observer_)));
  }

 private:
  std::optional<astro::Observer> observer_ = astro::Observer{259200.25, 0.7, -0.36};
  ui::ChartSelection selection_;
  ui::HoroscopeView chart_;
};

/// Where the pointer wanders.
QPointF wandering(int side, int step) {
  return {static_cast<double>((step * 37) % side), static_cast<double>((step * 61) % side)};
}

void readOut(benchmark::State& state, int side, double zoom) {
  ShownChart chart(side);
  chart.zoomTo(zoom);
  ShownChart::paint();
  int step = 0;
  for ([[maybe_unused]] auto each : state) {
    chart.pointAt(wandering(side, ++step));
    ShownChart::paint();
  }
}

/// The first answer after the sky has moved: what is where is worked out anew.
void firstReadOut(benchmark::State& state, int side, double zoom) {
  ShownChart chart(side);
  chart.zoomTo(zoom);
  int step = 0;
  for ([[maybe_unused]] auto each : state) {
    state.PauseTiming();
    chart.pointAt({-1.0, -1.0});
    chart.passTime();
    ShownChart::paint();
    state.ResumeTiming();
    chart.pointAt(wandering(side, ++step));
    ShownChart::paint();
  }
}

void frame(benchmark::State& state, int side, double zoom) {
  ShownChart chart(side);
  double off = 0.0;
  for ([[maybe_unused]] auto each : state) {
    off = off > 0.01 ? 0.0 : off + 1e-4;
    chart.zoomTo(zoom + off);
    ShownChart::paint();
  }
}

void registerAll() {
  for (const int side : {900, 1800}) {
    for (const double zoom : {1.0, 4.0, 16.0}) {
      const std::string at =
          "/" + std::to_string(side) + "/" + std::to_string(static_cast<int>(zoom));
      for (const auto& [name, run] :
           {std::pair("readout", &readOut), {"first", &firstReadOut}, {"frame", &frame}}) {
        benchmark::RegisterBenchmark((name + at).c_str(), run, side, zoom)
            ->Unit(benchmark::kMicrosecond);
      }
    }
  }
}

}  // namespace
}  // namespace veyruna

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  veyruna::registerAll();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
