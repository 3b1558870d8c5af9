#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "astro/vec3d.h"

namespace veyruna::charts {

/// −18°: the star field is turned back along the ecliptic by this much, in radians, against the
/// zodiac's markers and the labels, which stay.
inline constexpr double starFieldOffset = -0.3141592653589793;

/// One entry of the star catalogue. The form of the name decides its role:
/// "_BACKGROUND017" and "_VONI3" are stars, "_VONI" (no digit at the end) marks where a sign
/// begins, anything without the leading "_" is a label, drawn without a dot where the magnitude is
/// 0.
struct FixedStar {
  std::string name;
  astro::Vec3D eq;    ///< right ascension and declination
  astro::Vec3D ec;    ///< ecliptic longitude and latitude; the longitude may be negative
  double magnitude;   ///< brightness class, smaller is brighter; 0 makes a bare label
  std::string color;  ///< "#" and six hexadecimal digits

  [[nodiscard]] bool isMarker() const;
  /// Radius of the star's dot in user units, 0 for none.
  [[nodiscard]] double dotSize() const;
};

/// Makes one entry from its position in the equatorial or the ecliptic frame (radians). Stars are
/// turned by the star field's offset.
FixedStar makeStar(std::string name, bool isEquatorial, std::string color, double phi, double theta,
                   double magnitude);

/// The names of the two stars a constellation's line joins.
using LineNames = std::pair<std::string, std::string>;

/// The fixed sky: entries in drawing order, and the lines between them.
class StarCatalogue {
 public:
  /// The positions, in stars(), of the two ends of a line.
  struct Line {
    std::size_t from;
    std::size_t to;
  };

  /// Of two entries with one name the lines meet the first. A line with a name that no entry has is
  /// left out.
  StarCatalogue(std::vector<FixedStar> stars, const std::vector<LineNames>& lineNames);

  [[nodiscard]] const std::vector<FixedStar>& stars() const { return stars_; }
  [[nodiscard]] const std::vector<Line>& lines() const { return lines_; }

 private:
  std::vector<FixedStar> stars_;
  std::vector<Line> lines_;
};

/// The sky of Veyruna as it ships: 679 entries, 162 lines. Built on first use, from any thread.
const StarCatalogue& builtInCatalogue();

}  // namespace veyruna::charts
