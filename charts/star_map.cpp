// λ ecliptic longitude; M the middle of a tick, n its half length across the ecliptic.
#include "charts/star_map.h"

#include <array>
#include <cmath>
#include <optional>
#include <string_view>
#include <vector>

#include "astro/horizon.h"
#include "astro/moon.h"
#include "astro/planet.h"
#include "astro/rotation.h"
#include "astro/sun.h"
#include "charts/body_marker.h"
#include "charts/body_style.h"
#include "charts/chart_frame.h"
#include "charts/ink.h"
#include "charts/mark_recorder.h"
#include "charts/moon_glyph.h"
#include "charts/svg_writer.h"

namespace veyruna::charts {

namespace {

constexpr std::string_view starMapHead =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 360 360">
<circle cx="180" cy="180" r="180" fill="#210741" />
)";

constexpr std::string_view eclipticColor = "#4af2a1";

/// Where a direction above the horizon is drawn; nothing below it.
using VisiblePoint = std::optional<ProjectedPoint>;

/// The sky of one moment and place, drawn piece by piece.
class StarMap {
 public:
  StarMap(std::string& document, const astro::Observer& observer, const StarCatalogue& catalogue,
          ChartMarks* marks)
      : svg_(document),
        marks_(marks),
        observer_(observer),
        horizon_(observer),
        catalogue_(catalogue) {
    starPoints_.reserve(catalogue.stars().size());
    for (const FixedStar& star : catalogue.stars()) {
      starPoints_.push_back(visiblePoint(star.eq));
    }
  }

  void draw() {
    svg_.markup(starMapHead);
    drawGrid(svg_);
    drawCompass();
    drawHeader(svg_, observer_);
    drawEcliptic();
    drawSignBoundaries();
    drawConstellations();
    drawStars();
    drawWanderers();
    svg_.markup("</svg>\n");
  }

 private:
  [[nodiscard]] VisiblePoint visiblePoint(const astro::Vec3D& equatorial) const {
    const auto [x, y, z] = horizon_.toHorizonComponents(equatorial);
    if (z < 0.0) {
      return std::nullopt;
    }
    return projected(astro::Vec3D(x, y, z));
  }

  [[nodiscard]] VisiblePoint visibleEclipticPoint(double longitude) const {
    return visiblePoint(rotated(astro::Vec3D(longitude, 0.0), astro::eclipticToEquatorial));
  }

  void drawCompass() {
    struct Letter {
      std::string_view letter;
      std::int64_t x;
      std::int64_t y;
    };
    svg_.markup(R"(<circle cx="335" cy="25" r="25" fill="#210741" />)"
                "\n");
    for (const auto& [letter, x, y] :
         {Letter{"S", 335, 12}, Letter{"N", 335, 46}, Letter{"E", 318, 29}, Letter{"W", 352, 29}}) {
      beginText(svg_, x, y, "10").attribute("text-anchor", "middle").endWithText(letter);
    }
  }

  void drawEcliptic() {
    constexpr int segments = 360;
    VisiblePoint previous;
    for (int i = 0; i <= segments; ++i) {
      const VisiblePoint current = visibleEclipticPoint(i * 2.0 * astro::pi / segments);
      if (previous && current) {
        drawLine(svg_, previous->exact(), current->exact(), 2, {eclipticColor, "0.4", "0.7"});
      }
      previous = current;
    }
  }

  void drawSignBoundaries() {
    for (std::size_t i = 0; i < starPoints_.size(); ++i) {
      const FixedStar& star = catalogue_.stars()[i];
      if (star.isMarker()) {
        drawTick(i, star);
      }
    }
  }

  /// A short line across the ecliptic at the longitude λ of a sign's marker.
  void drawTick(std::size_t place, const FixedStar& marker) {
    const double longitude = marker.ec.phi;
    constexpr double chordHalfAngle = 0.01;
    constexpr double shortestChord = 1e-6;
    constexpr double halfLength = 2.0;
    const VisiblePoint before = visibleEclipticPoint(longitude - chordHalfAngle);
    const VisiblePoint at = visibleEclipticPoint(longitude);
    const VisiblePoint after = visibleEclipticPoint(longitude + chordHalfAngle);
    if (!before || !at || !after) {
      return;
    }
    const PagePoint first = before->exact();
    const PagePoint last = after->exact();
    const double dx = last.x - first.x;
    const double dy = last.y - first.y;
    const double length = std::sqrt(dx * dx + dy * dy);
    if (length <= shortestChord) {
      return;
    }
    const PagePoint middle = at->exact();
    const double nx = halfLength * -dy / length;
    const double ny = halfLength * dx / length;
    const PagePoint begin{middle.x - nx, middle.y - ny};
    const PagePoint end{middle.x + nx, middle.y + ny};
    drawLine(svg_, begin, end, 2, {eclipticColor, "0.8"});
    marks_.signBoundary(place, marker, {begin, end, 0.4});
  }

  void drawConstellations() {
    for (const StarCatalogue::Line& line : catalogue_.lines()) {
      const VisiblePoint& from = starPoints_[line.from];
      const VisiblePoint& to = starPoints_[line.to];
      if (from && to) {
        drawLine(svg_, from->exact(), to->exact(), 1, {constellationColor, "0.4", "0.5"});
      }
    }
  }

  void drawMarker(const BodyMarker& marker) {
    drawDot(svg_, marker);
    if (marker.hasLabel()) {
      drawLabel(svg_, marker);
    }
  }

  void drawStars() {
    for (std::size_t i = 0; i < starPoints_.size(); ++i) {
      const FixedStar& star = catalogue_.stars()[i];
      if (starPoints_[i] && !star.isMarker()) {
        const BodyMarker marker{*starPoints_[i], star.name, star.color, star.dotSize()};
        drawMarker(marker);
        if (marks_.isRecording()) {
          marks_.star(i, star, drawn(marker));
        }
      }
    }
  }

  /// The sun, the moon and the planets.
  void drawWanderers() {
    const astro::Sun sun(observer_.baseTime);
    drawSun(sun);
    drawMoonOf(sun);
    for (const astro::Planet planet : astro::allPlanets) {
      const astro::Vec3D ecliptic = planetEcliptic(planet, observer_.baseTime, sun);
      if (const auto at = visiblePoint(rotated(ecliptic, astro::eclipticToEquatorial))) {
        const PlanetStyle& style = styleOf(planet);
        const BodyMarker marker{*at, displayName(planet), shadeOf(style.color).shade, style.size};
        drawMarker(marker);
        marks_.body(astro::rowOf(planet), marker.label, planetMagnitude, ecliptic, drawn(marker));
      }
    }
  }

  void drawSun(const astro::Sun& sun) {
    constexpr double sunSize = 3.57;
    if (const VisiblePoint at = visiblePoint(sun.eq)) {
      const BodyMarker marker{*at, "", shadeOf(sunColor).shade, sunSize};
      drawMarker(marker);
      marks_.body(astro::sunRow, astro::sunName, sunMagnitude, sun.ec, drawn(marker));
    }
  }

  void drawMoonOf(const astro::Sun& sun) {
    const astro::Moon moon(observer_.baseTime);
    if (const VisiblePoint at = visiblePoint(moon.eq)) {
      constexpr std::string_view white = shadeOf(moonColor).name;
      const PagePoint sunPoint = projected(horizon_.toHorizon(sun.eq)).exact();
      const MoonGlyph glyph{at->exact(), sunPoint, moon.ec.phi - sun.ec.phi, white};
      drawMoon(svg_, glyph, white);
      marks_.body(astro::moonRow, astro::moonName, moonMagnitude, moon.ec, drawn(glyph));
    }
  }

  SvgWriter svg_;
  MarkRecorder marks_;
  astro::Observer observer_;
  astro::HorizonFrame horizon_;
  const StarCatalogue& catalogue_;
  std::vector<VisiblePoint> starPoints_;  ///< in the catalogue's order
};

}  // namespace

std::string starMap(const astro::Observer& observer, const StarCatalogue& catalogue,
                    ChartMarks* marks) {
  std::string document;
  StarMap(document, observer, catalogue, marks).draw();
  return document;
}

}  // namespace veyruna::charts
