#pragma once

#include <QPainterPath>
#include <optional>
#include <utility>
#include <vector>

#include "ui/charts/chart_selection.h"
#include "ui/charts/mark_ring.h"
#include "ui/charts/read_out.h"
#include "ui/charts/shown_marks.h"
#include "ui/charts/zoomed_view.h"

namespace veyruna::ui {

/// A chart that answers: what is pointed at is told beside the pointer, a click selects a body, the
/// arrow keys walk from mark to mark, a menu copies and saves. To a screen reader each mark that
/// has something to say is a child of its own (ui/charts/accessible_chart.h).
class ChartView : public ZoomedView {
  Q_OBJECT

 public:
  /// What it shows.
  struct Chart {
    documents::Document document;
    const char* objectName;
    QString name;
    std::vector<QRectF> parts;  ///< that a double click fits
  };

  /// `observerOfShown`: of the chart that show() was given last. `selection` must outlive the view.
  ChartView(const Chart& chart, const ShownMarks::ObserverSource& observerOfShown,
            ChartSelection& selection);

  /// Three sentences: the accessible description, and what is in sight. The first alone before the
  /// first chart.
  [[nodiscard]] QString description();

  [[nodiscard]] ShownMarks& marks() { return marks_; }
  [[nodiscard]] const ChartSelection& selection() const { return selection_; }

  /// The lines beside the pointer, or beside the ring where nothing is pointed at; none where there
  /// is nothing to tell.
  [[nodiscard]] const QStringList& readOutLines() const { return overlay_.readOut.lines(); }
  [[nodiscard]] QRectF readOutBox() const { return overlay_.box; }

  /// Where the ring of the arrow keys is; nothing where there is none.
  [[nodiscard]] const charts::ChartMark* focusedMark();
  /// Puts it around a mark and brings that into sight.
  void focusMark(const MarkKey& key);
  /// Selects a body; of anything else nothing happens.
  void select(const MarkKey& key);

  /// The part of the view that a mark takes.
  [[nodiscard]] QRectF placeOf(const charts::ChartMark& mark) const;
  /// What is pointed at from there; null for nothing.
  [[nodiscard]] const charts::ChartMark* markUnder(QPointF position);

  void copyPicture() const;
  void copyDescription();

 Q_SIGNALS:
  void svgRequested();
  void pdfRequested();
  void pngRequested();

 protected:
  void clicked(QPointF position) override;
  void pictureChanged() override;
  void paintOver(QPainter& painter) override;
  [[nodiscard]] QPointF keyAnchor() const override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  /// What is painted over the chart.
  struct Overlay {
    std::vector<std::pair<QPainterPath, RingKind>> rings;
    ReadOut readOut;
    QRectF box;

    [[nodiscard]] QRect bounds() const;
  };

  [[nodiscard]] Overlay makeOverlay();
  void refreshOverlay();
  void point(std::optional<QPointF> position);
  bool moveFocus(int key);
  bool letGo();

  ShownMarks marks_;
  ChartSelection& selection_;
  std::optional<QPointF> pointer_;
  std::optional<MarkKey> focused_;
  Overlay overlay_;
  bool isOverlayOutdated_ =
      true;  ///< the chart under it is another; made anew before it is painted
};

}  // namespace veyruna::ui
