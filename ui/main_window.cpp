#include "ui/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPointer>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include "export/pdf_exporter.h"
#include "ui/detailed_view.h"
#include "ui/help_menu.h"
#include "ui/named.h"
#include "ui/sidebar_view.h"
#include "ui/window_state.h"

namespace veyruna::ui {

namespace {

using exports::OutputTab;

constexpr int idealSidebarWidth = 300;
constexpr QSize firstSize(1180, 780);
constexpr int messageMilliseconds = 8000;

exports::PdfRenderer webEngineRenderer() {
  return [](const QString& html, const QSizeF& pageSize, const exports::PdfCompletion& done) {
    exports::PDFExporter::start(html, pageSize, done);
  };
}

}  // namespace

MainWindow::MainWindow(model::AstronomyModel& model, WindowState& state, QWidget* parent)
    : QMainWindow(parent),
      state_(state),
      exporter_(model, webEngineRenderer()),
      sidebar_(new SidebarView(model)),
      output_(new DetailedView(model)),
      tabActions_(new QActionGroup(this)) {
  setWindowTitle(tr("Veyrunan Astrologer"));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* const columns = new QSplitter;
  columns->addWidget(sidebar_);
  columns->addWidget(output_);
  columns->setChildrenCollapsible(false);
  columns->setStretchFactor(1, 1);
  columns->setSizes({idealSidebarWidth, firstSize.width() - idealSidebarWidth});
  setCentralWidget(columns);
  makeTabSelector();
  makeMenus();
  statusBar();

  connect(sidebar_, &SidebarView::mapRequested, this, [this] { selectTab(OutputTab::location); });
  connect(sidebar_, &SidebarView::nativeExportRequested, this, &MainWindow::exportNative);
  connect(sidebar_, &SidebarView::pdfExportRequested, this, &MainWindow::exportPdf);
  selectTab(OutputTab::starMap);
  resize(firstSize);
  restoreGeometry(state_.geometry());  // keeps the window on a screen that is there
}

void MainWindow::selectTab(OutputTab tab) {
  sidebar_->commit();
  selectedTab_ = tab;
  tabActions_->actions().at(static_cast<int>(tab))->setChecked(true);
  sidebar_->setTab(tab);
  output_->setTab(tab);
}

void MainWindow::makeTabSelector() {
  // One widget holds all buttons, and the window is at least as wide: none can fold away.
  auto* const selector = new QWidget;
  auto* const row = new QHBoxLayout(selector);
  row->setContentsMargins({});
  row->addStretch();
  int number = 1;
  for (const OutputTab tab : exports::outputTabs) {
    auto* const action =
        new QAction(exports::title(tab).replace(QLatin1Char('&'), QStringLiteral("&&")), this);
    action->setCheckable(true);
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(number)));
    tabActions_->addAction(action);
    addAction(action);
    auto* const button = named(new QToolButton, "", tr("Show the tab %1").arg(exports::title(tab)));
    button->setObjectName(QStringLiteral("tab%1").arg(number));
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(button);
    connect(action, &QAction::triggered, this, [this, tab] { selectTab(tab); });
    ++number;
  }
  row->addStretch();
  selector->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  selector->setMinimumWidth(row->minimumSize().width());

  auto* const bar = new QToolBar(tr("Tabs"));
  bar->setObjectName(QStringLiteral("tabSelector"));
  bar->setMovable(false);
  bar->setFloatable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->toggleViewAction()->setEnabled(false);
  bar->addWidget(selector);
  addToolBar(bar);
  setContextMenuPolicy(Qt::NoContextMenu);
  setMinimumWidth(bar->sizeHint().width() + bar->layout()->contentsMargins().left() * 2);
}

void MainWindow::makeMenus() {
  QMenu* const program = menuBar()->addMenu(tr("&Veyruna Astro"));
  program->addAction(tr("&About Veyruna Astro"), this, &MainWindow::aboutRequested);
  QAction* const quit = program->addAction(tr("&Quit"), this, &MainWindow::quitRequested);
  quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));

  QMenu* const file = menuBar()->addMenu(tr("&File"));
  QAction* const another =
      file->addAction(tr("&New Window"), this, &MainWindow::newWindowRequested);
  another->setShortcut(QKeySequence(QStringLiteral("Ctrl+N")));
  QAction* const close = file->addAction(tr("&Close"), this, &QWidget::close);
  close->setShortcut(QKeySequence(QStringLiteral("Ctrl+W")));

  addHelpMenu(*menuBar());
}

void MainWindow::exportNative() {
  const auto content = exporter_.native(selectedTab_);
  if (!content) {
    return;
  }
  const bool isSvg = content->format == exports::NativeFormat::svg;
  ask(content->message, content->proposedName, isSvg ? tr("SVG (*.svg)") : tr("Plain text (*.txt)"),
      content->extension, [this, content = *content](const QString& path) {
        exporter_.save(content, path, reportTo(path));
      });
}

void MainWindow::exportPdf() {
  const auto content = exporter_.pdf(selectedTab_);
  if (!content) {
    return;
  }
  ask(content->message, content->proposedName, tr("PDF (*.pdf)"), QStringLiteral("pdf"),
      [this, content = *content](const QString& path) {
        exporter_.save(content, path, reportTo(path));
      });
}

void MainWindow::ask(const QString& message, const QString& proposedName, const QString& filter,
                     const QString& suffix, const std::function<void(const QString& path)>& save) {
  auto* const dialog = new QFileDialog(this, message, state_.exportFolder(), filter);
  dialog->setObjectName(QStringLiteral("saveDialog"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(suffix);
  dialog->selectFile(proposedName);
  connect(dialog, &QFileDialog::fileSelected, this, [this, save](const QString& path) {
    state_.setExportFolder(QFileInfo(path).absolutePath());
    save(path);
  });
  dialog->open();
}

exports::Saved MainWindow::reportTo(const QString& path) {
  return [window = QPointer<MainWindow>(this), path](const std::optional<QString>& error) {
    if (window) {
      window->statusBar()->showMessage(
          error ? *error : tr("Saved %1").arg(QFileInfo(path).fileName()), messageMilliseconds);
    }
  };
}

void MainWindow::closeEvent(QCloseEvent* event) {
  state_.setGeometry(saveGeometry());
  QMainWindow::closeEvent(event);
}

}  // namespace veyruna::ui
