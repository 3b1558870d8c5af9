#include "ui/detailed_view.h"

#include <QFormLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "ui/coordinate_text.h"
#include "ui/map_location_picker_view.h"
#include "ui/named.h"
#include "ui/planets_view.h"
#include "ui/svg_view.h"
#include "ui/tables_view.h"

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
  return name + coordinateText(latitude, longitude);
}

}  // namespace

DetailedView::DetailedView(AstronomyModel& model, const PageEngine& engine, QWidget* parent)
    : QWidget(parent),
      model_(model),
      caption_(named(new QLabel, "caption", tr("Moment and place of what is shown"))),
      tabs_(new QStackedWidget),
      starMap_(named(new SVGView(engine, tr("Star map")), "starMap", tr("Star map"))),
      horoscope_(named(new SVGView(engine, tr("Horoscope")), "horoscope", tr("Horoscope"))),
      planets_(new PlanetsView),
      sunMoon_(new TablesView({tr("Hourly"), tr("Monthly"), tr("No table data")})),
      positions_(new TablesView({tr("Daily"), tr("Yearly"), tr("No conjunction data")})) {
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
  auto* const moons = new QWidget;
  auto* const fullMoon = named(new QLabel, "nextFullMoon", tr("Next full moon"));
  auto* const newMoon = named(new QLabel, "nextNewMoon", tr("Next new moon"));
  for (QLabel* const label : {fullMoon, newMoon}) {
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
  auto* const lines = new QFormLayout(moons);
  lines->setContentsMargins({});
  lines->addRow(tr("Next full moon:"), fullMoon);
  lines->addRow(tr("Next new moon:"), newMoon);
  sunMoon_->addFooter(moons);
  const auto showMoons = [this, fullMoon, newMoon] {
    fullMoon->setText(model_.nextFullMoonLabel());
    newMoon->setText(model_.nextNewMoonLabel());
  };
  showMoons();
  connect(&model_, &AstronomyModel::nextFullMoonLabelChanged, this, showMoons);
  connect(&model_, &AstronomyModel::nextNewMoonLabelChanged, this, showMoons);

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
  connect(&model_, &AstronomyModel::starMapSVGChanged, this, showCharts);
  connect(&model_, &AstronomyModel::horoscopeSVGChanged, this, showCharts);
  connect(&model_, &AstronomyModel::positionsChanged, this, showPlanets);
  connect(&model_, &AstronomyModel::isCalculatingChanged, this, &DetailedView::showCaption);
  showTables();
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
