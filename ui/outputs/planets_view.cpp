#include "ui/outputs/planets_view.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QShortcut>
#include <QTableWidget>
#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include "ui/controls/named.h"

namespace veyruna::ui {

namespace {

using model::BodyColor;
using model::BodyPosition;

constexpr int columnSpacing = 16;  // beside each text, where there is room for it

/// A disc in the body's colour with a grey edge, to be seen on light and on dark.
QIcon markOf(BodyColor color) {
  constexpr int size = 32;
  QPixmap mark(size, size);
  mark.fill(Qt::transparent);
  QPainter painter(&mark);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(0x80, 0x80, 0x80), 2.0));
  const std::string_view shade = charts::shadeOf(color).shade;
  painter.setBrush(QColor(QString::fromUtf8(shade.data(), static_cast<qsizetype>(shade.size()))));
  painter.drawEllipse(QRectF(5.0, 5.0, size - 10.0, size - 10.0));
  // The same where its row is selected, not tinted by the style.
  QIcon icon(mark);
  icon.addPixmap(mark, QIcon::Selected);
  return icon;
}

struct Column {
  const char* title;
  QString BodyPosition::*text;
  Qt::AlignmentFlag side;
};
constexpr std::array<Column, 6> columns = {{
    {QT_TRANSLATE_NOOP("PlanetsView", "Body"), &BodyPosition::name, Qt::AlignLeft},
    {QT_TRANSLATE_NOOP("PlanetsView", "Type"), &BodyPosition::bodyType, Qt::AlignLeft},
    {QT_TRANSLATE_NOOP("PlanetsView", "Azimuth"), &BodyPosition::azimuth, Qt::AlignRight},
    {QT_TRANSLATE_NOOP("PlanetsView", "Altitude"), &BodyPosition::altitude, Qt::AlignRight},
    {QT_TRANSLATE_NOOP("PlanetsView", "Ec. Longitude"), &BodyPosition::ecLong, Qt::AlignRight},
    {QT_TRANSLATE_NOOP("PlanetsView", "Sign"), &BodyPosition::sign, Qt::AlignLeft},
}};

}  // namespace

PlanetsView::PlanetsView(ChartSelection& selection, QWidget* parent)
    : PlanetsView(named(new QTableWidget, "positionsTable", tr("Positions of the bodies")),
                  selection, parent) {}

PlanetsView::PlanetsView(QTableWidget* table, ChartSelection& selection, QWidget* parent)
    : WithPlaceholder(table, tr("No Positions"), parent), table_(table), selection_(selection) {
  QStringList titles;
  for (const Column& column : columns) {
    titles.append(QCoreApplication::translate("PlanetsView", column.title));
  }
  table_->setColumnCount(static_cast<int>(titles.size()));
  table_->setHorizontalHeaderLabels(titles);
  table_->verticalHeader()->hide();
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setTabKeyNavigation(false);
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->viewport()->installEventFilter(this);

  auto* const copy = new QAction(tr("Copy"), this);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(copy, &QAction::triggered, this, &PlanetsView::copySelection);
  addAction(copy);

  connect(table_, &QTableWidget::itemSelectionChanged, this, &PlanetsView::selectBodyOfRow);
  connect(&selection_, &ChartSelection::changed, this, &PlanetsView::selectRowOfBody);
  auto* const letGo = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  letGo->setContext(Qt::WidgetWithChildrenShortcut);
  connect(letGo, &QShortcut::activated, this, [this] { selection_.setBody(std::nullopt); });
}

void PlanetsView::show(const QList<BodyPosition>& positions) {
  table_->setRowCount(static_cast<int>(positions.size()));
  for (int row = 0; row < positions.size(); ++row) {
    int place = 0;
    for (const auto& [title, text, side] : columns) {
      itemAt(row, place++, side).setText(positions[row].*text);
    }
    table_->item(row, 0)->setIcon(mark(positions[row].color));
  }
  fitColumns();
  showView(!positions.isEmpty());
}

/// Made once: a table that follows time is filled sixty times a second.
QTableWidgetItem& PlanetsView::itemAt(int row, int column, Qt::AlignmentFlag side) {
  if (table_->item(row, column) == nullptr) {
    auto* const item = new QTableWidgetItem;
    item->setTextAlignment(side | Qt::AlignVCenter);
    table_->setItem(row, column, item);
  }
  return *table_->item(row, column);
}

/// Kept: what an icon has drawn is kept by Qt too, for each icon anew.
const QIcon& PlanetsView::mark(BodyColor color) {
  QIcon& kept = marks_[color];
  if (kept.isNull()) {
    kept = markOf(color);
  }
  return kept;
}

void PlanetsView::selectBodyOfRow() {
  const QModelIndexList rows = table_->selectionModel()->selectedRows();
  if (rows.isEmpty()) {
    selection_.setBody(std::nullopt);
    return;
  }
  const bool hasCurrent = table_->selectionModel()->isRowSelected(table_->currentRow());
  selection_.setBody(
      static_cast<std::size_t>(hasCurrent ? table_->currentRow() : rows.constFirst().row()));
}

void PlanetsView::selectRowOfBody() {
  const std::optional<std::size_t> body = selection_.body();
  if (!body) {
    table_->clearSelection();
  } else if (const auto row = static_cast<int>(*body);
             row < table_->rowCount() && !table_->selectionModel()->isRowSelected(row)) {
    table_->selectRow(row);
  }
}

bool PlanetsView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) {
    fitColumns();
  }
  return WithPlaceholder::eventFilter(watched, event);
}

void PlanetsView::fitColumns() {
  const QAbstractItemView& texts = *table_;
  std::vector<int> widths;
  widths.reserve(columns.size());
  for (int column = 0; column < table_->columnCount(); ++column) {
    widths.push_back(std::max(texts.sizeHintForColumn(column),
                              table_->horizontalHeader()->sectionSizeHint(column)));
  }
  const int room = table_->viewport()->width() - std::accumulate(widths.begin(), widths.end(), 0);
  const int spacing = std::clamp(room / table_->columnCount(), 0, columnSpacing);
  for (int column = 0; column < table_->columnCount(); ++column) {
    table_->setColumnWidth(column, widths[static_cast<std::size_t>(column)] + spacing);
  }
}

void PlanetsView::copySelection() const {
  QStringList lines;
  for (int row = 0; row < table_->rowCount(); ++row) {
    if (!table_->item(row, 0)->isSelected()) {
      continue;
    }
    QStringList cells;
    for (int column = 0; column < table_->columnCount(); ++column) {
      cells.append(table_->item(row, column)->text());
    }
    lines.append(cells.join(QLatin1Char('\t')));
  }
  if (lines.isEmpty()) {
    return;  // what was copied before stays
  }
  QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

}  // namespace veyruna::ui
