#include "ui/window/tab_selector.h"

#include <QActionGroup>
#include <QHBoxLayout>

#include "ui/controls/highlighted_buttons.h"
#include "ui/controls/icons.h"
#include "ui/controls/named.h"
#include "ui/outputs/tab_views.h"

namespace veyruna::ui {

TabSelector::TabSelector(QWidget* parent)
    : QToolBar(tr("Tabs"), parent), actions_(new QActionGroup(this)) {
  setObjectName(QStringLiteral("tabSelector"));
  setMovable(false);
  setFloatable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  toggleViewAction()->setEnabled(false);
  toggleViewAction()->setVisible(false);

  // One widget holds all buttons, and is never narrower than they are: none can fold away.
  auto* const buttons = new QWidget;
  auto* const row = new QHBoxLayout(buttons);
  row->setContentsMargins({});
  row->addStretch();
  int number = 1;
  for (const auto& [tab, iconName, manualPage, make] : tabViews) {
    const QString title = exports::title(tab);
    auto* const action = new QAction(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
    action->setParent(this);
    action->setIcon(icon("", iconName));
    action->setCheckable(true);
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(number)));
    action->setToolTip(
        tr("%1 (%2)").arg(title, action->shortcut().toString(QKeySequence::NativeText)));
    actions_->addAction(action);
    auto* const button = named(new TabButton, "", tr("Show the tab %1").arg(title));
    button->setObjectName(QStringLiteral("tab%1").arg(number));
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(button);
    connect(action, &QAction::triggered, this,
            [this, chosenTab = tab] { Q_EMIT chosen(chosenTab); });
    ++number;
  }
  row->addStretch();
  buttons->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  addWidget(buttons);
}

void TabSelector::setTab(exports::OutputTab tab) {
  actions_->actions().at(static_cast<int>(tab))->setChecked(true);
}

}  // namespace veyruna::ui
