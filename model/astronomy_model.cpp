#include "model/astronomy_model.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>
#include <limits>
#include <utility>

#include "astro/calendar.h"
#include "astro/local_time.h"
#include "model/qt_settings_store.h"

namespace veyruna::model {

namespace {

/// Hand-edited degrees can overflow as radians, and a file of numbers has no word for infinity.
double storableAngle(double angle) {
  constexpr double most = std::numeric_limits<double>::max();
  return std::clamp(angle, -most, most);
}

}  // namespace

AstronomyModel::Surroundings AstronomyModel::standardSurroundings() {
  return {std::make_shared<QtSettingsStore>(), locationsFileURL(), &QUuid::createUuid,
          poolExecutor()};
}

AstronomyModel::AstronomyModel(Surroundings surroundings, QObject* parent)
    : QObject(parent),
      settings_(std::move(surroundings.settings)),
      newId_(std::move(surroundings.newId)),
      executor_(std::move(surroundings.executor)),
      place_(readLocationSettings(*settings_)),
      date_(readDateSettings(*settings_)),
      locations_(std::move(surroundings.locationsPath), newId_) {
  locations_.loadCities();
}

AstronomyModel::~AstronomyModel() {
  locations_.saveWhatWaits();
}

QStringList AstronomyModel::months() const {
  QStringList names;
  for (const std::string_view name : astro::monthNames) {
    names.append(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
  }
  return names;
}

template <class Value>
void AstronomyModel::assign(Value& field, const Value& value, Signal changed) {
  if (field != value) {
    field = value;
    Q_EMIT(this->*changed)();
  }
}

template <class Group, class Value>
void AstronomyModel::setInput(Group& group, Value Group::*field, const Value& value,
                              Signal changed) {
  const bool changes = group.*field != value;
  group.*field = value;
  storeSettings(*settings_, group);
  if (changes) {
    Q_EMIT(this->*changed)();
  }
}

void AstronomyModel::setSelectedCityID(QUuid id) {
  setInput(place_, &LocationSettings::selectedCityID, id, &AstronomyModel::selectedCityIDChanged);
}

void AstronomyModel::setManualLatDeg(double degrees) {
  setInput(place_, &LocationSettings::manualLatDeg, degrees, &AstronomyModel::manualLatDegChanged);
}

void AstronomyModel::setManualLongDeg(double degrees) {
  setInput(place_, &LocationSettings::manualLongDeg, degrees,
           &AstronomyModel::manualLongDegChanged);
}

void AstronomyModel::setLatNorth(bool isNorth) {
  setInput(place_, &LocationSettings::latNorth, isNorth, &AstronomyModel::latNorthChanged);
}

void AstronomyModel::setLongWest(bool isWest) {
  setInput(place_, &LocationSettings::longWest, isWest, &AstronomyModel::longWestChanged);
}

void AstronomyModel::setMonthIndex(qint64 index) {
  setInput(date_, &DateSettings::monthIndex, index, &AstronomyModel::monthIndexChanged);
}

void AstronomyModel::setDayIndex(qint64 index) {
  setInput(date_, &DateSettings::dayIndex, index, &AstronomyModel::dayIndexChanged);
}

void AstronomyModel::setYear(qint64 year) {
  setInput(date_, &DateSettings::year, year, &AstronomyModel::yearChanged);
}

void AstronomyModel::setHour(double hour) {
  setInput(date_, &DateSettings::hour, hour, &AstronomyModel::hourChanged);
}

void AstronomyModel::setUseLocalTime(bool isLocal) {
  setInput(date_, &DateSettings::useLocalTime, isLocal, &AstronomyModel::useLocalTimeChanged);
}

bool AstronomyModel::setMoment(double baseTime) {
  const double longitude = effectiveLongitude();
  const std::optional<astro::CalendarReading> reading =
      !isWithinReach(baseTime) ? std::nullopt
      : date_.useLocalTime && isOnGlobe(0.0, longitude)
          ? astro::localCalendarReading(observer().at(baseTime))
          : astro::calendarReading(baseTime);
  if (!reading) {
    return false;
  }
  const DateSettings before = date_;
  date_.monthIndex = reading->monthIndex;
  date_.dayIndex = reading->dayIndex;
  date_.year = reading->year;
  date_.hour = reading->hour;
  storeSettings(*settings_, date_);
  const auto signalChange = [&](auto DateSettings::*field, Signal changed) {
    if (date_.*field != before.*field) {
      Q_EMIT(this->*changed)();
    }
  };
  signalChange(&DateSettings::monthIndex, &AstronomyModel::monthIndexChanged);
  signalChange(&DateSettings::dayIndex, &AstronomyModel::dayIndexChanged);
  signalChange(&DateSettings::year, &AstronomyModel::yearChanged);
  signalChange(&DateSettings::hour, &AstronomyModel::hourChanged);
  return true;
}

double AstronomyModel::effectiveLatitude() const {
  if (place_.selectedCityID == manualCityID()) {
    return manualLatitude(place_);
  }
  const CityPreset* const city = locations_.find(place_.selectedCityID);
  return (city != nullptr ? *city : manualCity()).latitude;
}

double AstronomyModel::effectiveLongitude() const {
  if (place_.selectedCityID == manualCityID()) {
    return manualLongitude(place_);
  }
  const CityPreset* const city = locations_.find(place_.selectedCityID);
  return (city != nullptr ? *city : manualCity()).longitude;
}

double AstronomyModel::baseTime() const {
  const double standard =
      astro::standardBaseTime(date_.year, date_.monthIndex, date_.dayIndex, date_.hour);
  const double longitude = effectiveLongitude();
  if (!date_.useLocalTime || !isWithinReach(standard) || !isOnGlobe(0.0, longitude)) {
    return standard;
  }
  return astro::localBaseTime(date_.year, date_.monthIndex, date_.dayIndex, date_.hour, longitude);
}

astro::Observer AstronomyModel::observer() const {
  return {
      .baseTime = baseTime(), .latitude = effectiveLatitude(), .longitude = effectiveLongitude()};
}

/// Whatever is done to the saved places also takes in what other programs did to them.
template <class Change>
void AstronomyModel::changeCities(Change change) {
  const QList<CityPreset> before = cities();
  change();
  if (cities() != before) {
    Q_EMIT citiesChanged();
  }
}

void AstronomyModel::refreshCities() {
  changeCities([this] { locations_.refresh(); });
}

std::variant<QUuid, LocationError> AstronomyModel::addCity(const QString& name) {
  std::variant<QUuid, LocationError> outcome = LocationError::emptyName();
  changeCities([&] {
    outcome = locations_.add(name, storableAngle(manualLatitude(place_)),
                             storableAngle(manualLongitude(place_)));
  });
  return outcome;
}

void AstronomyModel::deleteCity(QUuid id) {
  changeCities([&] { locations_.remove(id); });
  if (id != manualCityID() && id == place_.selectedCityID) {
    setSelectedCityID(manualCityID());
  }
}

void AstronomyModel::setHoroscopeBlackAndWhite(bool isBlackAndWhite) {
  assign(horoscopeBlackAndWhite_, isBlackAndWhite, &AstronomyModel::horoscopeBlackAndWhiteChanged);
}

void AstronomyModel::recalculate() {
  if (isCalculating_) {
    return;
  }
  const CalculationInput input{observer(), horoscopeBlackAndWhite_};
  std::optional<QString> refusal;
  if (!isOnGlobe(input.observer.latitude, input.observer.longitude)) {
    refusal = QStringLiteral("This place is not on the globe.");
  } else if (!isWithinReach(input.observer.baseTime)) {
    refusal = QStringLiteral("This moment is too far away to calculate.");
  }
  if (refusal) {
    assign(errorMessage_, refusal, &AstronomyModel::errorMessageChanged);
    return;
  }

  assign(isCalculating_, true, &AstronomyModel::isCalculatingChanged);
  assign(errorMessage_, {}, &AstronomyModel::errorMessageChanged);
  // The task holds the model weakly, and the results travel through the application object, which
  // outlives it: the model may be deleted at any moment.
  executor_([self = QPointer<AstronomyModel>(this), input] {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [self, result = calculate(input)] {
          if (self) {
            self->publish(result);
          }
        },
        Qt::QueuedConnection);
  });
}

void AstronomyModel::publish(const CalculationResult& result) {
  const auto& [observer, blackAndWhite] = result.input;
  assign(starMapSVG_, result.starMapSVG, &AstronomyModel::starMapSVGChanged);
  assign(horoscopeSVG_, result.horoscopeSVG, &AstronomyModel::horoscopeSVGChanged);
  assign(lastHoroscopeBasetime_, std::optional(observer.baseTime),
         &AstronomyModel::lastHoroscopeBasetimeChanged);
  assign(lastHoroscopeLatitude_, observer.latitude, &AstronomyModel::lastHoroscopeLatitudeChanged);
  assign(lastHoroscopeLongitude_, observer.longitude,
         &AstronomyModel::lastHoroscopeLongitudeChanged);
  assign(basicTableHourly_, result.basicTableHourly, &AstronomyModel::basicTableHourlyChanged);
  assign(basicTableMonthly_, result.basicTableMonthly, &AstronomyModel::basicTableMonthlyChanged);
  assign(conjunctionDaily_, result.conjunctionDaily, &AstronomyModel::conjunctionDailyChanged);
  assign(conjunctionYearly_, result.conjunctionYearly, &AstronomyModel::conjunctionYearlyChanged);
  positions_ = bodyPositions(result.positions, newId_);
  Q_EMIT positionsChanged();
  assign(dateLabel_, result.dateLabel, &AstronomyModel::dateLabelChanged);
  nextFullMoonBaseTime_ = result.nextFullMoonBaseTime;
  nextNewMoonBaseTime_ = result.nextNewMoonBaseTime;
  assign(nextFullMoonLabel_, result.nextFullMoonLabel, &AstronomyModel::nextFullMoonLabelChanged);
  assign(nextNewMoonLabel_, result.nextNewMoonLabel, &AstronomyModel::nextNewMoonLabelChanged);
  const QPointer<AstronomyModel> self(this);  // whoever waited for the end may delete the model
  assign(isCalculating_, false, &AstronomyModel::isCalculatingChanged);
  if (self && horoscopeBlackAndWhite_ != blackAndWhite) {
    regenerateHoroscope();
  }
}

void AstronomyModel::regenerateHoroscope() {
  if (!lastHoroscopeBasetime_) {
    return;
  }
  const astro::Observer last{.baseTime = *lastHoroscopeBasetime_,
                             .latitude = lastHoroscopeLatitude_,
                             .longitude = lastHoroscopeLongitude_};
  assign(horoscopeSVG_, calculateHoroscope({last, horoscopeBlackAndWhite_}),
         &AstronomyModel::horoscopeSVGChanged);
}

}  // namespace veyruna::model
