#include "ui/outputs/tab_views.h"

#include <QCoreApplication>
#include <algorithm>
#include <optional>

#include "astro/invariant.h"
#include "ui/charts/chart_views.h"
#include "ui/controls/named.h"
#include "ui/map/map_location_picker_view.h"
#include "ui/outputs/calculated_caption.h"
#include "ui/outputs/planets_view.h"
#include "ui/outputs/tables_view.h"

namespace veyruna::ui {

namespace {

using documents::Document;
using exports::OutputTab;
using model::AstronomyModel;

/// Calls `show` now, and again whenever one of these documents has changed.
template <class Show>
void follow(AstronomyModel& model, QWidget* view, std::initializer_list<Document> documents,
            Show show) {
  const QList<Document> shown(documents);
  QObject::connect(&model, &AstronomyModel::textChanged, view, [shown, show](Document changed) {
    if (shown.contains(changed)) {
      show();
    }
  });
  show();
}

/// A chart, with a description for those who cannot see it; %1 is its moment and place.
QWidget* followingChart(AstronomyModel& model, Document document, ChartView* view,
                        const QString& description) {
  follow(model, view, {document}, [&model, view, document] { view->show(model.text(document)); });
  const auto describe = [&model, view, description] {
    const QString caption = calculatedCaption(model);
    view->setAccessibleDescription(caption.isEmpty() ? QString() : description.arg(caption));
  };
  QObject::connect(&model, &AstronomyModel::published, view, describe);
  describe();
  return view;
}

/// Whose sky the charts show: that of the last calculation.
ShownMarks::ObserverSource observerOfShown(const AstronomyModel& model) {
  return [&model]() -> std::optional<astro::Observer> {
    if (!model.lastHoroscopeBasetime()) {
      return std::nullopt;
    }
    return astro::Observer{.baseTime = *model.lastHoroscopeBasetime(),
                           .latitude = model.lastHoroscopeLatitude(),
                           .longitude = model.lastHoroscopeLongitude()};
  };
}

QWidget* makeStarMap(AstronomyModel& model, ChartSelection& selection) {
  return followingChart(model, Document::starMap,
                        new StarMapView(observerOfShown(model), selection),
                        QCoreApplication::translate("TabViews", "The sky above the horizon, %1"));
}

QWidget* makeHoroscope(AstronomyModel& model, ChartSelection& selection) {
  return followingChart(model, Document::horoscope,
                        new HoroscopeView(observerOfShown(model), selection),
                        QCoreApplication::translate(
                            "TabViews", "The wheel of the ecliptic with its interpretation, %1"));
}

QWidget* makePlanets(AstronomyModel& model, ChartSelection& selection) {
  auto* const view = new PlanetsView(selection);
  const auto show = [&model, view] { view->show(model.positions()); };
  QObject::connect(&model, &AstronomyModel::positionsChanged, view, show);
  show();
  return view;
}

QWidget* makeSunMoon(AstronomyModel& model, ChartSelection& /*selection*/) {
  // Nothing is calculated by it.
  auto* const view = new TablesView([&model](Document moon) {
    const std::optional<double> moment =
        moon == Document::nextFullMoon ? model.nextFullMoonBaseTime() : model.nextNewMoonBaseTime();
    return moment && model.setMoment(*moment);
  });
  follow(model, view, {Document::hourly, Document::monthly},
         [&model, view] { view->show(model.basicTableHourly(), model.basicTableMonthly()); });
  follow(model, view, {Document::nextFullMoon, Document::nextNewMoon},
         [&model, view] { view->showMoons(model.nextFullMoonLabel(), model.nextNewMoonLabel()); });
  return view;
}

QWidget* makePositions(AstronomyModel& model, ChartSelection& /*selection*/) {
  auto* const view = new PositionsView;
  follow(model, view, {Document::daily, Document::yearly},
         [&model, view] { view->show(model.conjunctionDaily(), model.conjunctionYearly()); });
  return view;
}

QWidget* makeLocation(AstronomyModel& model, ChartSelection& /*selection*/) {
  return named(new MapLocationPickerView(model, pictureFile(QStringLiteral(":/tamsorel.jpg"))),
               "locationTab", QCoreApplication::translate("TabViews", "Map"));
}

}  // namespace

constexpr std::array<TabView, exports::outputTabCount> tabViews = {{
    {OutputTab::starMap, "star_map", "star-map.html", makeStarMap},
    {OutputTab::horoscope, "horoscope", "horoscope.html", makeHoroscope},
    {OutputTab::planets, "planets", "tables.html", makePlanets},
    {OutputTab::sunMoon, "sun_moon", "tables.html", makeSunMoon},
    {OutputTab::positions, "positions", "tables.html", makePositions},
    {OutputTab::location, "location", "map.html", makeLocation},
}};

namespace {

constexpr bool everyTabHasItsViewInOrder() {
  for (std::size_t i = 0; i < tabViews.size(); ++i) {
    const auto& [tab, icon, manualPage, make] = tabViews[i];
    if (tab != exports::outputTabs[i] || icon == nullptr || manualPage == nullptr ||
        make == nullptr) {
      return false;
    }
  }
  return true;
}
static_assert(everyTabHasItsViewInOrder());

}  // namespace

const TabView& viewOf(OutputTab tab) {
  const auto row = static_cast<std::size_t>(tab);
  astro::requireInvariant(row < tabViews.size(), "a tab has its view");
  return tabViews[row];
}

QList<documents::Document> documentsSeenIn(OutputTab tab) {
  QList<Document> seen;
  for (const exports::TabSection& section : exports::entryOf(tab).sections) {
    seen.append(section.document);
  }
  if (tab == OutputTab::sunMoon) {
    seen.append({Document::nextFullMoon, Document::nextNewMoon});
  }
  return seen;
}

}  // namespace veyruna::ui
