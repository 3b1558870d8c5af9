#include "ui/window/main_view.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <functional>

#include "ui/charts/chart_view.h"
#include "ui/outputs/detailed_view.h"
#include "ui/outputs/tab_views.h"
#include "ui/sidebar/sidebar_view.h"
#include "ui/window/export_commands.h"
#include "ui/window/export_notice.h"
#include "ui/window/help_menu_view.h"
#include "ui/window/manual.h"
#include "ui/window/print_command.h"
#include "ui/window/product.h"
#include "ui/window/tab_selector.h"
#include "ui/window/view_menu.h"
#include "ui/window/window_state.h"

namespace veyruna::ui {

namespace {

using documents::Form;
using exports::OutputTab;

constexpr int idealSidebarWidth = 300;
constexpr QSize firstSize(1180, 780);
constexpr QSize decoration(16, 40);  // left for edges and title bar while nothing is known of them

}  // namespace

MainView::MainView(model::AstronomyModel& model, model::LiveTime& time, WindowState& state,
                   QWidget* parent)
    : QMainWindow(parent),
      time_(time),
      state_(state),
      tabs_(new TabSelector(this)),
      sidebar_(new SidebarView(model)),
      output_(new DetailedView(model, time)),
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
          [this] { exports_->exportNative(settledTab()); });
  connect(sidebar_, &SidebarView::pdfExportRequested, this,
          [this] { exports_->exportAs(Form::pdf, settledTab()); });
  for (const ChartView* const chart : output_->findChildren<ChartView*>()) {
    connect(chart, &ChartView::svgRequested, this,
            [this] { exports_->exportNative(settledTab()); });
    for (const auto& [requested, form] : {std::pair(&ChartView::pdfRequested, Form::pdf),
                                          std::pair(&ChartView::pngRequested, Form::png)}) {
      connect(chart, requested, this,
              [this, form = form] { exports_->exportAs(form, settledTab()); });
    }
  }
  // Not what is calculated by itself, or for another window: the failure may not be read yet.
  connect(sidebar_, &SidebarView::calculatePressed, notice_, &ExportNotice::dismissFailure);
  for (QGroupBox* const box : sidebar_->findChildren<QGroupBox*>()) {
    box->installEventFilter(this);
  }
  keepTypingFromRunningAway();
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
  for (const QScreen* const each : QApplication::screens()) {
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
  time_.setSeen(this, documentsSeenIn(tab));
  notice_->dismissFailure();
  const bool isSaved = tab != OutputTab::location;
  saveNative_->setText(exports::isChart(tab) ? tr("&Save as SVG…") : tr("&Save as Text…"));
  for (QAction* const action : {saveNative_, savePdf_, saveHtml_, printAction_}) {
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
                    [](MainView* view) { view->exports_->exportNative(view->settledTab()); });
  savePdf_ = add(file, tr("Save as P&DF…"), "Ctrl+Shift+S",
                 [](MainView* view) { view->exports_->exportAs(Form::pdf, view->settledTab()); });
  saveHtml_ = add(file, tr("Save as &HTML…"), "",
                  [](MainView* view) { view->exports_->exportAs(Form::html, view->settledTab()); });
  printAction_ = add(file, tr("&Print…"), "Ctrl+P",
                     [](MainView* view) { view->print_->print(view->settledTab()); });
  file->addSeparator();
  add(file, tr("&Close"), "Ctrl+W", &QWidget::close);
  menuBar()->addMenu(new ViewMenu(
      time_, [this] { sidebar_->commit(); }, this));
  menuBar()->addMenu(new HelpMenuView(this));
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { QDesktopServices::openUrl(manualChapter(selectedTab_)); });
}

exports::OutputTab MainView::settledTab() {
  time_.pause();
  return selectedTab_;
}

void MainView::keepTypingFromRunningAway() {
  const auto isTyped = [this](const QWidget* field) {
    return (qobject_cast<const QLineEdit*>(field) != nullptr ||
            qobject_cast<const QAbstractSpinBox*>(field) != nullptr) &&
           sidebar_->isAncestorOf(field);
  };
  connect(qApp, &QApplication::focusChanged, this,
          [this, isTyped](const QWidget* /*old*/, const QWidget* now) {
            if (isTyped(now)) {
              time_.pause();
            }
          });
  // Space plays from here on, wherever the keys went before; in a window that opens now, too.
  const auto takeKeys = [this] {
    if (time_.isOn() && (isActiveWindow() || !isVisible())) {
      output_->giveKeysToTime();
    }
  };
  connect(&time_, &model::LiveTime::isOnChanged, this, takeKeys);
  takeKeys();
  connect(&time_, &model::LiveTime::motionChanged, this, [this, isTyped] {
    if (time_.motion() != model::LiveTime::Motion::resting && isTyped(focusWidget())) {
      output_->giveKeysToTime();
    }
  });
}

/// Boxes around controls swallow Space, though there is nothing in them to be switched.
bool MainView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
    keyPressEvent(static_cast<QKeyEvent*>(event));
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainView::keyPressEvent(QKeyEvent* event) {
  using Motion = model::LiveTime::Motion;
  const bool isBackwards = event->modifiers() == Qt::ShiftModifier;
  if (!time_.isOn() || event->key() != Qt::Key_Space ||
      (event->modifiers() != Qt::NoModifier && !isBackwards)) {
    QMainWindow::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    sidebar_->commit();
    time_.play(time_.motion() != Motion::resting ? Motion::resting
               : isBackwards                     ? Motion::backward
                                                 : Motion::forward);
  }
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
