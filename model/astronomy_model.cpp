#include "model/astronomy_model.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>
#include <array>
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

/// Why nothing is calculated for such a moment and place; nothing where it is.
std::optional<QString> refusalOf(const astro::Observer& observer) {
  if (!isPlaceWithinReach(observer.latitude, observer.longitude)) {
    return QStringLiteral("This place is not on the globe.");
  }
  if (!isMomentWithinReach(observer.baseTime)) {
    return QStringLiteral("This moment is too far away to calculate.");
  }
  return std::nullopt;
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
  textIn(texts_, Document::positions) = QString::fromStdString(reports::positionsTableText({}));
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
  momentSet_.reset();
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
      !isMomentWithinReach(baseTime) ? std::nullopt
      : date_.useLocalTime && isPlaceWithinReach(0.0, longitude)
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
  momentSet_ = baseTime;
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
  const astro::CalendarReading reading{.year = date_.year,
                                       .monthIndex = date_.monthIndex,
                                       .dayIndex = date_.dayIndex,
                                       .hour = date_.hour};
  const double standard = astro::standardBaseTime(reading);
  const double longitude = effectiveLongitude();
  if (!date_.useLocalTime || !isMomentWithinReach(standard) ||
      !isPlaceWithinReach(0.0, longitude)) {
    return standard;
  }
  return astro::localBaseTime(reading, longitude);
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

bool AstronomyModel::inputsHaveChanged() const {
  const bool isSameMoment =
      lastHoroscopeBasetime_ == baseTime() || (momentSet_ && lastHoroscopeBasetime_ == momentSet_);
  return lastHoroscopeBasetime_ &&
         !(isSameMoment && lastHoroscopeLatitude_ == effectiveLatitude() &&
           lastHoroscopeLongitude_ == effectiveLongitude());
}

void AstronomyModel::setHoroscopeBlackAndWhite(bool isBlackAndWhite) {
  assign(horoscopeBlackAndWhite_, isBlackAndWhite, &AstronomyModel::horoscopeBlackAndWhiteChanged);
}

void AstronomyModel::recalculate() {
  if (isCalculating_) {
    return;
  }
  assign(isCalculating_, true, &AstronomyModel::isCalculatingChanged);
  assign(errorMessage_, {}, &AstronomyModel::errorMessageChanged);
  // Whoever heard that a calculation begins may have had inputs to hand in.
  const CalculationInput input{observer(), horoscopeBlackAndWhite_};
  if (const std::optional<QString> refusal = refusalOf(input.observer)) {
    assign(errorMessage_, refusal, &AstronomyModel::errorMessageChanged);
    assign(isCalculating_, false, &AstronomyModel::isCalculatingChanged);
    return;
  }
  // The task holds the model weakly, and the results travel through the application object, which
  // outlives it: the model may be deleted at any moment.
  executor_([self = QPointer<AstronomyModel>(this), input] {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [self, result = calculate(input, heldDocuments())] {
          if (self) {
            self->finish(result);
          }
        },
        Qt::QueuedConnection);
  });
}

AstronomyModel::Signal AstronomyModel::namedSignalOf(Document document) {
  using Named = std::pair<Document, Signal>;
  static constexpr std::array<Named, 9> named = {{
      {Document::starMap, &AstronomyModel::starMapSVGChanged},
      {Document::horoscope, &AstronomyModel::horoscopeSVGChanged},
      {Document::hourly, &AstronomyModel::basicTableHourlyChanged},
      {Document::monthly, &AstronomyModel::basicTableMonthlyChanged},
      {Document::daily, &AstronomyModel::conjunctionDailyChanged},
      {Document::yearly, &AstronomyModel::conjunctionYearlyChanged},
      {Document::date, &AstronomyModel::dateLabelChanged},
      {Document::nextFullMoon, &AstronomyModel::nextFullMoonLabelChanged},
      {Document::nextNewMoon, &AstronomyModel::nextNewMoonLabelChanged},
  }};
  const auto* const found = std::ranges::find(named, document, &Named::first);
  return found == named.end() ? nullptr : found->second;
}

void AstronomyModel::publishText(Document document, const QString& text) {
  QString& held = textIn(texts_, document);
  if (held == text) {
    return;
  }
  held = text;
  if (const Signal changed = namedSignalOf(document)) {
    Q_EMIT(this->*changed)();
  }
  Q_EMIT textChanged(document);
}

void AstronomyModel::publish(const CalculationResult& result) {
  const astro::Observer& observer = result.input.observer;
  if (result.documents.contains(Document::nextFullMoon)) {
    nextFullMoonBaseTime_ = result.nextFullMoonBaseTime;
  }
  if (result.documents.contains(Document::nextNewMoon)) {
    nextNewMoonBaseTime_ = result.nextNewMoonBaseTime;
  }
  for (const documents::Entry& entry : documents::allDocuments) {
    if (entry.document == Document::positions && result.documents.contains(entry.document)) {
      positions_ = bodyPositions(result.positions, newId_);
      Q_EMIT positionsChanged();
    }
    if (result.documents.contains(entry.document)) {
      publishText(entry.document, textIn(result.texts, entry.document));
    }
    if (entry.document == Document::horoscope) {
      assign(lastHoroscopeBasetime_, std::optional(observer.baseTime),
             &AstronomyModel::lastHoroscopeBasetimeChanged);
      assign(lastHoroscopeLatitude_, observer.latitude,
             &AstronomyModel::lastHoroscopeLatitudeChanged);
      assign(lastHoroscopeLongitude_, observer.longitude,
             &AstronomyModel::lastHoroscopeLongitudeChanged);
    }
  }
  Q_EMIT published();
}

void AstronomyModel::finish(const CalculationResult& result) {
  const QPointer<AstronomyModel> self(this);  // whoever waited for the end may delete the model
  publish(result);
  if (self) {
    assign(isCalculating_, false, &AstronomyModel::isCalculatingChanged);
  }
  if (self && horoscopeBlackAndWhite_ != result.input.blackAndWhite) {
    regenerateHoroscope();
  }
}

bool AstronomyModel::calculateNow(double baseTime, const QList<Document>& documents) {
  if (isCalculating_) {
    return false;
  }
  const CalculationInput input{observer().at(baseTime), horoscopeBlackAndWhite_};
  const std::optional<QString> refusal = refusalOf(input.observer);
  assign(errorMessage_, refusal, &AstronomyModel::errorMessageChanged);
  if (!refusal) {
    publish(calculate(input, documents));
  }
  return !refusal;
}

void AstronomyModel::regenerateHoroscope() {
  if (!lastHoroscopeBasetime_) {
    return;
  }
  const astro::Observer last{.baseTime = *lastHoroscopeBasetime_,
                             .latitude = lastHoroscopeLatitude_,
                             .longitude = lastHoroscopeLongitude_};
  publishText(Document::horoscope, calculateHoroscope({last, horoscopeBlackAndWhite_}));
}

}  // namespace veyruna::model
