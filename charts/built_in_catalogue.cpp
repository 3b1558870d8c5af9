#include <string_view>

#include "astro/invariant.h"
#include "charts/catalogue_reader.h"
#include "charts/star_catalogue.h"

namespace veyruna::embedded {
extern const std::string_view starCatalogueCsv;
extern const std::string_view constellationLinesCsv;
}  // namespace veyruna::embedded

namespace veyruna::charts {

namespace {

StarCatalogue readBuiltInCatalogue() {
  try {
    return {readStars(embedded::starCatalogueCsv), readLineNames(embedded::constellationLinesCsv)};
  } catch (const CatalogueError& error) {
    astro::stopOnBrokenInvariant(error.what());
  }
}

}  // namespace

const StarCatalogue& builtInCatalogue() {
  static const StarCatalogue catalogue = readBuiltInCatalogue();
  return catalogue;
}

}  // namespace veyruna::charts
