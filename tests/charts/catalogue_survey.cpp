#include "tests/charts/catalogue_survey.h"

#include <algorithm>

namespace veyruna::tests {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

Survey survey(const charts::StarCatalogue& sky) {
  Survey found;
  for (const charts::FixedStar& star : sky.stars()) {
    switch (roleOf(star.name)) {
      case Role::background:
        found.background.push_back(&star);
        break;
      case Role::figureStar:
        found.figures[codeOf(star.name)].stars.push_back(&star);
        break;
      case Role::marker:
        found.markers.push_back(&star);
        break;
      case Role::label:
        found.labels.push_back(&star);
        break;
    }
  }
  for (const charts::StarCatalogue::Line& line : sky.lines()) {
    const charts::FixedStar& from = sky.stars()[line.from];
    found.figures[codeOf(from.name)].lines.emplace_back(&from, &sky.stars()[line.to]);
  }
  return found;
}

}  // namespace

Role roleOf(std::string_view name) {
  if (!name.starts_with('_')) {
    return Role::label;
  }
  if (!isDigit(name.back())) {
    return Role::marker;
  }
  return name.starts_with("_BACKGROUND") ? Role::background : Role::figureStar;
}

std::string codeOf(std::string_view name) {
  name.remove_prefix(1);
  while (!name.empty() && isDigit(name.back())) {
    name.remove_suffix(1);
  }
  return std::string(name);
}

std::string codeNamedBy(std::string_view label) {
  std::string code;
  for (const char c : label) {
    if (c != ' ') {
      code += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
  }
  return code;
}

const Survey& surveyOfTheSky() {
  static const Survey found = survey(charts::builtInCatalogue());
  return found;
}

std::vector<Direction> allStars() {
  std::vector<Direction> stars;
  for (const charts::FixedStar& star : charts::builtInCatalogue().stars()) {
    const Role role = roleOf(star.name);
    if (role == Role::background || role == Role::figureStar) {
      stars.push_back(seen(star));
    }
  }
  return stars;
}

std::vector<Direction> evenlySpread(int count) {
  const double goldenAngle = halfTurn * (3.0 - std::sqrt(5.0));
  std::vector<Direction> directions;
  directions.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    directions.push_back(directionOf({i * goldenAngle, std::asin(1.0 - (2.0 * i + 1.0) / count)}));
  }
  return directions;
}

double angleToFigure(const Direction& from, const Figure& figure) {
  double nearest = halfTurn;
  for (const charts::FixedStar* const star : figure.stars) {
    nearest = std::min(nearest, angleBetween(from, seen(*star)));
  }
  for (const auto& [first, second] : figure.lines) {
    nearest = std::min(nearest, angleToArc(from, seen(*first), seen(*second)));
  }
  return nearest;
}

}  // namespace veyruna::tests
