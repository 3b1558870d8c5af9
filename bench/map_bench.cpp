// What a frame of the map costs for a view of 1600 × 1000 on the software renderer, beside a plain
// copy of as many pixels, at every zoom a person reaches by steps of 1.4.
#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "model/city_preset.h"
#include "model/first_places.h"
#include "ui/map/map_area.h"

namespace veyruna {
namespace {

constexpr QSize viewSize(1600, 1000);

QImage frameBuffer() {
  QImage frame(viewSize, QImage::Format_RGB32);
  frame.fill(Qt::white);
  return frame;
}

/// As large as the map and with detail in every pixel.
QImage standIn() {
  QImage picture(4316, 3266, QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y) {
    auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      row[x] = qRgb((x * y) & 255, (x ^ y) & 255, (x + y) & 255);
    }
  }
  return picture;
}

/// The map as it stands when a person looks at it: the places of a first start, the pointer over
/// one of them. What it hands to its executor waits to be run.
class ShownMap {
 public:
  ShownMap()
      : area_(standIn,
              [tasks = tasks_](std::function<void()> task) { tasks->push_back(std::move(task)); }) {
    std::vector<ui::MapMark> marks;
    for (const model::CityPreset& city : model::initialCities(&QUuid::createUuid)) {
      marks.push_back({{city.latitude, city.longitude}, city.name, marks.empty()});
    }
    area_.showMarks(marks);
    area_.showReadout(QStringLiteral("31.415° N   2.718° E"));
    area_.setAttribute(Qt::WA_DontShowOnScreen);
    area_.resize(viewSize);
    area_.show();
    finish();
  }

  void zoomTo(double zoom) { area_.showLayout(ui::layoutOf(viewSize, {zoom, {}})); }

  void draw(QImage& frame) {
    area_.render(&frame, QPoint(), QRegion(), QWidget::RenderFlags(QWidget::DrawChildren));
  }

  /// Runs whatever waits: the picture, then the tiles.
  void finish() {
    while (!tasks_->empty()) {
      const std::function<void()> task = std::move(tasks_->front());
      tasks_->pop_front();
      task();
      QCoreApplication::processEvents();
    }
  }

  [[nodiscard]] bool isComplete() const { return area_.isComplete(); }

 private:
  std::shared_ptr<std::deque<std::function<void()>>> tasks_ =
      std::make_shared<std::deque<std::function<void()>>>();
  ui::MapArea area_;
};

ShownMap& theMap() {
  static auto* const map = new ShownMap;  // goes with the process, after the application
  return *map;
}

void copyOfAsManyPixels(benchmark::State& state) {
  const QImage source = frameBuffer();
  QImage frame = frameBuffer();
  for ([[maybe_unused]] const auto run : state) {
    QPainter(&frame).drawImage(0, 0, source);
    benchmark::ClobberMemory();
  }
}

/// A frame while the zoom stays: a hover, a drag, a repaint.
void steadyFrame(benchmark::State& state, double zoom) {
  QImage frame = frameBuffer();
  theMap().zoomTo(zoom);
  theMap().draw(frame);
  theMap().finish();
  if (!theMap().isComplete()) {
    state.SkipWithError("the tiles did not come");
    return;
  }
  for ([[maybe_unused]] const auto run : state) {
    theMap().draw(frame);
    benchmark::ClobberMemory();
  }
}

/// The frame right after a zoom step, or after the map was thrown farther than its margin: nothing
/// is there at this scale yet.
void firstFrame(benchmark::State& state, double zoom) {
  QImage frame = frameBuffer();
  for ([[maybe_unused]] const auto run : state) {
    state.PauseTiming();
    theMap().zoomTo(zoom * 1.01);
    theMap().draw(frame);
    theMap().finish();
    state.ResumeTiming();
    theMap().zoomTo(zoom);
    theMap().draw(frame);
  }
  theMap().finish();
}

/// From the first frame to full quality, one tile around included, on one worker.
void sharpening(benchmark::State& state, double zoom) {
  QImage frame = frameBuffer();
  for ([[maybe_unused]] const auto run : state) {
    state.PauseTiming();
    theMap().zoomTo(zoom * 1.01);
    theMap().draw(frame);
    theMap().finish();
    theMap().zoomTo(zoom);
    theMap().draw(frame);
    state.ResumeTiming();
    theMap().finish();
  }
}

void registerAll() {
  constexpr int fewRuns = 20;  // before each, the map is drawn at another zoom, which takes longer
  benchmark::RegisterBenchmark("copy", copyOfAsManyPixels)->Unit(benchmark::kMicrosecond);
  for (double zoom = 1.0;; zoom = std::min(zoom * 1.4, 12.0)) {
    const std::string at = "/" + std::to_string(static_cast<int>(zoom * 100.0));
    benchmark::RegisterBenchmark(("frame" + at).c_str(), steadyFrame, zoom)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark(("first" + at).c_str(), firstFrame, zoom)
        ->Iterations(fewRuns)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark(("sharpening" + at).c_str(), sharpening, zoom)
        ->Iterations(fewRuns)
        ->Unit(benchmark::kMicrosecond);
    if (zoom >= 12.0) {
      return;
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
