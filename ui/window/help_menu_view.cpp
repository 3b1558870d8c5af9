#include "ui/window/help_menu_view.h"

#include <QDesktopServices>

#include "ui/window/manual.h"

namespace veyruna::ui {

HelpMenuView::HelpMenuView(QWidget* parent) : QMenu(tr("&Help"), parent) {
  setToolTipsVisible(true);
  addLink(tr("%1 &Help").arg(labelOf(product().name)), {{}, manual()});
  const ProductLink& website = product().developerWebsite;
  addLink(QLatin1Char('&') + labelOf(website.title), website);
}

void HelpMenuView::addLink(const QString& label, const ProductLink& link) {
  QAction* const action = addAction(label);
  action->setEnabled(link.address.isValid());
  action->setToolTip(leadsTo(link));
  action->setStatusTip(leadsTo(link));
  connect(action, &QAction::triggered, action,
          [address = link.address] { QDesktopServices::openUrl(address); });
}

}  // namespace veyruna::ui
