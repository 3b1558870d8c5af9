#include "ui/window/main_view.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <algorithm>

#include "ui/outputs/detailed_view.h"
#include "ui/sidebar/sidebar_view.h"
#include "ui/window/export_commands.h"
#include "ui/window/export_notice.h"
#include "ui/window/help_menu_view.h"
#include "ui/window/tab_selector.h"
#include "ui/window/window_state.h"

namespace veyruna::ui {

namespace {

using exports::OutputTab;

constexpr int idealSidebarWidth = 300;
constexpr QSize firstSize(1180, 780);

}  // namespace

MainView::MainView(model::AstronomyModel& model, const PageEngine& engine, WindowState& state,
                   QWidget* parent)
    : QMainWindow(parent),
      state_(state),
      tabs_(new TabSelector(this)),
      sidebar_(new SidebarView(model)),
      output_(new DetailedView(model, engine)) {
  setWindowTitle(tr("Veyrunan Astrologer"));
  setAttribute(Qt::WA_DeleteOnClose);
  setContextMenuPolicy(Qt::NoContextMenu);  // which would offer to hide the toolbar
  addToolBar(tabs_);
  auto* const columns = new QSplitter;
  columns->addWidget(sidebar_);
  columns->addWidget(output_);
  columns->setChildrenCollapsible(false);
  columns->setStretchFactor(1, 1);
  columns->setSizes({idealSidebarWidth, firstSize.width() - idealSidebarWidth});
  setCentralWidget(columns);
  auto* const notice = new ExportNotice;
  statusBar()->addWidget(notice, 1);
  exports_ = new ExportCommands(model, engine, state, *notice, *this);
  makeMenus();

  connect(tabs_, &TabSelector::chosen, this, &MainView::selectTab);
  connect(sidebar_, &SidebarView::mapRequested, this, [this] { selectTab(OutputTab::location); });
  connect(sidebar_, &SidebarView::nativeExportRequested, this,
          [this] { exports_->exportNative(selectedTab_); });
  connect(sidebar_, &SidebarView::pdfExportRequested, this,
          [this] { exports_->exportPdf(selectedTab_); });
  selectTab(OutputTab::starMap);
  resize(firstSize);
  restoreGeometry(state_.geometry());
  keepOnScreen();
}

void MainView::keepOnScreen() {
  constexpr int titleBar = 40;  // room for what the window manager puts around
  const QRect room = screen()->availableGeometry().adjusted(0, titleBar, 0, 0);
  if (!isMaximized() && !isFullScreen() && !room.contains(geometry())) {
    resize(size().boundedTo(room.size()));
    const QPoint last = room.bottomRight() - QPoint(width(), height());
    move(std::clamp(x(), room.left(), std::max(room.left(), last.x())),
         std::clamp(y(), room.top() - titleBar, std::max(room.top(), last.y()) - titleBar));
  }
}

void MainView::selectTab(OutputTab tab) {
  sidebar_->commit();
  selectedTab_ = tab;
  tabs_->setTab(tab);
  sidebar_->setTab(tab);
  output_->setTab(tab);
}

void MainView::makeMenus() {
  const auto add = [this](QMenu* menu, const QString& title, const char* keys, auto signal) {
    QAction* const action = menu->addAction(title, this, [this, signal] {
      sidebar_->commit();
      (this->*signal)();
    });
    action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
  };
  QMenu* const program = menuBar()->addMenu(tr("&Veyruna Astro"));
  add(program, tr("&About Veyruna Astro"), "", &MainView::aboutRequested);
  add(program, tr("&Quit"), "Ctrl+Q", &MainView::quitRequested);
  QMenu* const file = menuBar()->addMenu(tr("&File"));
  add(file, tr("&New Window"), "Ctrl+N", &MainView::newWindowRequested);
  add(file, tr("&Close"), "Ctrl+W", &QWidget::close);
  menuBar()->addMenu(new HelpMenuView(this));
}

void MainView::closeEvent(QCloseEvent* event) {
  sidebar_->commit();
  state_.setGeometry(saveGeometry());
  QMainWindow::closeEvent(event);
}

}  // namespace veyruna::ui
