// Any bytes as a list of stars and as a list of lines between them: refused with the line quoted,
// or finite places on the sky with a colour, and lines that join stars there are.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "charts/catalogue_reader.h"
#include "fuzz/target.h"

using namespace veyruna;
using fuzz::promise;

namespace {

template <class Read>
auto readOrNone(Read read) -> decltype(read()) {
  try {
    return read();
  } catch (const charts::CatalogueError& error) {
    promise(std::string(error.what()).starts_with("catalogue line \""), "an error quotes its line");
    return {};
  }
}

void tryStar(const charts::FixedStar& star) {
  for (const astro::Vec3D& place : {star.eq, star.ec}) {
    promise(std::isfinite(place.phi) && std::isfinite(place.theta), "a star has a finite place");
  }
  promise(std::isfinite(star.magnitude) && star.dotSize() >= 0.0, "a dot has a size");
  promise(star.color.size() == 7 && star.color.front() == '#', "a star has a colour");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  // Both lists, parted by an empty line; a list alone is tried as either.
  const std::string text(bytes, bytes + size);
  const std::size_t gap = std::min(text.find("\n\n"), text.size());
  const std::string behind = text.substr(std::min(gap + 2, text.size()));
  const auto stars = readOrNone([&] { return charts::readStars(text.substr(0, gap)); });
  std::ranges::for_each(stars, tryStar);
  const auto names = readOrNone([&] { return charts::readLineNames(behind); });
  const charts::StarCatalogue catalogue(stars, names);
  promise(catalogue.stars().size() == stars.size(), "every star is in the catalogue");
  promise(catalogue.lines().size() <= names.size(), "no line is made up");
  for (const auto& [from, to] : catalogue.lines()) {
    promise(from < stars.size() && to < stars.size(), "a line joins stars that there are");
  }
  return 0;
}
