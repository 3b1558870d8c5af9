#include "ui/charts/chart_menu.h"

#include <QMenu>

#include "ui/charts/chart_view.h"

namespace veyruna::ui {

void openChartMenu(ChartView& chart, QPoint at) {
  auto* const menu = new QMenu(&chart);
  menu->setObjectName(QStringLiteral("chartMenu"));
  menu->setAccessibleName(ChartView::tr("What can be done with the chart"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction* const copy =
      menu->addAction(ChartView::tr("&Copy Picture"), &chart, &ChartView::copyPicture);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);  // the chart takes the key itself
  menu->addAction(ChartView::tr("Copy &Description"), &chart, &ChartView::copyDescription);
  menu->addSeparator();
  menu->addAction(ChartView::tr("Save as &SVG…"), &chart, &ChartView::svgRequested);
  menu->addAction(ChartView::tr("Save as P&DF…"), &chart, &ChartView::pdfRequested);
  menu->addAction(ChartView::tr("Save as P&NG…"), &chart, &ChartView::pngRequested);
  for (QAction* const action : menu->actions()) {
    action->setEnabled(!chart.svg().isEmpty());
  }
  menu->popup(at);
}

}  // namespace veyruna::ui
