#include "tests/support/reference_case.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "charts/catalogue_reader.h"
#include "tests/support/source_path.h"

namespace veyruna::tests {

std::string fileContent(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error("cannot read " + path);
  }
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

double ReferenceCase::baseTime() const {
  return useLocalTime ? astro::localBaseTime({year, monthIndex, dayIndex, hour}, longitude)
                      : astro::standardBaseTime({year, monthIndex, dayIndex, hour});
}

astro::Observer ReferenceCase::observer() const {
  return {.baseTime = baseTime(), .latitude = latitude, .longitude = longitude};
}

std::string ReferenceCase::testName() const {
  std::string name = folder;
  std::erase(name, '-');
  return name;
}

std::string ReferenceCase::goldenName(const std::string& file) const {
  return "reference/" + folder + "/" + file;
}

std::string ReferenceCase::expected(const std::string& file) const {
  return fileContent(sourcePath("tests/" + goldenName(file)));
}

const std::vector<ReferenceCase>& referenceCases() {
  static const std::vector<ReferenceCase> cases = {
      {"first-start", 720, 0, 0, 12.0, false, astro::radiansOf(40.5), -astro::radiansOf(20.9)},
      {"evening-local", 1243, 6, 18, 18.25, true, astro::radiansOf(11.5), astro::radiansOf(25.3)},
      {"polar-night", 3, 11, 29, 23.75, false, astro::radiansOf(78.5), -astro::radiansOf(120.25)},
      {"south", 2000, 4, 5, 0.25, true, -astro::radiansOf(33.125), astro::radiansOf(179.5)},
  };
  return cases;
}

const charts::StarCatalogue& referenceCatalogue() {
  static const charts::StarCatalogue catalogue(
      charts::readStars(fileContent(sourcePath("tests/reference/catalogue/stars.csv"))),
      charts::readLineNames(fileContent(sourcePath("tests/reference/catalogue/lines.csv"))));
  return catalogue;
}

}  // namespace veyruna::tests
