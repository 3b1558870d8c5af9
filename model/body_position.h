#pragma once

#include <QList>
#include <QString>
#include <QUuid>
#include <span>

#include "model/city_preset.h"
#include "reports/positions.h"

namespace veyruna::model {

/// The colours bodies are shown in, by name; the shades are the interface's.
enum class BodyColor { yellow, white, blue, red, orange, purple, gray };

/// One row of the positions list. The texts are those of reports::PositionRow.
struct BodyPosition {
  QUuid id;
  QString name;
  QString bodyType;
  BodyColor color;
  QString azimuth;
  QString altitude;
  QString ecLong;
  QString sign;
};

/// The rows with a fresh id each and the bodies' colours; gray for a body that is not known.
QList<BodyPosition> bodyPositions(std::span<const reports::PositionRow> rows,
                                  const IdSource& newId);

}  // namespace veyruna::model
