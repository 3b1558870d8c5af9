#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "almanac/motion/body.h"
#include "astro/angle.h"
#include "charts/element.h"
#include "charts/verdict.h"
#include "reports/zodiac.h"

/// What can be asked of a moment: a tree whose leaves are the forms below, each either holding or
/// not at every moment. Degrees are those that were typed.
namespace veyruna::almanac {

/// A body's longitude lies in a sign.
struct InSign {
  Body body;
  const reports::ZodiacSign* sign;
  friend bool operator==(const InSign&, const InSign&) = default;
};

/// Two bodies' longitudes are less than so many degrees from one another, or from being opposite.
struct Together {
  Body body;
  Body other;
  bool isOpposite;
  double withinDegrees;  ///< in (0, 180]
  friend bool operator==(const Together&, const Together&) = default;
};

/// The moon's elongation from the sun: within 6° of 0 or of π; in (0, π), or not.
enum class Phase { full, fresh, waxing, waning, count };
struct MoonIs {
  Phase phase;
  friend bool operator==(const MoonIs&, const MoonIs&) = default;
};

/// How near to full or new the moon is called so: 6°.
inline constexpr double phaseOrb = astro::radiansOf(6.0);

/// A planet's longitude runs backward, or forward.
struct Running {
  astro::Planet planet;
  bool isBackward;
  friend bool operator==(const Running&, const Running&) = default;
};

/// About a syzygy at which the moon crosses the ecliptic near enough to count, as long as the
/// elongation stays within the outermost limit of such an eclipse.
struct EclipseLasts {
  friend bool operator==(const EclipseLasts&, const EclipseLasts&) = default;
};

/// The ascendant, or the point opposite to it, lies in a sign.
struct RisingSign {
  const reports::ZodiacSign* sign;
  bool isDescending;
  friend bool operator==(const RisingSign&, const RisingSign&) = default;
};

struct PowerIs {
  charts::Power power;
  friend bool operator==(const PowerIs&, const PowerIs&) = default;
};

struct KeepIs {
  bool isTwisted;
  friend bool operator==(const KeepIs&, const KeepIs&) = default;
};

/// The strength of an element: of its two planets together.
struct ElementIs {
  const charts::Element* element;
  charts::Strength strength;
  friend bool operator==(const ElementIs&, const ElementIs&) = default;
};

/// The strength of a planet together with the ascendant.
struct NatalIs {
  astro::Planet planet;
  charts::Strength strength;
  friend bool operator==(const NatalIs&, const NatalIs&) = default;
};

/// Which of sun and moon a planet stands nearer to.
struct Favours {
  astro::Planet planet;
  charts::Sphere sphere;
  friend bool operator==(const Favours&, const Favours&) = default;
};

/// Which of sun and moon the ascendant stands nearer to.
struct DominantSphere {
  charts::Sphere sphere;
  friend bool operator==(const DominantSphere&, const DominantSphere&) = default;
};

/// A body's geometric altitude exceeds so many degrees.
struct BodyAbove {
  Body body;
  double degrees;  ///< in [−90, 90]
  friend bool operator==(const BodyAbove&, const BodyAbove&) = default;
};

/// The same of a named place of the star map.
struct StarAbove {
  std::size_t star;  ///< in the built-in catalogue's stars()
  double degrees;
  friend bool operator==(const StarAbove&, const StarAbove&) = default;
};

/// The sun above the horizon; not above, but above −6°; or neither.
enum class Light { day, twilight, night, count };
struct LightIs {
  Light light;
  friend bool operator==(const LightIs&, const LightIs&) = default;
};

/// How far below the horizon the sun ends twilight: 6°.
inline constexpr double twilightDepth = astro::radiansOf(6.0);

/// The clock reads at least `from` and less than `to`, over midnight where `from` is the later.
struct HourBetween {
  double from;  ///< hours in [0, 24], not the same
  double to;
  friend bool operator==(const HourBetween&, const HourBetween&) = default;
};

struct MonthIs {
  int monthIndex;  ///< 0 to 11
  friend bool operator==(const MonthIs&, const MonthIs&) = default;
};

struct DayIs {
  int dayIndex;  ///< 0 to 29
  friend bool operator==(const DayIs&, const DayIs&) = default;
};

struct Condition;

/// At least one of its parts holds. Never without parts.
struct AnyOf {
  std::vector<Condition> parts;
  friend bool operator==(const AnyOf&, const AnyOf&) = default;
};

/// All of its parts hold. Never without parts.
struct AllOf {
  std::vector<Condition> parts;
  friend bool operator==(const AllOf&, const AllOf&) = default;
};

/// Its one part does not hold.
struct Not {
  std::vector<Condition> parts;
  friend bool operator==(const Not&, const Not&) = default;
};

using AnyForm = std::variant<InSign, Together, MoonIs, Running, EclipseLasts, RisingSign, PowerIs,
                             KeepIs, ElementIs, NatalIs, Favours, DominantSphere, BodyAbove,
                             StarAbove, LightIs, HourBetween, MonthIs, DayIs, AnyOf, AllOf, Not>;

struct Condition {
  AnyForm form;
  friend bool operator==(const Condition&, const Condition&) = default;
};

/// What of the observer's own a condition asks for, itself or in its parts.
struct Uses {
  bool sky = false;        ///< where bodies stand on the ecliptic
  bool horizon = false;    ///< what is above it, rises or sets
  bool ascendant = false;  ///< what rises of the ecliptic
  bool light = false;      ///< day, twilight or night
  bool hour = false;
  bool date = false;
};
Uses usesOf(const Condition& condition);

/// Conditions as one that asks for all of them. Of none is a broken invariant.
Condition allOf(std::vector<Condition> conditions);

/// Whether it has a meaning only at a place. What is read from a clock or calendar does where that
/// is the place's own.
bool needsPlace(const Condition& condition, bool isLocal);

/// The condition in the words it is asked in: read again, it is the same condition.
std::string textOf(const Condition& condition);

/// For a person, line by line: what is asked, and what is no part of it.
std::string explanationOf(const Condition& condition, bool isLocal);

}  // namespace veyruna::almanac
