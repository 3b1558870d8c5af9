#pragma once

#include <QList>
#include <QString>
#include <QUuid>
#include <span>

#include "charts/body_style.h"
#include "model/id_source.h"
#include "reports/positions.h"

namespace veyruna::model {

/// The colours bodies are shown in, those of the charts.
using charts::BodyColor;

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
