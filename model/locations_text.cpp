#include "model/locations_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <cmath>

#include "model/id_text.h"

namespace veyruna::model {

namespace {

const QString idKey = QStringLiteral("id");
const QString latitudeKey = QStringLiteral("latitude");
const QString longitudeKey = QStringLiteral("longitude");
const QString nameKey = QStringLiteral("name");

bool isFiniteNumber(const QJsonValue& value) {
  return value.isDouble() && std::isfinite(value.toDouble());
}

std::optional<CityPreset> placeIn(const QJsonValue& value) {
  const QJsonObject object = value.toObject();
  const std::optional<QUuid> id = idOf(object[idKey].toString());
  const bool isPlace = id && *id != manualCityID() && object[nameKey].isString() &&
                       isFiniteNumber(object[latitudeKey]) && isFiniteNumber(object[longitudeKey]);
  if (!isPlace) {
    return std::nullopt;
  }
  return CityPreset{*id, object[nameKey].toString(), object[latitudeKey].toDouble(),
                    object[longitudeKey].toDouble()};
}

}  // namespace

QByteArray locationsText(const QList<CityPreset>& places) {
  QJsonArray array;
  for (const CityPreset& place : places) {
    array.append(QJsonObject{{idKey, canonicalText(place.id)},
                             {latitudeKey, place.latitude},
                             {longitudeKey, place.longitude},
                             {nameKey, place.name}});
  }
  return QJsonDocument(array).toJson(QJsonDocument::Indented);
}

std::optional<QList<CityPreset>> placesIn(const QByteArray& text) {
  const QJsonDocument document = QJsonDocument::fromJson(text);
  if (!document.isArray()) {
    return std::nullopt;
  }
  QList<CityPreset> places;
  QSet<QUuid> ids;
  for (const auto& value : document.array()) {
    const std::optional<CityPreset> place = placeIn(value);
    if (!place || ids.contains(place->id)) {
      return std::nullopt;
    }
    ids.insert(place->id);
    places.append(*place);
  }
  return places;
}

}  // namespace veyruna::model
