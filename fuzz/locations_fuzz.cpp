// Any bytes as a file of places: refused, or read, written and read again as the same list.
#include <QSet>
#include <algorithm>
#include <cmath>

#include "fuzz/target.h"
#include "model/locations_text.h"

using namespace veyruna;
using fuzz::promise;

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const QByteArray text(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
  const auto places = model::placesIn(text);
  if (!places) {
    return 0;
  }
  QSet<QUuid> ids;
  for (const model::CityPreset& place : *places) {
    promise(std::isfinite(place.latitude) && std::isfinite(place.longitude), "a place is finite");
    promise(place.id != model::manualCityID(), "Manual is in no file");
    ids.insert(place.id);
  }
  promise(ids.size() == places->size(), "no id is there twice");

  const QByteArray written = model::locationsText(*places);
  const auto again = model::placesIn(written);
  promise(again == places, "a list that is written reads back as it was");
  promise(model::locationsText(*again) == written, "a list is always written the same way");

  const QList<model::CityPreset> cities = model::withManualFirst(*places);
  promise(cities.size() == places->size() + 1 && cities.front() == model::manualCity(),
          "Manual comes first");
  promise(std::is_sorted(cities.begin() + 1, cities.end()), "places are in order");
  return 0;
}
