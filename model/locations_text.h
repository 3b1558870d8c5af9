#pragma once

#include <QByteArray>
#include <QList>
#include <optional>

#include "model/city_preset.h"

namespace veyruna::model {

/// The places as a JSON array of objects with the keys id, latitude, longitude and name, sorted and
/// indented. "Manual" must not be among them.
QByteArray locationsText(const QList<CityPreset>& places);

/// The places such a text holds, in its order. Nothing where the text is no such array: ids are
/// 36-character UUIDs, none twice and none that of "Manual"; names are texts; latitude and
/// longitude are finite numbers. Other keys are passed over.
std::optional<QList<CityPreset>> placesIn(const QByteArray& text);

}  // namespace veyruna::model
