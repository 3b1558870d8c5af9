#include "charts/catalogue_reader.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "astro/number_conversion.h"

namespace veyruna::charts {

namespace {

using Fields = std::vector<std::string_view>;

/// What stands before the first `separator`; `rest` becomes what stands behind it.
std::string_view takeUntil(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view taken = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  return taken;
}

[[noreturn]] void refuse(std::string_view line, std::string_view accepted) {
  throw CatalogueError("catalogue line \"" + std::string(line) + "\": " + std::string(accepted));
}

/// A file's text, and the header line it must have.
struct Table {
  std::string_view csv;
  std::string_view header;
};

/// Calls `readRow` for the fields of every line under the header.
template <class ReadRow>
void forEachRow(const Table& table, ReadRow readRow) {
  auto [csv, header] = table;
  const std::string_view first = takeUntil(csv, '\n');
  if (first != header) {
    refuse(first, "the first line must be \"" + std::string(header) + "\"");
  }
  const auto columns = std::count(header.begin(), header.end(), ',') + 1;
  while (!csv.empty()) {
    const std::string_view line = takeUntil(csv, '\n');
    if (std::count(line.begin(), line.end(), ',') + 1 != columns) {
      refuse(line, "expected the fields " + std::string(header));
    }
    Fields fields;
    std::string_view rest = line;
    for (auto i = columns; i > 0; --i) {
      fields.push_back(takeUntil(rest, ','));
    }
    readRow(line, fields);
  }
}

double numberIn(std::string_view line, std::string_view field) {
  const std::optional<double> number = astro::readDouble(field);
  if (!number || !std::isfinite(*number)) {
    refuse(line, "\"" + std::string(field) + "\" is not a number");
  }
  return *number;
}

bool isColor(std::string_view text) {
  constexpr std::string_view hexadecimal = "0123456789abcdefABCDEF";
  return text.size() == 7 && text.front() == '#' &&
         text.find_first_not_of(hexadecimal, 1) == std::string_view::npos;
}

}  // namespace

std::vector<FixedStar> readStars(std::string_view csv) {
  std::vector<FixedStar> stars;
  forEachRow({.csv = csv, .header = "name,frame,color,phi,theta,magnitude"},
             [&stars](std::string_view line, const Fields& fields) {
               const bool isEquatorial = fields[1] == "equatorial";
               if (!isEquatorial && fields[1] != "ecliptic") {
                 refuse(line, "the frame must be equatorial or ecliptic");
               }
               if (!isColor(fields[2])) {
                 refuse(line, "the color must be # and six hexadecimal digits");
               }
               stars.push_back(makeStar(std::string(fields[0]), isEquatorial,
                                        std::string(fields[2]), numberIn(line, fields[3]),
                                        numberIn(line, fields[4]), numberIn(line, fields[5])));
             });
  return stars;
}

std::vector<LineNames> readLineNames(std::string_view csv) {
  std::vector<LineNames> names;
  forEachRow({.csv = csv, .header = "from,to"},
             [&names](std::string_view /*line*/, const Fields& fields) {
               names.emplace_back(fields[0], fields[1]);
             });
  return names;
}

}  // namespace veyruna::charts
