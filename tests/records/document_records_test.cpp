// Records hold the numbers of the texts, unrounded: the texts' columns are read back and compared.
#include "records/document_records.h"

#include <cmath>
#include <gtest/gtest.h>
#include <locale>
#include <map>
#include <nlohmann/json.hpp>
#include <rapidcheck/gtest.h>
#include <sstream>

#include "astro/angle.h"
#include "records/all_types.h"
#include "records/sky_fields.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"
#include "reports/positions.h"
#include "tests/reports/table_lines.h"
#include "tests/support/expect_stop.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using Json = nlohmann::json;
using astro::Observer;
using documents::Document;
using reports::TableSize;

Json recordsOf(Document document, const Observer& observer, const TableSize& size) {
  return Json::parse(reports::collected([&](const reports::TextSink& sink) {
    records::writeRecords(document, observer, size, records::Notation::json, sink);
  }));
}

rc::Gen<Observer> observers() {
  return rc::gen::build<Observer>(rc::gen::set(&Observer::baseTime, tests::momentsWithin(1e6)),
                                  rc::gen::set(&Observer::latitude, tests::latitudes()),
                                  rc::gen::set(&Observer::longitude, tests::longitudes()));
}

/// " 012:30", "-000:30" or "    :30" as degrees.
double degreesIn(const std::string& text) {
  const std::size_t colon = text.find(':');
  const std::string before = text.substr(0, colon);
  const double minutes = std::stod(text.substr(colon + 1)) / 60.0;
  const bool hasDegrees = before.find_first_of("0123456789") != std::string::npos;
  const double degrees = hasDegrees ? std::abs(std::stod(before)) : 0.0;
  return (before.find('-') == std::string::npos ? 1.0 : -1.0) * (degrees + minutes);
}

constexpr double halfAMinute = 0.5 / 60.0 + 1e-6;

bool isWithin(double one, double other, double degrees) {
  return std::abs(std::remainder(one - other, 360.0)) <= degrees;
}

bool isInTurn(double degrees) {
  return degrees >= 0.0 && degrees < 360.0;
}

RC_GTEST_PROP(DocumentRecords, PositionsAreThoseOfTheText, ()) {
  const Observer observer = *observers();
  const Json document = recordsOf(Document::positions, observer, {});
  RC_ASSERT(document["base_time_days"].get<double>() == observer.baseTime);
  RC_ASSERT(document["latitude_degrees"].get<double>() == astro::typedDegreesOf(observer.latitude));
  RC_ASSERT(document["longitude_degrees"].get<double>() ==
            astro::typedDegreesOf(observer.longitude));
  const auto rows = reports::positionRows(observer);
  RC_ASSERT(document["positions"].size() == rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Json& record = document["positions"][i];
    const auto degrees = [&record](const char* name) { return record[name].get<double>(); };
    RC_ASSERT(isWithin(degrees("azimuth_degrees"), degreesIn(rows[i].azimuth), halfAMinute));
    RC_ASSERT(isWithin(degrees("altitude_degrees"), degreesIn(rows[i].altitude), halfAMinute));
    RC_ASSERT(
        isWithin(degrees("ecliptic_longitude_degrees"), degreesIn(rows[i].ecLong), halfAMinute));
    RC_ASSERT(isInTurn(degrees("azimuth_degrees")));
    RC_ASSERT(isInTurn(degrees("ecliptic_longitude_degrees")));
    RC_ASSERT(std::abs(degrees("altitude_degrees")) <= 90.0);
    RC_ASSERT(rows[i].sign.starts_with(record["sign"].get<std::string>()));
    std::string name = rows[i].name;
    name.front() = static_cast<char>(std::tolower(name.front()));
    RC_ASSERT(record["body"].get<std::string>() == name);
  }
}

/// The events of an ephemeris line with their clock readings: "MR@18:47".
std::multiset<std::string> eventsOfLine(const std::string& line) {
  std::multiset<std::string> events;
  std::istringstream words(line);
  for (std::string word; words >> word;) {
    if (word.find('@') != std::string::npos) {
      events.insert(word);
    }
  }
  return events;
}

std::multiset<std::string> eventsOfRecord(const Json& record) {
  const std::map<std::string, std::string> codes = {
      {"ivro_rise_base_time_days", "MR@"},
      {"ivro_set_base_time_days", "MS@"},
      {"thessil_rise_base_time_days", "SR@"},
      {"thessil_set_base_time_days", "SS@"},
  };
  std::multiset<std::string> events;
  for (const auto& [member, code] : codes) {
    for (const double moment : record[member]) {
      const double hours = (moment - std::floor(moment)) * 24.0;
      const auto whole = static_cast<int>(hours);
      const auto minutes = static_cast<int>((hours - whole) * 60.0);
      const auto twoDigits = [](int number) {
        return (number < 10 ? "0" : "") + std::to_string(number);
      };
      events.insert(code + twoDigits(whole) + ":" + twoDigits(minutes));
    }
  }
  return events;
}

std::string oneTableLine(const std::string& table, std::size_t headerLines) {
  return tests::linesOf(table).at(headerLines);
}

RC_GTEST_PROP(DocumentRecords, TheEphemerisIsThatOfTheText, ()) {
  const Observer observer = *observers();
  const TableSize one{1, 1.0};
  const Json document = recordsOf(Document::hourly, observer, one);
  const Json& record = document["moments"][0];
  const std::string line = oneTableLine(reports::ephemerisTable(observer, one), 1);
  std::istringstream columns(line.substr(line.find("OST") + 3));
  columns.imbue(std::locale::classic());
  for (const char* const name :
       {"ivro_right_ascension_degrees", "ivro_declination_degrees",
        "ivro_ecliptic_latitude_degrees", "ivro_ecliptic_longitude_degrees",
        "thessil_right_ascension_degrees", "thessil_declination_degrees",
        "thessil_ecliptic_longitude_degrees"}) {
    double printed = 0.0;
    columns >> printed;
    RC_ASSERT(isWithin(record[name].get<double>(), printed, 0.005 + 1e-9));
  }
  double phase = 0.0;
  columns >> phase;
  RC_ASSERT(std::abs(record["ivro_phase"].get<double>() - phase) <= 0.005 + 1e-9);
  RC_ASSERT(eventsOfRecord(record) == eventsOfLine(line));
}

TEST(DocumentRecords, EveryEclipseOfTheEphemerisIsRecordedWithItsCode) {
  const Observer observer{-0.5, 0.5, 0.0};
  const TableSize years{21600, 1.0};
  const Json document = recordsOf(Document::monthly, observer, years);
  const auto lines = tests::linesOf(reports::ephemerisTable(observer, years));
  std::size_t eclipses = 0;
  for (std::size_t i = 0; i < 21600; ++i) {
    const Json& codes = document["moments"][i]["eclipse_codes"];
    ASSERT_EQ(codes.size(), document["moments"][i]["eclipse_base_time_days"].size());
    std::istringstream words(lines[i + 1]);
    std::vector<std::string> printed;
    for (std::string word; words >> word;) {
      if (word == "TS" || word == "PS" || word == "FUL" || word == "FPL" || word == "PPL") {
        printed.push_back(word);
      }
    }
    EXPECT_EQ(codes.get<std::vector<std::string>>(), printed) << lines[i + 1];
    eclipses += codes.size();
  }
  EXPECT_GT(eclipses, 20U);
}

RC_GTEST_PROP(DocumentRecords, ConjunctionsAreThoseOfTheText, ()) {
  const Observer observer = *observers();
  const TableSize one{1, 1.0};
  const Json document = recordsOf(Document::daily, observer, one);
  const Json& record = document["moments"][0];
  const std::string line = oneTableLine(reports::conjunctionTable(observer.baseTime, one), 2);
  const std::size_t begin = line.find("OST") + 5;
  constexpr std::size_t width = 9;
  constexpr std::size_t block = 6 * width + 2;
  const auto printed = [&](std::size_t firstColumn, std::size_t body) {
    return degreesIn(line.substr(begin + firstColumn + body * width, 7));
  };
  // Moon and sun stand under their own heading, the planets under the other.
  const char* const bodies[] = {"ivro", "thessil", "bralo", "dunmor", "galvi", "pallox"};
  for (std::size_t body = 0; body < 6; ++body) {
    const bool isPlanet = body >= 2;
    const double rightAscension =
        record[std::string(bodies[body]) + "_right_ascension_degrees"].get<double>();
    const double longitude =
        record[std::string(bodies[body]) + "_ecliptic_longitude_degrees"].get<double>();
    RC_ASSERT(isWithin(rightAscension, printed(isPlanet ? block : 0, body), halfAMinute));
    RC_ASSERT(isWithin(longitude, printed(isPlanet ? 0 : block, body), halfAMinute));
    RC_ASSERT(isInTurn(rightAscension) && isInTurn(longitude));
  }
  const std::map<std::string, std::string> codes = {
      {"bralo-dunmor", "BR-DU"}, {"bralo-galvi", "BR-GA"},   {"bralo-pallox", "BR-PA"},
      {"dunmor-galvi", "DU-GA"}, {"dunmor-pallox", "DU-PA"}, {"galvi-pallox", "GA-PA"}};
  std::string marks;
  for (const std::string pair : record["conjunctions"]) {
    marks += codes.at(pair) + " ";
  }
  RC_ASSERT(line.substr(begin + 2 * block - 2) == marks);
}

TEST(DocumentRecords, AMomentHasTheMoonsOfItsText) {
  const Observer observer{447318.2, 0.5, 0.5};
  const Json record = recordsOf(Document::moment, observer, {})["moments"][0];
  const auto said = [&record](const std::string& prefix) {
    std::string date = record[prefix + "date"];
    date[date.find('T')] = ' ';
    return date + " OST  (local " + record[prefix + "local_clock"].get<std::string>() + ")";
  };
  EXPECT_EQ(said("next_full_moon_"), documents::textOf(Document::nextFullMoon, observer));
  EXPECT_EQ(said("next_new_moon_"), documents::textOf(Document::nextNewMoon, observer));
  EXPECT_EQ(said("").substr(0, 20), documents::textOf(Document::date, observer).substr(0, 20));
  EXPECT_EQ(record["base_time_days"], 447318.2);
}

TEST(DocumentRecords, AreOfWhatIsNoPictureAndNoLabelAndOfTheInterpretation) {
  for (const documents::Entry& entry : documents::allDocuments) {
    const bool hasValues = entry.kind == documents::Kind::table ||
                           entry.kind == documents::Kind::list ||
                           entry.document == Document::horoscope;
    EXPECT_EQ(records::recordTypeOf(entry.document) != nullptr, hasValues) << entry.heading;
  }
}

TEST(DocumentRecordsDeathTest, OfAChartThereAreNone) {
  EXPECT_STOP(recordsOf(Document::starMap, {}, {}), "a document that is recorded has its type");
}

TEST(AllTypes, AreSoundAndStandUnderTheirNames) {
  for (const records::TypeEntry& entry : records::allTypes) {
    EXPECT_EQ(entry.type().name, entry.name);
    records::requireSoundType(entry.type());
  }
  EXPECT_TRUE(std::ranges::is_sorted(records::allTypes, {}, &records::TypeEntry::name));
}

TEST(DegreesInTurn, AreNeverAWholeTurn) {
  EXPECT_EQ(records::degreesInTurn(0.0), 0.0);
  EXPECT_EQ(records::degreesInTurn(-1e-17), 0.0);
  EXPECT_EQ(records::degreesInTurn(std::nextafter(astro::twoPi, 0.0)) < 360.0, true);
  EXPECT_NEAR(records::degreesInTurn(-astro::halfPi), 270.0, 1e-9);
  EXPECT_NEAR(records::degreesInTurn(5.0 * astro::pi), 180.0, 1e-9);
}

}  // namespace
}  // namespace veyruna
