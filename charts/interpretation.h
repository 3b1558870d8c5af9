#pragma once

#include <string>
#include <string_view>

#include "astro/planet.h"
#include "charts/element.h"
#include "charts/mark_recorder.h"
#include "charts/svg_writer.h"

namespace veyruna::charts {

/// What the interpretation is read from: ecliptic angles of one moment and place, radians.
struct Nativity {
  double sun;   ///< longitude
  double moon;  ///< longitude
  double moonLatitude;
  astro::PerPlanet<double> planets;  ///< longitudes, any turn
  double ascendant;                  ///< longitude
};

/// Separation of two longitudes on a scale of 200 to the full turn: 0 together, 100 opposite.
double separation(double a, double b);

/// "IVRO (Fate)", "BALANCED" or "THESSIL (Will)": which of moon and sun a longitude stands nearer
/// to, by more than 20 of those 200.
std::string_view aspectVerdict(double longitude, const Nativity& nativity);

/// From "Impotent" (together) to "Exceptional" (opposite).
std::string_view pairStrength(double a, double b);

/// Who holds sway over the world, by the moon's latitude (radians).
std::string_view powerVerdict(double moonLatitude);

/// Whether the planets' two groups (1 and 3, 2 and 4) alternate around the circle.
bool isTwistedKeep(const astro::PerPlanet<double>& planetLongitudes);

/// What the panel's row of an element says, from name to strength, with commas between.
std::string elementLine(const Element& element, const Nativity& nativity);

/// The panel to the right of the wheel; its lines are told to `marks`.
void drawInterpretation(SvgWriter& svg, const Nativity& nativity, MarkRecorder& marks);

}  // namespace veyruna::charts
