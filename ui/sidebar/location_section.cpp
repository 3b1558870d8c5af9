#include "ui/sidebar/location_section.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "ui/controls/angle_field.h"
#include "ui/controls/coordinates_text.h"
#include "ui/controls/field_note.h"
#include "ui/controls/icons.h"
#include "ui/controls/named.h"
#include "ui/controls/segmented_picker.h"
#include "ui/sidebar/location_picker.h"

namespace veyruna::ui {

namespace {

constexpr int fieldWidth = 80;

}  // namespace

LocationSection::LocationSection(model::AstronomyModel& model, QWidget* parent)
    : QGroupBox(tr("Location"), parent), model_(model) {
  auto* const column = new QVBoxLayout(this);
  auto* const label = new QLabel(tr("&Location"));
  picker_ = named(new LocationPicker(model_), "locationPicker", tr("Location"));
  picker_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  // As wide as the sidebar, not as the longest name.
  picker_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  picker_->setMinimumContentsLength(10);
  label->setBuddy(picker_);
  auto* const row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(picker_, 1);
  column->addLayout(row);
  // One takes the other's room, so that nothing below moves.
  savedPlace_ = makeSavedPlace();
  manualFields_ = makeManualFields();
  place_ = new QStackedLayout;
  column->addLayout(place_);  // first: it shows its first widget, which alone would be a window
  place_->addWidget(savedPlace_);
  place_->addWidget(manualFields_);
  column->addWidget(makeButtons());
  auto* const note = named(new FieldNote, "locationNote", tr("What the coordinates accept"));
  addAtFoot(*column, note);

  connect(picker_, &QComboBox::activated, this,
          [this](int index) { model_.setSelectedCityID(picker_->itemData(index).toUuid()); });
  connect(latitude_, &AngleField::noted, note, &FieldNote::say);
  connect(longitude_, &AngleField::noted, note, &FieldNote::say);
  connect(&model_, &model::AstronomyModel::citiesChanged, this, &LocationSection::showCities);
  connect(&model_, &model::AstronomyModel::selectedCityIDChanged, this,
          &LocationSection::showPlace);
  for (const auto signal :
       {&model::AstronomyModel::manualLatDegChanged, &model::AstronomyModel::manualLongDegChanged,
        &model::AstronomyModel::latNorthChanged, &model::AstronomyModel::longWestChanged}) {
    connect(&model_, signal, this, &LocationSection::showManualFields);
  }
  showCities();
  showManualFields();
}

QWidget* LocationSection::makeSavedPlace() {
  auto* const place = new QWidget;
  coordinates_ = named(new QLabel, "coordinates", tr("Coordinates"));
  coordinates_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* const remove = named(new QPushButton(icon("edit-delete", "delete"), tr("&Delete")),
                             "deleteButton", tr("Delete this location"));
  connect(remove, &QPushButton::clicked, this, &LocationSection::deleteRequested);
  auto* const column = new QVBoxLayout(place);
  auto* const row = new QHBoxLayout;
  column->setContentsMargins({});
  row->addWidget(coordinates_, 1);
  row->addWidget(remove);
  column->addLayout(row);
  column->addStretch();
  return place;
}

QWidget* LocationSection::makeManualFields() {
  auto* const fields = new QWidget;
  latitude_ = named(new AngleField(tr("Latitude"), 90.0, {u'N', u'S'}), "latitudeField",
                    tr("Latitude in degrees"));
  northSouth_ = new SegmentedPicker("northSouth", {{tr("N"), tr("North")}, {tr("S"), tr("South")}});
  longitude_ = named(new AngleField(tr("Longitude"), 180.0, {u'E', u'W'}), "longitudeField",
                     tr("Longitude in degrees"));
  eastWest_ = new SegmentedPicker("eastWest", {{tr("E"), tr("East")}, {tr("W"), tr("West")}});
  latitude_->setMinimumWidth(fieldWidth);
  longitude_->setMinimumWidth(fieldWidth);
  auto* const latitudeLabel = new QLabel(tr("L&atitude"));
  auto* const longitudeLabel = new QLabel(tr("Lo&ngitude"));
  latitudeLabel->setBuddy(latitude_);
  longitudeLabel->setBuddy(longitude_);
  auto* const save =
      named(new QPushButton(tr("&Save Location…")), "saveButton", tr("Save this location"));

  auto* const grid = new QGridLayout(fields);
  grid->setContentsMargins({});
  grid->addWidget(latitudeLabel, 0, 0);
  grid->addWidget(latitude_, 0, 1);
  grid->addWidget(northSouth_, 0, 2);
  grid->addWidget(longitudeLabel, 1, 0);
  grid->addWidget(longitude_, 1, 1);
  grid->addWidget(eastWest_, 1, 2);
  grid->addWidget(save, 2, 0, 1, 3);
  grid->setColumnStretch(1, 1);

  connect(latitude_, &AngleField::edited, &model_, &model::AstronomyModel::setManualLatDeg);
  connect(longitude_, &AngleField::edited, &model_, &model::AstronomyModel::setManualLongDeg);
  connect(northSouth_, &SegmentedPicker::picked, &model_,
          [this](int segment) { model_.setLatNorth(segment == 0); });
  connect(eastWest_, &SegmentedPicker::picked, &model_,
          [this](int segment) { model_.setLongWest(segment == 1); });
  connect(latitude_, &AngleField::turned, &model_, &model::AstronomyModel::setLatNorth);
  connect(longitude_, &AngleField::turned, &model_,
          [this](bool isEast) { model_.setLongWest(!isEast); });
  connect(save, &QPushButton::clicked, this, &LocationSection::saveRequested);
  return fields;
}

QWidget* LocationSection::makeButtons() {
  auto* const buttons = new QWidget;
  map_ = named(new QPushButton(icon("mark-location", "location"), tr("Pic&k from map…")),
               "mapButton", tr("Pick the location from the map"));
  colorMode_ = named(new QPushButton, "colorModeButton", tr("Colour mode of the horoscope"));
  colorMode_->hide();
  auto* const row = new QHBoxLayout(buttons);
  row->setContentsMargins({});
  row->addWidget(map_, 1);
  row->addWidget(colorMode_);

  const auto showMode = [this] {
    colorMode_->setText(model_.horoscopeBlackAndWhite() ? tr("&B&&W") : tr("C&olor"));
  };
  showMode();
  connect(map_, &QPushButton::clicked, this, &LocationSection::mapRequested);
  connect(colorMode_, &QPushButton::clicked, &model_, [this] {
    model_.setHoroscopeBlackAndWhite(!model_.horoscopeBlackAndWhite());
    model_.regenerateHoroscope();
  });
  connect(&model_, &model::AstronomyModel::horoscopeBlackAndWhiteChanged, this, showMode);
  return buttons;
}

void LocationSection::commit() {
  latitude_->commit();
  longitude_->commit();
}

void LocationSection::focusPicker() {
  picker_->setFocus(Qt::OtherFocusReason);
}

void LocationSection::showColorMode(bool isShown) {
  if (!isShown && colorMode_->hasFocus()) {
    map_->setFocus(Qt::OtherFocusReason);  // or it would fall on the month, which keys change
  }
  colorMode_->setVisible(isShown);
}

void LocationSection::showCities() {
  picker_->clear();
  for (const model::CityPreset& city : model_.cities()) {
    picker_->addItem(city.name, city.id);
  }
  showPlace();
}

void LocationSection::showPlace() {
  picker_->setCurrentIndex(picker_->findData(model_.selectedCityID()));
  const bool isManual = model_.selectedCityID() == model::manualCityID();
  place_->setCurrentWidget(isManual ? manualFields_ : savedPlace_);
  if (!isManual) {
    coordinates_->setText(coordinatesText(model_.effectiveLatitude(), model_.effectiveLongitude()));
  }
}

void LocationSection::showManualFields() {
  latitude_->show(model_.manualLatDeg());
  longitude_->show(model_.manualLongDeg());
  northSouth_->setChosen(model_.latNorth() ? 0 : 1);
  eastWest_->setChosen(model_.longWest() ? 1 : 0);
}

}  // namespace veyruna::ui
