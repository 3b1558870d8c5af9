#include "model/city_preset.h"

#include <QLocale>
#include <algorithm>

namespace veyruna::model {

namespace {

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

}  // namespace veyruna::model
