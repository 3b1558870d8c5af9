#pragma once

#include <QString>
#include <array>

#include "astro/observer.h"
#include "reports/positions.h"

namespace veyruna::model {

/// All that a calculation sees.
struct CalculationInput {
  astro::Observer observer;
  bool blackAndWhite = false;  ///< of the horoscope
};

/// Every output of one moment and place.
struct CalculationResult {
  CalculationInput input;
  QString starMapSVG;
  QString horoscopeSVG;
  QString basicTableHourly;   ///< 24 rows, one an hour
  QString basicTableMonthly;  ///< 30 rows, one a day
  QString conjunctionDaily;   ///< 144 rows, one every ten minutes
  QString conjunctionYearly;  ///< 360 rows, one a day
  std::array<reports::PositionRow, astro::bodyCount> positions;
  QString dateLabel;
  QString nextFullMoonLabel;
  QString nextNewMoonLabel;
  double nextFullMoonBaseTime;  ///< days
  double nextNewMoonBaseTime;   ///< days
};

/// Computes everything. Safe from any thread.
CalculationResult calculate(const CalculationInput& input);

/// The horoscope alone.
QString calculateHoroscope(const CalculationInput& input);

/// Whether the calculations hold for this moment: within a billion days of the epoch.
bool isWithinReach(double baseTime);

/// Whether these are angles of a globe: finite and not above 1,000 radians.
bool isOnGlobe(double latitude, double longitude);

}  // namespace veyruna::model
