#pragma once

#include <QList>
#include <QString>

#include "model/astronomy_model.h"

/// The documents that are rendered as PDF, and the texts that are saved as they are.
namespace veyruna::exports {

/// One table of a report under its heading.
struct ReportSection {
  QString heading;
  QString body;  ///< fixed-width text
};

/// The text with "&", "<" and ">" written for HTML, in this order.
QString escaped(QString text);

/// A page that holds one chart, stretched to the page's size. The SVG stands in it as it is.
QString chartPage(const QString& svg);

/// A page with a title, a small line under it, and the sections in order. Texts come unescaped.
QString reportDocument(const QString& title, const QString& meta,
                       const QList<ReportSection>& sections);

/// The small line of a report: the moment of the last calculation, three blanks, and the place of
/// the inputs.
QString metaText(const model::AstronomyModel& model);

/// The positions list as a table: two header lines, then a line for each body.
QString positionsTableText(const QList<model::BodyPosition>& positions);

/// Two tables in one text: each under its heading between em dashes.
QString joinedTables(const ReportSection& first, const ReportSection& second);

}  // namespace veyruna::exports
