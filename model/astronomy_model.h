#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUuid>
#include <memory>
#include <optional>
#include <variant>

#include "model/body_position.h"
#include "model/calculation.h"
#include "model/city_preset.h"
#include "model/executor.h"
#include "model/id_source.h"
#include "model/location_error.h"
#include "model/saved_locations.h"
#include "model/settings_store.h"
#include "model/stored_settings.h"

namespace veyruna::model {

/// The one object the interface binds to: the observer's place and moment, the saved places, and
/// every computed output. Inputs are stored whenever they are set and never start a calculation;
/// outputs change only when one is published. To be used on the interface thread alone.
class AstronomyModel : public QObject {
  Q_OBJECT

  Q_PROPERTY(QList<veyruna::model::CityPreset> cities READ cities NOTIFY citiesChanged)
  Q_PROPERTY(QStringList months READ months CONSTANT)
  Q_PROPERTY(
      QUuid selectedCityID READ selectedCityID WRITE setSelectedCityID NOTIFY selectedCityIDChanged)
  Q_PROPERTY(double manualLatDeg READ manualLatDeg WRITE setManualLatDeg NOTIFY manualLatDegChanged)
  Q_PROPERTY(
      double manualLongDeg READ manualLongDeg WRITE setManualLongDeg NOTIFY manualLongDegChanged)
  Q_PROPERTY(bool latNorth READ latNorth WRITE setLatNorth NOTIFY latNorthChanged)
  Q_PROPERTY(bool longWest READ longWest WRITE setLongWest NOTIFY longWestChanged)
  Q_PROPERTY(qint64 monthIndex READ monthIndex WRITE setMonthIndex NOTIFY monthIndexChanged)
  Q_PROPERTY(qint64 dayIndex READ dayIndex WRITE setDayIndex NOTIFY dayIndexChanged)
  Q_PROPERTY(qint64 year READ year WRITE setYear NOTIFY yearChanged)
  Q_PROPERTY(double hour READ hour WRITE setHour NOTIFY hourChanged)
  Q_PROPERTY(bool useLocalTime READ useLocalTime WRITE setUseLocalTime NOTIFY useLocalTimeChanged)
  Q_PROPERTY(QString starMapSVG READ starMapSVG NOTIFY starMapSVGChanged)
  Q_PROPERTY(QString horoscopeSVG READ horoscopeSVG NOTIFY horoscopeSVGChanged)
  Q_PROPERTY(QString basicTableHourly READ basicTableHourly NOTIFY basicTableHourlyChanged)
  Q_PROPERTY(QString basicTableMonthly READ basicTableMonthly NOTIFY basicTableMonthlyChanged)
  Q_PROPERTY(QString conjunctionDaily READ conjunctionDaily NOTIFY conjunctionDailyChanged)
  Q_PROPERTY(QString conjunctionYearly READ conjunctionYearly NOTIFY conjunctionYearlyChanged)
  Q_PROPERTY(QList<veyruna::model::BodyPosition> positions READ positions NOTIFY positionsChanged)
  Q_PROPERTY(QString dateLabel READ dateLabel NOTIFY dateLabelChanged)
  Q_PROPERTY(QString nextFullMoonLabel READ nextFullMoonLabel NOTIFY nextFullMoonLabelChanged)
  Q_PROPERTY(QString nextNewMoonLabel READ nextNewMoonLabel NOTIFY nextNewMoonLabelChanged)
  Q_PROPERTY(bool isCalculating READ isCalculating NOTIFY isCalculatingChanged)
  Q_PROPERTY(std::optional<QString> errorMessage READ errorMessage NOTIFY errorMessageChanged)
  Q_PROPERTY(bool horoscopeBlackAndWhite READ horoscopeBlackAndWhite WRITE setHoroscopeBlackAndWhite
                 NOTIFY horoscopeBlackAndWhiteChanged)
  Q_PROPERTY(std::optional<double> lastHoroscopeBasetime READ lastHoroscopeBasetime NOTIFY
                 lastHoroscopeBasetimeChanged)
  Q_PROPERTY(
      double lastHoroscopeLatitude READ lastHoroscopeLatitude NOTIFY lastHoroscopeLatitudeChanged)
  Q_PROPERTY(double lastHoroscopeLongitude READ lastHoroscopeLongitude NOTIFY
                 lastHoroscopeLongitudeChanged)

 public:
  /// Everything from outside.
  struct Surroundings {
    std::shared_ptr<SettingsStore> settings;
    std::optional<QString> locationsPath;  ///< nothing: places are not kept
    IdSource newId;
    Executor executor;
  };
  /// The user's own preferences and places, random ids and the thread pool.
  static Surroundings standardSurroundings();

  /// Reads the ten preferences and loads the saved places.
  explicit AstronomyModel(Surroundings surroundings, QObject* parent = nullptr);
  ~AstronomyModel() override;

  // The observer's inputs. A setter stores its whole group, whether or not the value changes, and
  // signals only a change. Nothing is clamped.
  [[nodiscard]] const QList<CityPreset>& cities() const { return locations_.cities(); }
  [[nodiscard]] QStringList months() const;
  [[nodiscard]] QUuid selectedCityID() const { return place_.selectedCityID; }
  [[nodiscard]] double manualLatDeg() const { return place_.manualLatDeg; }
  [[nodiscard]] double manualLongDeg() const { return place_.manualLongDeg; }
  [[nodiscard]] bool latNorth() const { return place_.latNorth; }
  [[nodiscard]] bool longWest() const { return place_.longWest; }
  [[nodiscard]] qint64 monthIndex() const { return date_.monthIndex; }
  [[nodiscard]] qint64 dayIndex() const { return date_.dayIndex; }
  [[nodiscard]] qint64 year() const { return date_.year; }
  [[nodiscard]] double hour() const { return date_.hour; }
  [[nodiscard]] bool useLocalTime() const { return date_.useLocalTime; }
  void setSelectedCityID(QUuid id);
  void setManualLatDeg(double degrees);
  void setManualLongDeg(double degrees);
  void setLatNorth(bool isNorth);
  void setLongWest(bool isWest);
  void setMonthIndex(qint64 index);
  void setDayIndex(qint64 index);
  void setYear(qint64 year);
  void setHour(double hour);
  void setUseLocalTime(bool isLocal);

  /// Sets month, day, year and hour to the calendar's or, where local time is used, the place's
  /// local reading of a base time (days), stored once: baseTime() is then within a minute of it.
  /// Calculates nothing. False, and nothing is set, where no inputs name that moment: before the
  /// first midnight, beyond what is calculated, or a moment that local time leaves out.
  bool setMoment(double baseTime);

  /// Latitude in radians, north positive: of the manual fields, or of the selected place; 0 where
  /// that place is gone.
  [[nodiscard]] double effectiveLatitude() const;
  /// Longitude in radians, east positive, likewise.
  [[nodiscard]] double effectiveLongitude() const;
  /// The moment of the inputs, in days. Where it or the place is beyond what is calculated, the
  /// standard-time sum as it stands.
  [[nodiscard]] double baseTime() const;
  /// The three together.
  [[nodiscard]] astro::Observer observer() const;

  /// Takes in what another window or program has saved or deleted since. To be called where a list
  /// of places is about to be shown. A file that is missing or cannot be read changes nothing.
  void refreshCities();
  /// Saves the manual fields' place under a name, whatever is selected. The caller selects it.
  std::variant<QUuid, LocationError> addCity(const QString& name);
  /// Deletes a saved place; where it was selected, "Manual" is.
  void deleteCity(QUuid id);

  using Document = documents::Document;

  /// The document as it was last calculated; empty before the first time, but for the positions,
  /// which are their header alone. The horoscope is in colour or black on white as the flag says;
  /// what is not held (isHeld) stays empty.
  [[nodiscard]] const QString& text(Document document) const { return textIn(texts_, document); }

  // The outputs of the last calculation by their names.
  [[nodiscard]] const QString& starMapSVG() const { return text(Document::starMap); }
  [[nodiscard]] const QString& horoscopeSVG() const { return text(Document::horoscope); }
  [[nodiscard]] const QString& basicTableHourly() const { return text(Document::hourly); }
  [[nodiscard]] const QString& basicTableMonthly() const { return text(Document::monthly); }
  [[nodiscard]] const QString& conjunctionDaily() const { return text(Document::daily); }
  [[nodiscard]] const QString& conjunctionYearly() const { return text(Document::yearly); }
  [[nodiscard]] const QList<BodyPosition>& positions() const { return positions_; }
  [[nodiscard]] const QString& dateLabel() const { return text(Document::date); }
  [[nodiscard]] const QString& nextFullMoonLabel() const { return text(Document::nextFullMoon); }
  [[nodiscard]] const QString& nextNewMoonLabel() const { return text(Document::nextNewMoon); }
  /// The moments that the two labels read, in days; signalled with them. Nothing before the first
  /// calculation.
  [[nodiscard]] std::optional<double> nextFullMoonBaseTime() const { return nextFullMoonBaseTime_; }
  [[nodiscard]] std::optional<double> nextNewMoonBaseTime() const { return nextNewMoonBaseTime_; }
  [[nodiscard]] bool isCalculating() const { return isCalculating_; }
  [[nodiscard]] const std::optional<QString>& errorMessage() const { return errorMessage_; }
  [[nodiscard]] bool horoscopeBlackAndWhite() const { return horoscopeBlackAndWhite_; }
  [[nodiscard]] std::optional<double> lastHoroscopeBasetime() const {
    return lastHoroscopeBasetime_;
  }
  [[nodiscard]] double lastHoroscopeLatitude() const { return lastHoroscopeLatitude_; }
  [[nodiscard]] double lastHoroscopeLongitude() const { return lastHoroscopeLongitude_; }
  /// Whether moment or place of the inputs are no longer those of the last calculation. False
  /// before the first, and where the inputs name that moment to the minute because setMoment set
  /// them to it.
  [[nodiscard]] bool inputsHaveChanged() const;
  /// Not stored. The caller redraws the horoscope.
  void setHoroscopeBlackAndWhite(bool isBlackAndWhite);

  /// Computes every output of the inputs in the background and publishes them together. Does
  /// nothing while a calculation runs. The inputs are read when isCalculating has been signalled. A
  /// moment or place beyond what is calculated only sets errorMessage.
  void recalculate();

  /// Computes these documents (isHeld) of a moment (base time, days) and of the inputs' place, and
  /// publishes them before it returns; the others stay as they were calculated last. False while a
  /// calculation runs, which it leaves alone, and for what only sets errorMessage.
  bool calculateNow(double baseTime, const QList<Document>& documents);

  /// Draws the horoscope of the last calculation's moment and place again, in colour or black and
  /// white as the flag says. Does nothing before the first calculation.
  void regenerateHoroscope();

 Q_SIGNALS:
  void citiesChanged();
  void selectedCityIDChanged();
  void manualLatDegChanged();
  void manualLongDegChanged();
  void latNorthChanged();
  void longWestChanged();
  void monthIndexChanged();
  void dayIndexChanged();
  void yearChanged();
  void hourChanged();
  void useLocalTimeChanged();
  /// Any text has changed. The named signal of the same text, where it has one, comes before.
  void textChanged(veyruna::documents::Document document);
  void starMapSVGChanged();
  void horoscopeSVGChanged();
  void basicTableHourlyChanged();
  void basicTableMonthlyChanged();
  void conjunctionDailyChanged();
  void conjunctionYearlyChanged();
  void positionsChanged();
  void dateLabelChanged();
  void nextFullMoonLabelChanged();
  void nextNewMoonLabelChanged();
  void isCalculatingChanged();
  void errorMessageChanged();
  void horoscopeBlackAndWhiteChanged();
  void lastHoroscopeBasetimeChanged();
  void lastHoroscopeLatitudeChanged();
  void lastHoroscopeLongitudeChanged();
  /// All that was computed together has been signalled.
  void published();

 private:
  using Signal = void (AstronomyModel::*)();

  template <class Change>
  void changeCities(Change change);
  template <class Value>
  void assign(Value& field, const Value& value, Signal changed);
  template <class Group, class Value>
  void setInput(Group& group, Value Group::*field, const Value& value, Signal changed);
  void publish(const CalculationResult& result);
  void finish(const CalculationResult& result);
  void publishText(Document document, const QString& text);
  static Signal namedSignalOf(Document document);

  std::shared_ptr<SettingsStore> settings_;
  IdSource newId_;
  Executor executor_;

  LocationSettings place_;
  DateSettings date_;
  std::optional<double> momentSet_;  ///< what setMoment set, while the inputs are left so
  SavedLocations locations_;

  Texts texts_;
  QList<BodyPosition> positions_;
  std::optional<double> nextFullMoonBaseTime_;
  std::optional<double> nextNewMoonBaseTime_;
  bool isCalculating_ = false;
  std::optional<QString> errorMessage_;
  bool horoscopeBlackAndWhite_ = false;
  std::optional<double> lastHoroscopeBasetime_;
  double lastHoroscopeLatitude_ = 0.0;
  double lastHoroscopeLongitude_ = 0.0;
};

}  // namespace veyruna::model
