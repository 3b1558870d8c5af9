#include "tools/pictures/evenings.h"

#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "astro/invariant.h"
#include "astro/local_time.h"
#include "words/values.h"

namespace veyruna::pictures {

namespace {

/// What stands behind a name.
std::istringstream wordsOf(const std::string& name) {
  std::ifstream file(VEYRUNA_PICTURE_MOMENTS);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(name + ' ')) {
      return std::istringstream(line.substr(name.size() + 1));
    }
  }
  astro::stopOnBrokenInvariant(name.c_str());
}

}  // namespace

astro::Observer Evening::observer() const {
  return {astro::localBaseTime(reading, longitude), latitude, longitude};
}

Evening eveningOf(const char* name) {
  std::istringstream words = wordsOf(name);
  std::map<std::string, std::string> options;
  for (std::string option; words >> option;) {
    if (option != "--local") {  // every evening is
      words >> options[option];
    }
  }
  constexpr std::int64_t lastYear = 2000;
  return {{.year = words::readWholeNumber("--year", options["--year"], 1, lastYear),
           .monthIndex = words::readMonthIndex("--month", options["--month"]),
           .dayIndex = words::readWholeNumber("--day", options["--day"], 1, 30) - 1,
           .hour = words::readHour("--hour", options["--hour"])},
          words::readLatitude("--lat", options["--lat"]),
          words::readLongitude("--long", options["--long"])};
}

QRectF partOf(const char* name) {
  std::istringstream words = wordsOf(name);
  double left = 0.0;
  double top = 0.0;
  double width = 0.0;
  double height = 0.0;
  words >> left >> top >> width >> height;
  astro::requireInvariant(!words.fail(), name);
  return {left, top, width, height};
}

}  // namespace veyruna::pictures
