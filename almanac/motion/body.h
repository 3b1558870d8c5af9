#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "astro/planet.h"

/// When does it happen? Moments and intervals in which the sky shows something. Moments are base
/// times (days), angles radians.
namespace veyruna::almanac {

/// All that move, in the order of every list of them.
enum class Body { thessil, ivro, bralo, dunmor, galvi, pallox, count };

static_assert(static_cast<std::size_t>(Body::count) == astro::bodyCount,
              "a body that moves is not named here");

inline constexpr std::array<Body, astro::bodyCount> allBodies = [] {
  std::array<Body, astro::bodyCount> all{};
  for (std::size_t i = 0; i < all.size(); ++i) {
    all[i] = static_cast<Body>(i);
  }
  return all;
}();

/// Which planet it is; nothing for the sun and the moon.
constexpr std::optional<astro::Planet> planetOf(Body body) {
  const auto row = static_cast<std::size_t>(body);
  return row < astro::rowOf(astro::Planet{}) || body == Body::count
             ? std::nullopt
             : std::optional(static_cast<astro::Planet>(row - astro::rowOf(astro::Planet{})));
}

/// "Thessil", "Ivro", "Bralo" and so on. None is a broken invariant, here and below.
std::string_view nameOf(Body body);

/// "thessil", "ivro", "bralo" and so on: its word in every list that programs read.
std::string_view wordOf(Body body);

}  // namespace veyruna::almanac
