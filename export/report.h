#pragma once

#include <QList>
#include <QString>

namespace veyruna::exports {

/// One table of a report under its heading.
struct ReportSection {
  QString heading;
  QString body;                ///< fixed-width text
  int columnHeadingLines = 0;  ///< how many of its first lines head its columns
};

/// What a tab of tables says when it is printed: a title, a small line of moment and place, and the
/// sections in order. Its forms are HTML and pages.
struct Report {
  QString title;
  QString meta;
  QList<ReportSection> sections;
};

}  // namespace veyruna::exports
