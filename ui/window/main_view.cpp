#include "ui/window/main_view.h"

#include <QAction>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <functional>

#include "ui/outputs/detailed_view.h"
#include "ui/sidebar/sidebar_view.h"
#include "ui/window/export_commands.h"
#include "ui/window/export_notice.h"
#include "ui/window/help_menu_view.h"
#include "ui/window/manual.h"
#include "ui/window/print_command.h"
#include "ui/window/product.h"
#include "ui/window/tab_selector.h"
#include "ui/window/window_state.h"

namespace veyruna::ui {

namespace {

using exports::OutputTab;

constexpr int idealSidebarWidth = 300;
constexpr QSize firstSize(1180, 780);
constexpr QSize decoration(16, 40);  // left for edges and title bar while nothing is known of them

}  // namespace

MainView::MainView(model::AstronomyModel& model, WindowState& state, QWidget* parent)
    : QMainWindow(parent),
      state_(state),
      tabs_(new TabSelector(this)),
      sidebar_(new SidebarView(model)),
      output_(new DetailedView(model)),
      columns_(new QSplitter),
      notice_(new ExportNotice) {
  setWindowTitle(product().title);
  setAttribute(Qt::WA_DeleteOnClose);
  setContextMenuPolicy(Qt::NoContextMenu);  // which would offer to hide the toolbar
  addToolBar(tabs_);
  makeColumns();
  statusBar()->addWidget(notice_, 1);
  exports_ = new ExportCommands(model, state, *notice_, *this);
  print_ = new PrintCommand(model, *notice_, *this);
  makeMenus();

  connect(tabs_, &TabSelector::chosen, this, &MainView::selectTab);
  connect(sidebar_, &SidebarView::mapRequested, this, [this] {
    selectTab(OutputTab::location);
    output_->focusMap();  // its arrow keys and zooms work at once
  });
  connect(sidebar_, &SidebarView::nativeExportRequested, this,
          [this] { exports_->exportNative(selectedTab_); });
  connect(sidebar_, &SidebarView::pdfExportRequested, this,
          [this] { exports_->exportPdf(selectedTab_); });
  connect(&model, &model::AstronomyModel::isCalculatingChanged, notice_,
          &ExportNotice::dismissFailure);
  selectTab(OutputTab::starMap);
  if (const auto placement = state_.placement()) {
    openAt(*placement);
  } else {
    resize(firstSize.boundedTo(screen()->availableSize() - decoration));
  }
}

void MainView::makeColumns() {
  columns_->addWidget(sidebar_);
  columns_->addWidget(output_);
  columns_->setChildrenCollapsible(false);
  columns_->setStretchFactor(1, 1);
  const int sidebarWidth = state_.sidebarWidth().value_or(idealSidebarWidth);
  columns_->setSizes({sidebarWidth, firstSize.width() - sidebarWidth});
  setCentralWidget(columns_);
}

void MainView::openAt(const Placement& placement) {
  QList<QRect> rooms;
  for (const QScreen* const each : QGuiApplication::screens()) {
    rooms.append(each->availableGeometry());
  }
  placement_ = onScreens(placement, rooms);
  resize(placement_.size);
  move(placement_.frame.topLeft());
  setWindowState((placement_.isMaximized ? Qt::WindowMaximized : Qt::WindowNoState) |
                 (placement_.isFullScreen ? Qt::WindowFullScreen : Qt::WindowNoState));
}

void MainView::notePlacement() {
  if (!isVisible() || isMinimized()) {
    return;
  }
  placement_.isMaximized = isMaximized();
  placement_.isFullScreen = isFullScreen();
  if (!isMaximized() && !isFullScreen()) {
    placement_.frame = frameGeometry();
    placement_.size = size();
  }
}

void MainView::selectTab(OutputTab tab) {
  sidebar_->commit();
  selectedTab_ = tab;
  tabs_->setTab(tab);
  sidebar_->setTab(tab);
  output_->setTab(tab);
  notice_->dismissFailure();
  const bool isSaved = tab != OutputTab::location;
  saveNative_->setText(exports::isChart(tab) ? tr("&Save as SVG…") : tr("&Save as Text…"));
  for (QAction* const action : {saveNative_, savePdf_, printAction_}) {
    action->setEnabled(isSaved);
    action->setStatusTip(isSaved ? QString() : tr("This tab has nothing to save or print."));
  }
}

void MainView::makeMenus() {
  const auto add = [this](QMenu* menu, const QString& title, const char* keys, const auto& act) {
    QAction* const action = menu->addAction(title, this, [this, act] {
      sidebar_->commit();
      std::invoke(act, this);
    });
    action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
    return action;
  };
  QMenu* const program = menuBar()->addMenu(QLatin1Char('&') + labelOf(product().name));
  add(program, tr("&About %1").arg(labelOf(product().name)), "", &MainView::aboutRequested);
  add(program, tr("&Quit"), "Ctrl+Q", &MainView::quitRequested);
  QMenu* const file = menuBar()->addMenu(tr("&File"));
  add(file, tr("&New Window"), "Ctrl+N", &MainView::newWindowRequested);
  file->addSeparator();
  saveNative_ = add(file, QString(), "Ctrl+S",
                    [](MainView* view) { view->exports_->exportNative(view->selectedTab_); });
  savePdf_ = add(file, tr("Save as P&DF…"), "Ctrl+Shift+S",
                 [](MainView* view) { view->exports_->exportPdf(view->selectedTab_); });
  printAction_ = add(file, tr("&Print…"), "Ctrl+P",
                     [](MainView* view) { view->print_->print(view->selectedTab_); });
  file->addSeparator();
  add(file, tr("&Close"), "Ctrl+W", &QWidget::close);
  menuBar()->addMenu(new HelpMenuView(this));
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { QDesktopServices::openUrl(manualChapter(selectedTab_)); });
}

void MainView::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  notePlacement();
}

void MainView::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  notePlacement();
}

void MainView::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) {
    notePlacement();
  }
}

void MainView::closeEvent(QCloseEvent* event) {
  sidebar_->commit();
  notePlacement();
  state_.setPlacement(placement_);
  state_.setSidebarWidth(columns_->sizes().constFirst());
  QMainWindow::closeEvent(event);
}

}  // namespace veyruna::ui
