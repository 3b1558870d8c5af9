#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "astro/vec3d.h"
#include "charts/stretch.h"

/// What is drawn where on a chart, so that a person can point at it.
namespace veyruna::charts {

enum class MarkKind {
  body,            ///< sun, moon and planets
  star,            ///< of a figure, or with a name of its own
  backgroundStar,  ///< of no figure
  figureName,      ///< the name of a figure of stars or of a sign
  signBoundary,    ///< where a sign begins
  ascendant,
  chord,     ///< between two planets
  panelLine  ///< a row or a heading of the interpretation
};

/// One thing on a chart.
struct ChartMark {
  MarkKind kind;
  /// Which of its kind, the same on every chart: a body's row in the positions list, a star's or a
  /// name's or a boundary's place in the catalogue, a chord's in their order, a line's likewise.
  std::size_t ordinal;
  /// As a person reads it; of a figure's star the figure's, of one without a name its magnitude.
  std::string name;
  /// How readily it is pointed at: a star's magnitude, and for all else as if it were a star.
  double magnitude;
  std::vector<Stretch> dots;             ///< the thing itself: one, or none for a name alone
  std::vector<Stretch> letters;          ///< the name beside it
  std::optional<astro::Vec3D> ecliptic;  ///< longitude and latitude of what stands in the sky
  std::string line;                      ///< of a chord or a panel's line: all its row says

  /// The point of the page that stands for it.
  [[nodiscard]] PagePoint middle() const {
    return (dots.empty() ? letters : dots).front().middle();
  }
};

/// In the order in which they are drawn.
using ChartMarks = std::vector<ChartMark>;

inline constexpr double sunMagnitude = -3.0;
inline constexpr double moonMagnitude = -2.5;
inline constexpr double planetMagnitude = -1.0;
inline constexpr double ascendantMagnitude = 0.0;
inline constexpr double signBoundaryMagnitude = 2.0;
inline constexpr double panelLineMagnitude = 0.0;

/// Of chords and of all names: they are long and lie over stars, which then go before them.
inline constexpr double overStarsMagnitude = 6.5;

}  // namespace veyruna::charts
