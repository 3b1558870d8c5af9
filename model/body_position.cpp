#include "model/body_position.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace veyruna::model {

namespace {

BodyColor colorOf(std::string_view body) {
  using Colored = std::pair<std::string_view, BodyColor>;
  static constexpr std::array<Colored, 6> colors = {{
      {"Thessil", BodyColor::yellow},
      {"Ivro", BodyColor::white},
      {"Bralo", BodyColor::blue},
      {"Dunmor", BodyColor::red},
      {"Galvi", BodyColor::orange},
      {"Pallox", BodyColor::purple},
  }};
  const auto* const found =
      std::find_if(colors.begin(), colors.end(),
                   [body](const Colored& colored) { return colored.first == body; });
  return found == colors.end() ? BodyColor::gray : found->second;
}

}  // namespace

QList<BodyPosition> bodyPositions(std::span<const reports::PositionRow> rows,
                                  const IdSource& newId) {
  QList<BodyPosition> positions;
  for (const reports::PositionRow& row : rows) {
    positions.append({newId(), QString::fromStdString(row.name),
                      QString::fromStdString(row.bodyType), colorOf(row.name),
                      QString::fromStdString(row.azimuth), QString::fromStdString(row.altitude),
                      QString::fromStdString(row.ecLong), QString::fromStdString(row.sign)});
  }
  return positions;
}

}  // namespace veyruna::model
