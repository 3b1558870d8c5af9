#include "charts/star_catalogue.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "astro/rotation.h"

namespace veyruna::charts {

namespace {

bool endsInDigit(std::string_view name) {
  return !name.empty() && name.back() >= '0' && name.back() <= '9';
}

bool isStar(std::string_view name) {
  return name.starts_with('_') && endsInDigit(name);
}

}  // namespace

bool FixedStar::isMarker() const {
  return name.starts_with('_') && !endsInDigit(name);
}

double FixedStar::dotSize() const {
  return magnitude <= 0.0 ? 0.0 : std::max(2.0 - 0.3 * magnitude, 0.4);
}

FixedStar makeStar(std::string name, bool isEquatorial, std::string color, double phi, double theta,
                   double magnitude) {
  const astro::Vec3D given(phi, theta);
  astro::Vec3D eq = isEquatorial ? given : rotated(given, astro::eclipticToEquatorial);
  astro::Vec3D ec = isEquatorial ? rotated(given, astro::equatorialToEcliptic) : given;
  if (isStar(name)) {
    ec = astro::Vec3D(ec.phi + starFieldOffset, ec.theta);
    eq = rotated(ec, astro::eclipticToEquatorial);
  }
  return {std::move(name), eq, ec, magnitude, std::move(color)};
}

StarCatalogue::StarCatalogue(std::vector<FixedStar> stars, const std::vector<LineNames>& lineNames)
    : stars_(std::move(stars)) {
  std::map<std::string_view, std::size_t> indexByName;
  for (std::size_t i = 0; i < stars_.size(); ++i) {
    indexByName.try_emplace(stars_[i].name, i);
  }
  for (const auto& [fromName, toName] : lineNames) {
    const auto from = indexByName.find(fromName);
    const auto to = indexByName.find(toName);
    if (from != indexByName.end() && to != indexByName.end()) {
      lines_.push_back({from->second, to->second});
    }
  }
}

}  // namespace veyruna::charts
