#include "ui/outputs/detailed_view.h"

#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "ui/controls/coordinates_text.h"
#include "ui/controls/named.h"
#include "ui/map/map_location_picker_view.h"
#include "ui/outputs/chart_views.h"
#include "ui/outputs/planets_view.h"
#include "ui/outputs/tables_view.h"

namespace veyruna::ui {

namespace {

using model::AstronomyModel;

/// The name of the saved place that lies exactly here, and where that is.
QString placeText(const AstronomyModel& model, double latitude, double longitude) {
  QString name;
  for (const model::CityPreset& city : model.cities()) {
    if (city.id != model::manualCityID() && city.latitude == latitude &&
        city.longitude == longitude) {
      constexpr qsizetype longest = 40;  // characters; a longer name is cut
      name =
          (city.name.size() > longest ? city.name.left(longest) + QStringLiteral("…") : city.name) +
          QStringLiteral("   ");
    }
  }
  return name + coordinatesText(latitude, longitude);
}

}  // namespace

DetailedView::DetailedView(AstronomyModel& model, const PageEngine& engine, QWidget* parent)
    : QWidget(parent),
      model_(model),
      caption_(named(new QLabel, "caption", tr("Moment and place of what is shown"))),
      tabs_(new QStackedWidget),
      starMap_(new StarMapView(engine)),
      horoscope_(new HoroscopeView(engine)),
      planets_(new PlanetsView),
      sunMoon_(new TablesView),
      positions_(new PositionsView) {
  caption_->setAlignment(Qt::AlignCenter);
  caption_->setWordWrap(true);
  caption_->setTextFormat(Qt::PlainText);
  caption_->setMinimumWidth(1);  // no name makes the window wider
  caption_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(caption_);
  column->addWidget(tabs_, 1);
  addTabs();
  followModel();
}

void DetailedView::addTabs() {
  auto* const map =
      named(new MapLocationPickerView(model_, pictureFile(QStringLiteral(":/tamsorel.jpg"))),
            "locationTab", tr("Map"));
  for (QWidget* const tab : {static_cast<QWidget*>(starMap_), static_cast<QWidget*>(horoscope_),
                             static_cast<QWidget*>(planets_), static_cast<QWidget*>(sunMoon_),
                             static_cast<QWidget*>(positions_), static_cast<QWidget*>(map)}) {
    tabs_->addWidget(tab);
  }
}

void DetailedView::followModel() {
  const auto showTables = [this] {
    sunMoon_->show(model_.basicTableHourly(), model_.basicTableMonthly());
    positions_->show(model_.conjunctionDaily(), model_.conjunctionYearly());
  };
  const auto showMoons = [this] {
    sunMoon_->showMoons(model_.nextFullMoonLabel(), model_.nextNewMoonLabel());
  };
  const auto showCharts = [this] {
    starMap_->show(model_.starMapSVG());
    horoscope_->show(model_.horoscopeSVG());
  };
  const auto showPlanets = [this] { planets_->show(model_.positions()); };
  for (const auto signal :
       {&AstronomyModel::basicTableHourlyChanged, &AstronomyModel::basicTableMonthlyChanged,
        &AstronomyModel::conjunctionDailyChanged, &AstronomyModel::conjunctionYearlyChanged}) {
    connect(&model_, signal, this, showTables);
  }
  connect(&model_, &AstronomyModel::nextFullMoonLabelChanged, this, showMoons);
  connect(&model_, &AstronomyModel::nextNewMoonLabelChanged, this, showMoons);
  connect(&model_, &AstronomyModel::starMapSVGChanged, this, showCharts);
  connect(&model_, &AstronomyModel::horoscopeSVGChanged, this, showCharts);
  connect(&model_, &AstronomyModel::positionsChanged, this, showPlanets);
  connect(&model_, &AstronomyModel::isCalculatingChanged, this, &DetailedView::showCaption);
  showTables();
  showMoons();
  showCharts();
  showPlanets();
  showCaption();
}

void DetailedView::setTab(exports::OutputTab tab) {
  tabs_->setCurrentIndex(static_cast<int>(tab));
}

void DetailedView::showCaption() {
  if (!model_.lastHoroscopeBasetime()) {
    caption_->setText(QString());
    return;
  }
  caption_->setText(
      model_.dateLabel() + QStringLiteral("   ") +
      placeText(model_, model_.lastHoroscopeLatitude(), model_.lastHoroscopeLongitude()));
  starMap_->setAccessibleDescription(tr("The sky above the horizon, %1").arg(caption_->text()));
  horoscope_->setAccessibleDescription(
      tr("The wheel of the ecliptic with its interpretation, %1").arg(caption_->text()));
}

}  // namespace veyruna::ui
