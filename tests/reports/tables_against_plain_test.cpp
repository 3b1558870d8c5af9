// The program's tables against the plain ones, to the byte, for many moments and places.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "astro/angle.h"
#include "astro/sun.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"
#include "tests/reports/plain_tables.h"
#include "tests/support/c_printf.h"

namespace veyruna {
namespace {

/// How many moments and places are tried; VEYRUNA_PLAIN_CASES sets another number.
std::int64_t caseCount() {
  const char* wanted = std::getenv("VEYRUNA_PLAIN_CASES");
  return wanted != nullptr ? std::strtoll(wanted, nullptr, 10) : 2000;
}

/// The same moments and places on every machine and in every run.
class Draw {
 public:
  double between(double low, double high) {
    return low + (high - low) * (static_cast<double>(bits_() >> 11U) * 0x1p-53);
  }

  double moment() {
    switch (bits_() % 10) {
      case 0:
        return std::floor(between(-4e6, 4e6)) / 4.0;
      case 1:
        return between(-1e9, 1e9);
      case 2:
        return nearEquinoxOrSolstice();
      case 3:
        return std::floor(between(0.0, 360.0 * 1440.0 * 3000.0)) / 1440.0 - 0.5;
      case 4:
        return beforeEclipse();
      case 5:
        return between(-1000.0, 0.0);
      case 6:
        return between(0.0, 360.0 * 3000.0);
      case 7:
        // Searches that begin here halve to 0.5, where the sun stands on the equator to the bit.
        return std::floor(between(-256.0, 256.0)) / 8.0;
      default:
        return between(-1e6, 1e6);
    }
  }

  double latitude() {
    const double side = bits_() % 2 == 0 ? 1.0 : -1.0;
    switch (bits_() % 8) {
      case 0:
        return side * astro::halfPi;
      case 1:
        return side * degrees(between(88.0, 90.0));
      case 2:
      case 3:
        return side * degrees(between(60.0, 70.0));
      case 4:
        return side * degrees(69.0 + between(-0.05, 0.05));
      case 5:
        return bits_() % 2 == 0 ? 0.0 : degrees(std::floor(between(-360.0, 361.0)) / 4.0);
      default:
        return degrees(between(-90.0, 90.0));
    }
  }

 private:
  static double degrees(double d) { return d * astro::pi / 180.0; }

  double nearEquinoxOrSolstice() {
    const double quarters = std::floor(between(-12000.0, 12000.0));
    return 0.5 + quarters / 4.0 / astro::sunMeanMotion + between(-2.0, 2.0);
  }

  double beforeEclipse() {
    for (;;) {
      const double t = between(-1e6, 1e6);
      if (!tests::plainNodeEclipseEvent(t, 0.25).empty()) {
        return t - between(0.0, 2.0);
      }
    }
  }

  std::mt19937_64 bits_{20260101};
};

std::string described(double moment, double latitude) {
  return tests::printedInC("base time %a (%.17g), latitude %a (%.17g°)", moment, moment, latitude,
                           latitude * 180.0 / astro::pi);
}

/// How often something stands in the tables compared, to know that the comparison saw it.
struct Seen {
  std::int64_t risings = 0;
  std::int64_t eclipses = 0;
  std::int64_t quietRows = 0;

  void count(const std::string& table) {
    for (std::size_t i = table.find('\n'); i + 1 < table.size(); i = table.find('\n', i + 1)) {
      const std::string row = table.substr(i + 1, table.find('\n', i + 1) - i - 1);
      risings += row.find("R@") != std::string::npos ? 1 : 0;
      eclipses += row.find("OST ", row.find("OST") + 4) != std::string::npos ? 1 : 0;
      quietRows += row.find('@') == std::string::npos ? 1 : 0;
    }
  }
};

TEST(TablesAgainstPlain, EphemeridesAreTheSameToTheByte) {
  Draw draw;
  Seen seen;
  const std::int64_t cases = caseCount();
  for (std::int64_t i = 0; i < cases; ++i) {
    const double t = draw.moment();
    const double latitude = draw.latitude();
    const std::string hourly = reports::ephemerisTable({t, latitude}, {24, 1.0 / 24.0});
    ASSERT_EQ(hourly, tests::plainEphemerisTable(24, t, 1.0 / 24.0, latitude))
        << "hourly, " << described(t, latitude);
    const std::string monthly = reports::ephemerisTable({t, latitude}, {30, 1.0});
    ASSERT_EQ(monthly, tests::plainEphemerisTable(30, t, 1.0, latitude))
        << "monthly, " << described(t, latitude);
    seen.count(hourly);
    seen.count(monthly);
  }
  EXPECT_GT(seen.risings, 10 * cases);
  EXPECT_GT(seen.eclipses, cases / 4);
  EXPECT_GT(seen.quietRows, cases);
}

/// A row without marks ends with the two blanks after its last column.
std::int64_t rowsWithMarks(const std::string& table) {
  std::int64_t rows = 0;
  for (std::size_t end = table.find(" \n"); end != std::string::npos;
       end = table.find(" \n", end + 1)) {
    rows += table[end - 1] != ' ' ? 1 : 0;
  }
  return rows;
}

TEST(TablesAgainstPlain, ConjunctionsAreTheSameToTheByte) {
  Draw draw;
  const std::int64_t cases = caseCount();
  std::int64_t marks = 0;
  for (std::int64_t i = 0; i < cases; ++i) {
    const double t = draw.moment();
    for (const double step : {1.0 / 144.0, 1.0}) {
      const std::string table = reports::conjunctionTable(t, {24, step});
      ASSERT_EQ(table, tests::plainConjunctionTable(24, t, step))
          << "step " << step << ", " << described(t, 0.0);
      marks += rowsWithMarks(table);
    }
  }
  EXPECT_GT(marks, cases / 4);
}

}  // namespace
}  // namespace veyruna
