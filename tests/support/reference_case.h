#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "astro/observer.h"
#include "charts/star_catalogue.h"

namespace veyruna::tests {

/// A moment and place whose complete outputs are kept under tests/reference/<folder>/.
struct ReferenceCase {
  std::string folder;
  std::int64_t year;
  std::int64_t monthIndex;
  std::int64_t dayIndex;
  double hour;
  bool useLocalTime;
  double latitude;   ///< radians
  double longitude;  ///< radians

  [[nodiscard]] double baseTime() const;
  [[nodiscard]] astro::Observer observer() const;
  /// The folder's name as a test may be called.
  [[nodiscard]] std::string testName() const;
  /// One of the case's files as isGolden calls it.
  [[nodiscard]] std::string goldenName(const std::string& file) const;
  /// The content of one of the case's files.
  [[nodiscard]] std::string expected(const std::string& file) const;
};

/// As a failed test names it: "south".
inline std::ostream& operator<<(std::ostream& stream, const ReferenceCase& at) {
  return stream << at.folder;
}

const std::vector<ReferenceCase>& referenceCases();

/// The small catalogue the reference charts were drawn with.
const charts::StarCatalogue& referenceCatalogue();

/// A file's bytes; fails the program where it cannot be read.
std::string fileContent(const std::string& path);

}  // namespace veyruna::tests
