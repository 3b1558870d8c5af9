#include "almanac/motion/body.h"

#include "astro/invariant.h"
#include "astro/moon.h"
#include "astro/sun.h"

namespace veyruna::almanac {

std::string_view nameOf(Body body) {
  if (const auto planet = planetOf(body)) {
    return astro::factsOf(*planet).name;
  }
  astro::requireInvariant(body == Body::thessil || body == Body::ivro, "a body has its name");
  return body == Body::thessil ? astro::sunName : astro::moonName;
}

std::string_view wordOf(Body body) {
  static constexpr std::array<std::string_view, astro::bodyCount> words = {
      "thessil", "ivro", "bralo", "dunmor", "galvi", "pallox"};
  const auto row = static_cast<std::size_t>(body);
  astro::requireInvariant(row < words.size(), "a body has its word");
  return words[row];
}

}  // namespace veyruna::almanac
