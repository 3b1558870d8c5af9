// Θ local sidereal angle, A ascendant, M midheaven, H hour angle of the sun, ε obliquity.
#include "charts/horoscope.h"

#include <array>
#include <cmath>
#include <optional>
#include <string_view>
#include <vector>

#include "astro/horizon.h"
#include "astro/moon.h"
#include "astro/number_text.h"
#include "astro/rotation.h"
#include "astro/sun.h"
#include "charts/body_marker.h"
#include "charts/body_style.h"
#include "charts/chart_frame.h"
#include "charts/element.h"
#include "charts/ink.h"
#include "charts/interpretation.h"
#include "charts/mark_recorder.h"
#include "charts/moon_glyph.h"
#include "charts/nativity.h"
#include "charts/svg_writer.h"

namespace veyruna::charts {

namespace {

constexpr std::string_view horoscopeHead =
    R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox="-10 -10 720 380">
<defs>
<path id="rim" d="M180,5 A175,175, 0 1,1 180,355 A175,175, 0 1,1 180,5" fill="none" />
<path id="rim_inner" d="M180,10 A170,170, 0 1,1 180,350 A170,170, 0 1,1 180,10" fill="none" />
<clipPath id="horoscopeClip"><circle cx="180" cy="180" r="180"/></clipPath>
</defs>
)";

/// A label further out than this runs along the rim.
constexpr double rimDistance = 0.9;

/// South of this latitude the celestial pole's circle would leave the wheel: −21°.
constexpr double southernmostPoleCircle = -astro::obliquity;

using astro::Planet;

double midheavenOf(double siderealAngle) {
  return astro::wrappedToTurn(
      std::atan2(std::sin(siderealAngle), std::cos(siderealAngle) * astro::cosObliquity));
}

/// The horoscope of one moment and place, drawn piece by piece.
class Horoscope {
 public:
  Horoscope(std::string& document, bool blackAndWhite, const astro::Observer& observer,
            const StarCatalogue& catalogue, ChartMarks* marks)
      : svg_(document),
        marks_(marks),
        blackAndWhite_(blackAndWhite),
        observer_(observer),
        siderealAngle_(astro::localSiderealAngle(observer)),
        sun_(observer.baseTime),
        moon_(observer.baseTime),
        catalogue_(catalogue),
        nativity_(nativityOf(observer, siderealAngle_, sun_, moon_)) {}

  void draw() {
    svg_.markup(horoscopeHead);
    drawDisc();
    drawGrid(svg_);
    drawHeader(svg_, observer_);
    svg_.markup("<g clip-path=\"url(#horoscopeClip)\">\n");
    drawWanderers();
    drawChords();
    drawConstellations();
    drawSignBoundaries();
    drawStars();
    svg_.markup("</g>\n");
    drawAscendant();
    drawHourAngle();
    drawCelestialPole();
    drawInterpretation(svg_, nativity_, marks_);
    svg_.markup("</svg>\n");
  }

 private:
  /// The colour a thing is drawn in. On the white disc of black and white the light colours would
  /// not be seen: those of stars, signs and lines, of sun and moon, and the yellow chord are black.
  [[nodiscard]] std::string_view ink(std::string_view color) const {
    const bool isLight = color == signColor || color == brightStarColor ||
                         color == constellationColor || color == shadeOf(moonColor).name ||
                         color == shadeOf(sunColor).name;
    return blackAndWhite_ && isLight ? "black" : color;
  }

  void drawDisc() {
    svg_.element("circle")
        .attribute("cx", 180)
        .attribute("cy", 180)
        .attribute("r", 180)
        .attribute("fill", blackAndWhite_ ? "#ffffff" : "#727cbb")
        .attribute("stroke", textColor)
        .attribute("stroke-width", 1)
        .endEmpty();
  }

  /// What of it lies inside the wheel, where all else is cut off.
  static DrawnMarker inWheel(DrawnMarker as) {
    for (std::optional<Stretch>* const part : {&as.dot, &as.letters}) {
      if (*part && (*part)->distanceTo({centre, centre}) >= discRadius) {
        part->reset();
      }
    }
    return as;
  }

  void drawMarker(const BodyMarker& marker, double longitude) {
    drawDot(svg_, marker);
    if (!marker.hasLabel()) {
      return;
    }
    if (marker.at.distance > rimDistance) {
      drawRimLabel(marker, longitude);
    } else {
      drawLabel(svg_, marker);
    }
  }

  /// What of a marker at this longitude is seen where.
  [[nodiscard]] static DrawnMarker seen(const BodyMarker& marker, double longitude) {
    DrawnMarker as = drawn(marker);
    if (as.letters && marker.at.distance > rimDistance) {
      as.letters = letteringAlong(rimRadiusOf(marker), longitude, marker.label, labelSize);
    }
    return inWheel(as);
  }

  /// The outer path belongs to the signs, told by their colour.
  static bool isOnOuterRim(const BodyMarker& marker) { return marker.color == signColor; }
  static double rimRadiusOf(const BodyMarker& marker) {
    return isOnOuterRim(marker) ? 175.0 : 170.0;
  }

  /// A name along the rim that begins at its longitude.
  void drawRimLabel(const BodyMarker& marker, double longitude) {
    double percent = longitude * 50.0 / astro::pi;
    if (percent < 0.0) {
      percent += 100.0;
    }
    std::string startOffset;
    astro::appendFixed(startOffset, percent, 1);
    startOffset += '%';
    svg_.element("text")
        .attribute("fill", marker.color)
        .attribute("font-family", "Arial")
        .attribute("font-size", "5")
        .endStartTag();
    svg_.element("textPath")
        .attribute("xlink:href", isOnOuterRim(marker) ? "#rim" : "#rim_inner")
        .attribute("startOffset", startOffset)
        .endInside(marker.label);
    svg_.markup("</text>\n");
  }

  void drawBody(std::size_t row, std::string_view name, const BodyMarker& marker,
                const astro::Vec3D& ecliptic, double magnitude) {
    drawMarker(marker, ecliptic.phi);
    if (marks_.isRecording()) {
      marks_.body(row, name, magnitude, ecliptic, seen(marker, ecliptic.phi));
    }
  }

  /// The sun, the moon and the planets.
  void drawWanderers() {
    constexpr double sunSize = 5.0;
    const astro::Vec3D sunAt = rotated(sun_.eq, astro::equatorialToEcliptic);
    const astro::Vec3D moonAt = rotated(moon_.eq, astro::equatorialToEcliptic);
    const BodyMarker sun{projected(sunAt), "", ink(shadeOf(sunColor).name), sunSize};
    drawBody(astro::sunRow, astro::sunName, sun, sun_.ec, sunMagnitude);
    const MoonGlyph moon{projected(moonAt).exact(), projected(sunAt).exact(),
                         nativity_.moon - nativity_.sun, ink(shadeOf(moonColor).name)};
    drawMoon(svg_, moon, "gray");
    if (marks_.isRecording()) {
      marks_.body(astro::moonRow, astro::moonName, moonMagnitude, moon_.ec, inWheel(drawn(moon)));
    }
    for (const Planet planet : astro::allPlanets) {
      const PlanetStyle& style = styleOf(planet);
      const astro::Vec3D ecliptic(nativity_.planets[indexOf(planet)], 0.0);
      const BodyMarker marker{projected(ecliptic), displayName(planet),
                              ink(shadeOf(style.color).shade), style.size};
      drawBody(astro::rowOf(planet), marker.label, marker, ecliptic, planetMagnitude);
    }
  }

  void drawChords() {
    const auto onEdge = [this](Planet planet) {
      const double longitude = nativity_.planets[indexOf(planet)];
      return ProjectedPoint{1.0, std::sin(longitude) * discRadius,
                            std::cos(longitude) * discRadius};
    };
    for (const Element& element : elementsByChord) {
      const ProjectedPoint from = onEdge(element.pair.first);
      const ProjectedPoint to = onEdge(element.pair.second);
      svg_.element("line")
          .attribute("x1", from.roundedX())
          .attribute("y1", from.roundedY())
          .attribute("x2", to.roundedX())
          .attribute("y2", to.roundedY())
          .attribute("stroke", ink(element.color))
          .attribute("stroke-width", "0.8")
          .endEmpty();
      if (marks_.isRecording()) {
        marks_.chord(element.chordPlace, element.name, {from.rounded(), to.rounded(), 0.4},
                     elementLine(element, nativity_));
      }
    }
  }

  void drawConstellations() {
    const std::vector<FixedStar>& stars = catalogue_.stars();
    for (const StarCatalogue::Line& line : catalogue_.lines()) {
      drawLine(svg_, projected(stars[line.from].ec).exact(), projected(stars[line.to].ec).exact(),
               1, {ink(constellationColor), "0.4", "0.6"});
    }
  }

  void drawSignBoundaries() {
    constexpr double innerEnd = 174.0;
    constexpr double outerEnd = 186.0;
    for (std::size_t i = 0; i < catalogue_.stars().size(); ++i) {
      const FixedStar& star = catalogue_.stars()[i];
      if (star.isMarker()) {
        const double right = std::sin(star.ec.phi);
        const double up = std::cos(star.ec.phi);
        const PagePoint inner{centre + innerEnd * right, centre - innerEnd * up};
        const PagePoint outer{centre + outerEnd * right, centre - outerEnd * up};
        drawLine(svg_, inner, outer, 2, {ink(signColor), "0.8"});
        const PagePoint edge{centre + discRadius * right, centre - discRadius * up};
        marks_.signBoundary(i, star, {inner, edge, 0.4});
      }
    }
  }

  void drawStars() {
    for (std::size_t i = 0; i < catalogue_.stars().size(); ++i) {
      const FixedStar& star = catalogue_.stars()[i];
      if (!star.isMarker()) {
        const BodyMarker marker{projected(star.ec), star.name, ink(star.color), star.dotSize()};
        drawMarker(marker, star.ec.phi);
        if (marks_.isRecording()) {
          marks_.star(i, star, seen(marker, star.ec.phi));
        }
      }
    }
  }

  void drawAscendant() {
    constexpr double size = 2.0;
    const BodyMarker marker{projected(nativity_.ascendant, 0.0), "GEN", "black", size};
    drawDot(svg_, marker);
    drawLabel(svg_, marker);
    marks_.ascendant(nativity_.ascendant, drawn(marker));
  }

  void drawHourAngle() {
    const double hourAngle = astro::wrappedToHalfOpenHalfTurns(siderealAngle_ - sun_.eq.phi);
    std::string text = "Sun HA: ";
    astro::appendSignedFixed(text, astro::degreesOf(hourAngle), 1);
    text += "°   MC: ";
    astro::appendFixed(text, astro::degreesOf(midheavenOf(siderealAngle_)), 1);
    text += "°";
    beginText(svg_, 0, 28, "6").endWithText(text);
  }

  /// The circle of the stars that never set, about the celestial north pole.
  void drawCelestialPole() {
    if (!(observer_.latitude > southernmostPoleCircle)) {
      return;
    }
    const ProjectedPoint pole =
        projected(rotated(astro::Vec3D(0.0, astro::halfPi), astro::equatorialToEcliptic));
    svg_.element("circle")
        .attribute("cx", pole.roundedX())
        .attribute("cy", pole.roundedY())
        .attribute("r", Fixed{discRadius - 360.0 * observer_.latitude / astro::pi, 1})
        .attribute("fill", "none")
        .attribute("stroke", "orange")
        .attribute("stroke-weight", 1)
        .endEmpty();
  }

  SvgWriter svg_;
  MarkRecorder marks_;
  bool blackAndWhite_;
  astro::Observer observer_;
  double siderealAngle_;
  astro::Sun sun_;
  astro::Moon moon_;
  const StarCatalogue& catalogue_;
  Nativity nativity_;
};

}  // namespace

std::string horoscope(bool blackAndWhite, const astro::Observer& observer,
                      const StarCatalogue& catalogue, ChartMarks* marks) {
  std::string document;
  Horoscope(document, blackAndWhite, observer, catalogue, marks).draw();
  return document;
}

}  // namespace veyruna::charts
