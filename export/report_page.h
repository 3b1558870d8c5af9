#pragma once

#include <QList>
#include <QString>

namespace veyruna::exports {

/// One table of a report under its heading.
struct ReportSection {
  QString heading;
  QString body;  ///< fixed-width text
};

/// The text with "&", "<" and ">" written for HTML, in this order.
QString escaped(QString text);

/// A page of HTML with a title, a small line under it, and the sections in order. Texts come
/// unescaped.
QString reportDocument(const QString& title, const QString& meta,
                       const QList<ReportSection>& sections);

}  // namespace veyruna::exports
