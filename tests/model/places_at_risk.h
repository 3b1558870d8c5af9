#pragma once

#include <QFileInfo>
#include <algorithm>
#include <gtest/gtest.h>

#include "model/locations_text.h"
#include "model/saved_locations.h"
#include "tests/model/disk.h"

/// A file of places, a program that uses it, and whether anything was lost by that.
namespace veyruna::tests {

inline QByteArray threePlaces() {
  return model::locationsText({{QUuid(QStringLiteral("0a1b2c3d-4e5f-6789-abcd-ef0123456789")),
                                QStringLiteral("Ångström \"tower\""), 0.5, -1.25},
                               {QUuid(QStringLiteral("1a1b2c3d-4e5f-6789-abcd-ef0123456789")),
                                QStringLiteral("Ebb"), 0.2338741176776489, 1e-9},
                               {QUuid(QStringLiteral("2a1b2c3d-4e5f-6789-abcd-ef0123456789")),
                                QStringLiteral("\U0001F71C"), -0.1, 3.0}});
}

/// A program that starts, saves a place and deletes one, and ends.
inline void useTheList(const QString& path, const QString& name = QStringLiteral("New place")) {
  model::SavedLocations saved(path, &QUuid::createUuid);
  saved.loadCities();
  EXPECT_GE(saved.cities().size(), 1);
  const auto added = saved.add(name, 0.1, 0.2);
  ASSERT_TRUE(std::holds_alternative<QUuid>(added));
  saved.remove(std::get<QUuid>(saved.add(QStringLiteral("Passing"), 0.1, 0.2)));
}

/// Whether everything those bytes held can still be found in the folder.
inline bool isNothingLost(const QString& folder, const QByteArray& held) {
  const QString path = folder + QStringLiteral("/locations.json");
  const bool isThere = QFileInfo(path).isFile();
  if (isKeptAside(folder, QStringLiteral("locations"), held) ||
      (isThere && bytesIn(path) == held)) {
    return true;
  }
  const auto before = model::placesIn(held);
  const auto after = isThere ? model::placesIn(bytesIn(path)) : std::nullopt;
  return before && after &&
         std::all_of(before->begin(), before->end(),
                     [&](const model::CityPreset& place) { return after->contains(place); });
}

}  // namespace veyruna::tests
