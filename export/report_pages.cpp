#include "export/report_pages.h"

#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <vector>

#include "drawing/letters.h"

namespace veyruna::exports {

namespace {

using drawing::Face;
using drawing::GlyphRow;
using drawing::Letters;

constexpr QSizeF page = reportPageSizePoints;
constexpr double margin = 28.0;
constexpr double roomBetween = page.width() - 2.0 * margin;
constexpr double lastLine = page.height() - margin;

/// What the lines of one kind look like.
struct Style {
  Face face;
  double size = 0.0;  ///< points
  QColor color;
  double lineHeight = 1.2;  ///< in sizes
  double above = 0.0;       ///< points
  double below = 0.0;       ///< points
};

/// Those of the HTML form's families that stand in for others on any desktop.
const QString plainFamily = QStringLiteral("Arial");
const QString tableFamily = QStringLiteral("Courier New");

/// One kind of line, ready to be set.
class Setting {
 public:
  explicit Setting(Style style) : style_(std::move(style)), letters_(style_.face) {}

  [[nodiscard]] double height() const { return style_.size * style_.lineHeight; }
  [[nodiscard]] const Style& style() const { return style_; }
  [[nodiscard]] double width(const QString& line) {
    return letters_.row(line).width * style_.size / drawing::unitsPerEm;
  }

  /// Scales the type so that a line of this width has room.
  void fit(double widest) { style_.size *= std::min(1.0, roomBetween / std::max(widest, 1.0)); }

  /// Draws a line in a box of its height that begins at `top`.
  void draw(QPainter& painter, const QString& line, QPointF top) {
    constexpr double ascent = 0.905;  // of the type's own height, as of Helvetica's kin
    constexpr double descent = 0.212;
    const double leading = style_.lineHeight - ascent - descent;
    const double baseLine = top.y() + style_.size * (leading / 2.0 + ascent);
    letters_.draw(painter, letters_.row(line), {top.x(), baseLine}, style_.size, style_.color);
  }

  /// The text in lines that have room, broken at blanks, or anywhere where there are none.
  QStringList broken(const QString& text) {
    QStringList lines;
    QString rest = text;
    while (width(rest) > roomBetween) {
      qsizetype most = 1;
      while (most < rest.size() && width(rest.first(most + 1)) <= roomBetween) {
        ++most;
      }
      const qsizetype blank = rest.lastIndexOf(u' ', most);
      const qsizetype end = blank > 0 ? blank : most;
      lines.append(rest.first(end));
      rest = rest.sliced(end).trimmed();
    }
    return lines << rest;
  }

 private:
  Style style_;
  Letters letters_;
};

const QColor ink(0x1a, 0x1a, 0x1a);
const QColor quiet(0x66, 0x66, 0x66);
const QColor headingInk(0x44, 0x44, 0x44);

/// What goes on a page: lines at their places, known before anything is drawn, so that each page
/// can say how many there are.
struct PlacedLine {
  Setting* setting;
  QString text;
  QPointF top;
};
using Page = std::vector<PlacedLine>;

class ReportLayout {
 public:
  explicit ReportLayout(const Report& report)
      : title_({{plainFamily, true}, 18.0, ink, 1.15, 0.0, 4.0}),
        meta_({{plainFamily}, 10.0, quiet, 1.15, 0.0, 18.0}),
        heading_({{plainFamily, true}, 12.0, headingInk, 1.15, 14.0, 4.0}),
        table_({{tableFamily}, 9.0, ink, 1.25, 0.0, 0.0}),
        runningLine_({{plainFamily}, 8.0, quiet, 1.15, 0.0, 0.0}) {
    double widest = 0.0;
    for (const ReportSection& section : report.sections) {
      for (const QString& line : section.body.split(u'\n')) {
        widest = std::max(widest, table_.width(line));
      }
    }
    table_.fit(widest);
    lay(report);
  }

  void draw(QPainter& painter, QPdfWriter& writer) const {
    for (std::size_t i = 0; i < pages_.size(); ++i) {
      if (i > 0) {
        writer.newPage();
      }
      for (const PlacedLine& line : pages_[i]) {
        line.setting->draw(painter, line.text, line.top);
      }
    }
  }

 private:
  void lay(const Report& report) {
    pages_.emplace_back();
    y_ = margin;
    for (const QString& line : title_.broken(report.title)) {
      place(title_, line);
    }
    y_ += title_.style().below;
    for (const QString& line : meta_.broken(report.meta)) {
      place(meta_, line);
    }
    // The room below the small line and that above the first heading are one.
    y_ += meta_.style().below - heading_.style().above;
    for (const ReportSection& section : report.sections) {
      lay(section);
    }
    addRunningLines(report);
  }

  void lay(const ReportSection& section) {
    constexpr qsizetype rowsThatStayWithTheirHeading = 3;
    QStringList rows = section.body.split(u'\n');
    if (rows.last().isEmpty()) {
      rows.removeLast();
    }
    const qsizetype columnHeadings = std::min<qsizetype>(section.columnHeadingLines, rows.size());
    const double needed =
        heading_.style().above + heading_.height() + heading_.style().below +
        table_.height() * static_cast<double>(
                              std::min(rows.size(), columnHeadings + rowsThatStayWithTheirHeading));
    if (y_ + needed > lastLine && !pages_.back().empty()) {
      beginPage();
    } else {
      y_ += heading_.style().above;
    }
    place(heading_, section.heading);
    y_ += heading_.style().below;
    for (qsizetype row = 0; row < rows.size(); ++row) {
      if (y_ + table_.height() > lastLine) {
        beginPage();
        for (qsizetype line = 0; row >= columnHeadings && line < columnHeadings; ++line) {
          place(table_, rows[line]);
        }
      }
      place(table_, rows[row]);
    }
  }

  void place(Setting& setting, const QString& text) {
    pages_.back().push_back({&setting, text, {margin, y_}});
    y_ += setting.height();
  }

  void beginPage() {
    pages_.emplace_back();
    y_ = margin;
  }

  /// In the margins: what is going on, and which page of how many.
  void addRunningLines(const Report& report) {
    const std::size_t count = pages_.size();
    for (std::size_t i = 0; i < count && count > 1; ++i) {
      const double inMargin = (margin - runningLine_.height()) / 2.0;
      if (i > 0) {
        const QString what =
            runningLine_.broken(report.title + QStringLiteral("   ") + report.meta).first();
        pages_[i].push_back({&runningLine_, what, {margin, inMargin}});
      }
      const QString number = QStringLiteral("%1/%2").arg(i + 1).arg(count);
      pages_[i].push_back({&runningLine_,
                           number,
                           {page.width() - margin - runningLine_.width(number),
                            page.height() - margin + inMargin}});
    }
  }

  Setting title_;
  Setting meta_;
  Setting heading_;
  Setting table_;
  Setting runningLine_;
  std::vector<Page> pages_;
  double y_ = 0.0;
};

}  // namespace

QByteArray reportPdf(const Report& report, const PdfInformation& information) {
  const ReportLayout layout(report);
  return pdfDocument(information, page, [&layout](QPainter& painter, QPdfWriter& writer) {
    layout.draw(painter, writer);
  });
}

}  // namespace veyruna::exports
