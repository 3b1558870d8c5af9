#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "charts/star_catalogue.h"
#include "tests/charts/sphere.h"

/// The shipped sky sorted out by the form of its names, as it appears on the charts.
namespace veyruna::tests {

enum class Role { background, figureStar, marker, label };

/// The role of an entry of this name.
Role roleOf(std::string_view name);

/// "_VONI3" and "_VONI" give "VONI".
std::string codeOf(std::string_view name);

/// "The Harp" gives "THEHARP": the code of the constellation a label would name.
std::string codeNamedBy(std::string_view label);

/// One constellation.
struct Figure {
  std::vector<const charts::FixedStar*> stars;
  std::vector<std::pair<const charts::FixedStar*, const charts::FixedStar*>> lines;
};

struct Survey {
  std::vector<const charts::FixedStar*> background;
  std::vector<const charts::FixedStar*> markers;
  std::vector<const charts::FixedStar*> labels;
  std::map<std::string, Figure> figures;  ///< by code
};

/// The shipped catalogue. A line between two constellations is listed with the first.
const Survey& surveyOfTheSky();

/// Where an entry appears, in the equatorial frame.
inline Direction seen(const charts::FixedStar& star) {
  return directionOf({star.eq.phi, star.eq.theta});
}

/// Background and constellation stars, everything with a dot but the label-star.
std::vector<Direction> allStars();

/// `count` directions spread evenly over the sphere.
std::vector<Direction> evenlySpread(int count);

/// From a direction to the nearest star or line of a figure, radians.
double angleToFigure(const Direction& from, const Figure& figure);

}  // namespace veyruna::tests
