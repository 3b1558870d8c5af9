#include "model/city_preset.h"

#include <QLocale>
#include <algorithm>
#include <array>

#include "astro/angle.h"

namespace veyruna::model {

namespace {

/// A place of the first start, degrees north and east.
struct Place {
  const char* name;
  double latitude;
  double longitude;
};

constexpr std::array<Place, 13> firstPlaces = {{
    {"Wendmark", 40.5, -20.9},
    {"Morvay", 37.7, -16.4},
    {"Istene", 27.4, 3.3},
    {"Paldrick", 34.5, 11.1},
    {"Vossenfel", 11.5, 25.3},
    {"Quarrelund", 21.9, 33.9},
    {"Ebb", 13.4, 8.8},
    {"Solvane", 32.1, -4.7},
    {"Hestmoor", 44.4, -12.2},
    {"Sarrow", 31.0, -16.3},
    {"Ulmet", 24.4, -19.7},
    {"Dravenne", 23.3, 26.7},
    {"Kessa", 21.0, 5.1},
}};

/// What names are ordered by: code points, not the 16-bit units a QString compares.
QList<uint> sortingForm(const QString& name) {
  return QLocale().toLower(name).normalized(QString::NormalizationForm_C).toUcs4();
}

}  // namespace

bool operator<(const CityPreset& a, const CityPreset& b) {
  const QList<uint> formA = sortingForm(a.name);
  const QList<uint> formB = sortingForm(b.name);
  return std::lexicographical_compare(formA.begin(), formA.end(), formB.begin(), formB.end());
}

const CityPreset& manualCity() {
  static const CityPreset manual{QUuid(QStringLiteral("00000000-0000-0000-0000-000000000001")),
                                 QStringLiteral("Manual"), 0.0, 0.0};
  return manual;
}

QList<CityPreset> initialCities(const IdSource& newId) {
  QList<CityPreset> cities;
  for (const Place& place : firstPlaces) {
    cities.append({newId(), QString::fromLatin1(place.name), astro::radiansOf(place.latitude),
                   astro::radiansOf(place.longitude)});
  }
  return cities;
}

QList<CityPreset> withManualFirst(QList<CityPreset> places) {
  std::stable_sort(places.begin(), places.end());
  places.prepend(manualCity());
  return places;
}

bool isSameName(const QString& a, const QString& b) {
  const auto form = [](const QString& name) {
    return name.toLower().normalized(QString::NormalizationForm_C);
  };
  return form(a) == form(b);
}

QString canonicalText(const QUuid& id) {
  return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> idOf(const QString& text) {
  constexpr qsizetype length = 36;
  const QUuid id = QUuid::fromString(text);
  // QUuid reads leniently; what it read must be what stands there.
  return text.size() == length && canonicalText(id) == text.toUpper() ? std::optional(id)
                                                                      : std::nullopt;
}

}  // namespace veyruna::model
