#include "model/body_position.h"

namespace veyruna::model {

QList<BodyPosition> bodyPositions(std::span<const reports::PositionRow> rows,
                                  const IdSource& newId) {
  QList<BodyPosition> positions;
  for (const reports::PositionRow& row : rows) {
    positions.append({newId(), QString::fromStdString(row.name),
                      QString::fromStdString(row.bodyType), charts::colorOfBody(row.name),
                      QString::fromStdString(row.azimuth), QString::fromStdString(row.altitude),
                      QString::fromStdString(row.ecLong), QString::fromStdString(row.sign)});
  }
  return positions;
}

}  // namespace veyruna::model
