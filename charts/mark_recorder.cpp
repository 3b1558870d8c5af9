#include "charts/mark_recorder.h"

#include <string>
#include <utility>

#include "astro/number_text.h"

namespace veyruna::charts {

namespace {

constexpr std::string_view backgroundPrefix = "_BACKGROUND";

std::vector<Stretch> asList(const std::optional<Stretch>& stretch) {
  return stretch ? std::vector{*stretch} : std::vector<Stretch>{};
}

/// "Voni" of "_VONI3" and "_VONI": a figure is called as the code of its stars is written.
std::string figureOf(std::string_view code) {
  std::string name;
  for (const char letter : code.substr(1)) {
    if (letter >= 'A' && letter <= 'Z') {
      name += name.empty() ? letter : static_cast<char>(letter - 'A' + 'a');
    }
  }
  return name;
}

std::string starOfMagnitude(double magnitude) {
  std::string name = "Star of magnitude ";
  astro::appendFixed(name, magnitude, 1);
  return name;
}

}  // namespace

DrawnMarker drawn(const BodyMarker& marker) {
  const PagePoint at = marker.at.rounded();
  DrawnMarker as;
  if (marker.size > 0.0) {
    as.dot = Stretch{at, at, marker.size};
  }
  if (marker.hasLabel()) {
    as.letters = marker.size == 0.0 ? letteringAbout(at, marker.label, labelSize)
                                    : letteringAt(labelBegin(marker), marker.label, labelSize);
  }
  return as;
}

void MarkRecorder::body(std::size_t row, std::string_view name, double magnitude,
                        const astro::Vec3D& ecliptic, const DrawnMarker& as) {
  if (marks_ != nullptr && (as.dot || as.letters)) {
    marks_->push_back({MarkKind::body,
                       row,
                       std::string(name),
                       magnitude,
                       asList(as.dot),
                       asList(as.letters),
                       ecliptic,
                       {}});
  }
}

void MarkRecorder::star(std::size_t place, const FixedStar& star, const DrawnMarker& as) {
  if (marks_ == nullptr || (!as.dot && !as.letters)) {
    return;
  }
  ChartMark mark{MarkKind::star,     place,   {}, star.magnitude, asList(as.dot),
                 asList(as.letters), star.ec, {}};
  if (star.name.starts_with(backgroundPrefix)) {
    mark.kind = MarkKind::backgroundStar;
    mark.name = starOfMagnitude(star.magnitude);
  } else if (star.name.starts_with('_')) {
    mark.name = figureOf(star.name);
  } else {
    mark.name = star.name;
    if (star.dotSize() <= 0.0) {
      mark.kind = MarkKind::figureName;
      mark.magnitude = overStarsMagnitude;
    }
  }
  marks_->push_back(std::move(mark));
}

void MarkRecorder::signBoundary(std::size_t place, const FixedStar& marker, const Stretch& tick) {
  if (marks_ != nullptr) {
    marks_->push_back({MarkKind::signBoundary,
                       place,
                       "Beginning of " + figureOf(marker.name),
                       signBoundaryMagnitude,
                       {tick},
                       {},
                       marker.ec,
                       {}});
  }
}

void MarkRecorder::ascendant(double longitude, const DrawnMarker& as) {
  if (marks_ != nullptr) {
    marks_->push_back({MarkKind::ascendant,
                       0,
                       "Ascendant",
                       ascendantMagnitude,
                       asList(as.dot),
                       asList(as.letters),
                       astro::Vec3D(longitude, 0.0),
                       {}});
  }
}

void MarkRecorder::chord(std::size_t place, std::string_view name, const Stretch& chord,
                         std::string_view line) {
  if (marks_ != nullptr) {
    marks_->push_back({MarkKind::chord,
                       place,
                       std::string(name),
                       overStarsMagnitude,
                       {chord},
                       {},
                       {},
                       std::string(line)});
  }
}

void MarkRecorder::panelText(std::int64_t x, std::int64_t y, std::string_view text, double size) {
  if (marks_ == nullptr) {
    return;
  }
  const Stretch letters = letteringAt({static_cast<double>(x), static_cast<double>(y)}, text, size);
  if (panelLines_ > 0 && y == lineY_) {
    ChartMark& line = marks_->back();
    line.letters.front().to = letters.to;
    line.line.append(", ").append(text);
    return;
  }
  lineY_ = y;
  marks_->push_back({MarkKind::panelLine,
                     panelLines_++,
                     std::string(text),
                     panelLineMagnitude,
                     {},
                     {letters},
                     {},
                     std::string(text)});
}

}  // namespace veyruna::charts
