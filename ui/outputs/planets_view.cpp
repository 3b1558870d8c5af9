#include "ui/outputs/planets_view.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QTableWidget>
#include <algorithm>
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

QStringList columnsOf(const BodyPosition& body) {
  return {body.name, body.bodyType, body.azimuth, body.altitude, body.ecLong, body.sign};
}

}  // namespace

PlanetsView::PlanetsView(QWidget* parent)
    : PlanetsView(named(new QTableWidget, "positionsTable", tr("Positions of the bodies")),
                  parent) {}

PlanetsView::PlanetsView(QTableWidget* table, QWidget* parent)
    : WithPlaceholder(table, tr("No Positions"), parent), table_(table) {
  const QStringList titles = {tr("Body"),     tr("Type"),          tr("Azimuth"),
                              tr("Altitude"), tr("Ec. Longitude"), tr("Sign")};
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
}

void PlanetsView::show(const QList<BodyPosition>& positions) {
  table_->setRowCount(static_cast<int>(positions.size()));
  for (int row = 0; row < positions.size(); ++row) {
    const QStringList columns = columnsOf(positions[row]);
    for (int column = 0; column < columns.size(); ++column) {
      auto* const item = new QTableWidgetItem(columns[column]);
      const bool isAngle = column >= 2 && column <= 4;
      item->setTextAlignment(isAngle ? Qt::AlignRight | Qt::AlignVCenter
                                     : Qt::AlignLeft | Qt::AlignVCenter);
      table_->setItem(row, column, item);
    }
    table_->item(row, 0)->setIcon(markOf(positions[row].color));
  }
  fitColumns();
  showView(!positions.isEmpty());
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
    QStringList columns;
    for (int column = 0; column < table_->columnCount(); ++column) {
      columns.append(table_->item(row, column)->text());
    }
    lines.append(columns.join(QLatin1Char('\t')));
  }
  if (lines.isEmpty()) {
    return;  // what was copied before stays
  }
  QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

}  // namespace veyruna::ui
