#include "model/body_position.h"

namespace veyruna::model {

QList<BodyPosition> bodyPositions(std::span<const reports::PositionRow> rows,
                                  const IdSource& newId) {
  QList<BodyPosition> positions;
  for (const auto& [name, bodyType, azimuth, altitude, ecLong, sign] : rows) {
    positions.append({newId(), QString::fromStdString(name), QString::fromStdString(bodyType),
                      charts::colorOfBody(name), QString::fromStdString(azimuth),
                      QString::fromStdString(altitude), QString::fromStdString(ecLong),
                      QString::fromStdString(sign)});
  }
  return positions;
}

}  // namespace veyruna::model
