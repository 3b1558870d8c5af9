#include "tools/pictures/window_pictures.h"

#include <QAbstractButton>
#include <algorithm>
#include <utility>

#include "astro/invariant.h"
#include "charts/chart_mark.h"
#include "ui/charts/chart_view.h"
#include "ui/map/map_area.h"
#include "ui/outputs/tab_views.h"
#include "ui/window/about_view.h"
#include "ui/window/main_view.h"

namespace veyruna::pictures {

namespace {

using exports::OutputTab;

constexpr QSize usualSize(1280, 800);

QString nameOf(const ui::TabView& view) {
  return QStringLiteral("window-") +
         QString::fromLatin1(view.icon).replace(QLatin1Char('_'), QLatin1Char('-'));
}

QString bare(const QString& name) {
  return name + QStringLiteral(".png");
}

/// The evening with which the manual begins; for the horoscope one on which the chords leave the
/// names alone.
Evening eveningFor(OutputTab tab) {
  return eveningOf(tab == OutputTab::horoscope ? "wheel" : "first-tour");
}

/// The window with a tab in front; on the map the pointer has a place read out.
QImage pictureOfTab(QSize size, OutputTab tab) {
  ShownProgram shown(size, eveningFor(tab));
  shown.window().selectTab(tab);
  if (tab == OutputTab::location) {
    auto& map = shown.find<ui::MapArea>("mapArea");
    shown.pictureOf(map);  // has its place by now
    ShownProgram::pointAt(map, QRectF(map.rect()).center());
  }
  return shown.pictureOf(shown.window());
}

/// The star map with the moon pointed at and selected.
Picture pointing() {
  ShownProgram shown({1000, 700}, eveningOf("first-tour"));
  auto& chart = shown.find<ui::ChartView>("starMap");
  shown.pictureOf(chart);
  const std::vector<const charts::ChartMark*>& marks = chart.marks().speaking();
  const auto moon = std::ranges::find(marks, "Ivro", &charts::ChartMark::name);
  astro::requireInvariant(moon != marks.end(), "the moon is up on the evening of the pictures");
  const QPointF there = chart.placeOf(**moon).center();
  ShownProgram::clickAt(chart, there);
  ShownProgram::pointAt(chart, there);
  return {{inManual(QStringLiteral("pointing"))}, shown.pictureOf(chart)};
}

QImage sidebar(QSize size) {
  ShownProgram shown(size, eveningOf("first-tour"));
  return shown.pictureOf(shown.find<QWidget>("sidebar"));
}

/// The bar that moves time.
Picture timeBar() {
  ShownProgram shown({1000, 640}, eveningOf("first-tour"));
  shown.program().time().setOn(true);
  return {{inManual(QStringLiteral("time-bar"))}, shown.pictureOf(shown.find<QWidget>("timeBar"))};
}

}  // namespace

Pictures windowPictures() {
  Pictures all;
  setLook(Look::light);
  for (const ui::TabView& view : ui::tabViews) {
    QStringList files{inManual(nameOf(view))};
    if (view.tab == OutputTab::starMap) {
      files.append(inReadme(QStringLiteral("window")));
    }
    all.push_back({files, pictureOfTab(usualSize, view.tab)});
  }
  all.push_back({{inManual(QStringLiteral("sidebar"))}, sidebar(usualSize)});
  all.push_back(pointing());
  all.push_back(timeBar());
  setLook(Look::dark);
  all.push_back(
      {{inReadme(QStringLiteral("window-dark"))}, pictureOfTab(usualSize, OutputTab::location)});
  return all;
}

Pictures everyView(Look look, QSize size) {
  setLook(look);
  Pictures all;
  for (const ui::TabView& view : ui::tabViews) {
    all.push_back({{bare(nameOf(view))}, pictureOfTab(size, view.tab)});
  }
  all.push_back({{bare(QStringLiteral("sidebar"))}, sidebar(size)});
  // The map enlarged, about its middle: four steps and all of them.
  ShownProgram shown(size, eveningOf("first-tour"));
  shown.window().selectTab(OutputTab::location);
  auto& zoomIn = shown.find<QAbstractButton>("zoomInButton");
  for (const auto& [steps, name] : {std::pair{4, "location-384"}, {4, "location-1200"}}) {
    for (int step = 0; step < steps; ++step) {
      zoomIn.click();
    }
    all.push_back({{bare(QLatin1String(name))}, shown.pictureOf(shown.window())});
  }
  all.push_back({{bare(QStringLiteral("about"))}, shown.pictureOf(*shown.program().openAbout())});
  return all;
}

}  // namespace veyruna::pictures
