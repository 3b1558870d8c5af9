#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "charts/nativity.h"

/// What the interpretation says of a nativity, as values; the words of each stand here alone.
namespace veyruna::charts {

/// Separation of two longitudes on a scale of 200 to the full turn: 0 together, 100 opposite.
double separation(double a, double b);
inline constexpr double unitsPerTurn = 200.0;

/// Which of moon and sun something stands nearer to.
enum class Sphere { fate, balanced, will, count };

/// By more than this many units.
inline constexpr double clearlyNearer = 20.0;

struct SphereEntry {
  Sphere sphere = Sphere::count;
  std::string_view verdict;  ///< as the panel writes it
};

inline constexpr std::array<SphereEntry, static_cast<std::size_t>(Sphere::count)> spheres = {{
    {Sphere::fate, "IVRO (Fate)"},
    {Sphere::balanced, "BALANCED"},
    {Sphere::will, "THESSIL (Will)"},
}};

Sphere sphereOf(double longitude, const Nativity& nativity);

/// How strong two longitudes are together: the further apart, the stronger.
enum class Strength { exceptional, strong, neutral, weak, feeble, impotent, count };

struct StrengthEntry {
  Strength strength = Strength::count;
  std::string_view name;
  double above = 0.0;  ///< units that the separation exceeds; not asked of the weakest
};

/// From the strongest to the weakest.
inline constexpr std::array<StrengthEntry, static_cast<std::size_t>(Strength::count)> strengths = {{
    {Strength::exceptional, "Exceptional", 75.0},
    {Strength::strong, "Strong", 50.0},
    {Strength::neutral, "Neutral", 30.0},
    {Strength::weak, "Weak", 15.0},
    {Strength::feeble, "Feeble", 5.0},
    {Strength::impotent, "Impotent", 0.0},
}};

Strength strengthOf(double a, double b);

/// Who holds sway over the world.
enum class Power { superior, balanced, inferior, count };

/// By the moon's latitude, beyond this on either side: 3°, in radians.
inline constexpr double powerLatitude = 0.05235987755982988;

struct PowerEntry {
  Power power = Power::count;
  std::string_view verdict;  ///< its word first
};

inline constexpr std::array<PowerEntry, static_cast<std::size_t>(Power::count)> powers = {{
    {Power::superior, "SUPERIOR.  The Fates hold sway over Veyruna."},
    {Power::balanced, "BALANCED.  Fate and Will are equal in Veyruna."},
    {Power::inferior, "INFERIOR.  Will can overcome Fate across Veyruna."},
}};

Power powerOf(double moonLatitude);

/// Whether the planets' two groups (1 and 3, 2 and 4) alternate around the circle.
bool isTwistedKeep(const astro::PerPlanet<double>& planetLongitudes);

struct KeepEntry {
  bool isTwisted = false;
  std::string_view verdict;  ///< its word first
};

inline constexpr std::array<KeepEntry, 2> keeps = {{
    {false, "Straight Keep"},
    {true, "Twisted Keep!"},
}};

template <class Entry, std::size_t count, class Verdict>
constexpr bool areInOrder(const std::array<Entry, count>& rows, Verdict Entry::*verdict) {
  std::size_t row = 0;
  return std::ranges::all_of(
      rows, [&](const Entry& entry) { return static_cast<std::size_t>(entry.*verdict) == row++; });
}
static_assert(areInOrder(spheres, &SphereEntry::sphere), "a sphere has no words");
static_assert(areInOrder(strengths, &StrengthEntry::strength), "a strength has no word");
static_assert(areInOrder(powers, &PowerEntry::power), "a power has no words");
static_assert(areInOrder(keeps, &KeepEntry::isTwisted), "a keep has no words");

inline constexpr const SphereEntry& entryOf(Sphere sphere) {
  return spheres[static_cast<std::size_t>(sphere)];
}
inline constexpr const StrengthEntry& entryOf(Strength strength) {
  return strengths[static_cast<std::size_t>(strength)];
}
inline constexpr const PowerEntry& entryOf(Power power) {
  return powers[static_cast<std::size_t>(power)];
}
inline constexpr const KeepEntry& keepEntry(bool isTwisted) {
  return keeps[isTwisted ? 1 : 0];
}

}  // namespace veyruna::charts
