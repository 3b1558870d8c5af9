#pragma once

#include <QMetaMethod>
#include <QMetaProperty>
#include <QThread>
#include <array>
#include <string>
#include <vector>

#include "model/astronomy_model.h"

namespace veyruna::tests {

/// The names of the fields that signalled a change, in the order they did.
class ChangeLog {
 public:
  using Names = std::vector<std::string>;

  explicit ChangeLog(model::AstronomyModel& model) {
    for (const auto& [name, signal] : signalsOfTheModel) {
      const auto note = [this, field = name] {
        names_.emplace_back(field);
        isHere_ = isHere_ && QThread::currentThread() == home_;
      };
      QObject::connect(&model, signal, &listener_, note, Qt::DirectConnection);
    }
  }
  ChangeLog(const ChangeLog&) = delete;
  ChangeLog& operator=(const ChangeLog&) = delete;
  ~ChangeLog() = default;

  /// What was signalled since the last call.
  Names taken() {
    Names names;
    names.swap(names_);
    return names;
  }
  /// Whether every change came on the thread the log was made on.
  [[nodiscard]] bool isOnOneThread() const { return isHere_; }

  /// How many signals the log listens to.
  static constexpr std::size_t count() { return signalsOfTheModel.size(); }

 private:
  QObject listener_;  ///< what is signalled after the log has gone, nobody hears

  using Model = model::AstronomyModel;
  struct Named {
    const char* name;
    void (Model::*signal)();
  };
  static constexpr std::array<Named, 27> signalsOfTheModel = {{
      {"cities", &Model::citiesChanged},
      {"selectedCityID", &Model::selectedCityIDChanged},
      {"manualLatDeg", &Model::manualLatDegChanged},
      {"manualLongDeg", &Model::manualLongDegChanged},
      {"latNorth", &Model::latNorthChanged},
      {"longWest", &Model::longWestChanged},
      {"monthIndex", &Model::monthIndexChanged},
      {"dayIndex", &Model::dayIndexChanged},
      {"year", &Model::yearChanged},
      {"hour", &Model::hourChanged},
      {"useLocalTime", &Model::useLocalTimeChanged},
      {"starMapSVG", &Model::starMapSVGChanged},
      {"horoscopeSVG", &Model::horoscopeSVGChanged},
      {"basicTableHourly", &Model::basicTableHourlyChanged},
      {"basicTableMonthly", &Model::basicTableMonthlyChanged},
      {"conjunctionDaily", &Model::conjunctionDailyChanged},
      {"conjunctionYearly", &Model::conjunctionYearlyChanged},
      {"positions", &Model::positionsChanged},
      {"dateLabel", &Model::dateLabelChanged},
      {"nextFullMoonLabel", &Model::nextFullMoonLabelChanged},
      {"nextNewMoonLabel", &Model::nextNewMoonLabelChanged},
      {"isCalculating", &Model::isCalculatingChanged},
      {"errorMessage", &Model::errorMessageChanged},
      {"horoscopeBlackAndWhite", &Model::horoscopeBlackAndWhiteChanged},
      {"lastHoroscopeBasetime", &Model::lastHoroscopeBasetimeChanged},
      {"lastHoroscopeLatitude", &Model::lastHoroscopeLatitudeChanged},
      {"lastHoroscopeLongitude", &Model::lastHoroscopeLongitudeChanged},
  }};

  Names names_;
  QThread* home_ = QThread::currentThread();
  bool isHere_ = true;
};

}  // namespace veyruna::tests
