#include "ui/sidebar/sidebar_view.h"

#include <QDialog>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/controls/icons.h"
#include "ui/controls/named.h"
#include "ui/controls/program.h"
#include "ui/sidebar/calculate_area.h"
#include "ui/sidebar/date_section.h"
#include "ui/sidebar/location_section.h"
#include "ui/sidebar/location_sheets.h"
#include "ui/sidebar/time_section.h"

namespace veyruna::ui {

namespace {

constexpr int minimumColumnWidth = 240;
constexpr int exportPadding = 17;
constexpr int footerPadding = 3;

QLabel* footerLabel(const QString& text, const char* objectName) {
  auto* const label = named(new QLabel(text), objectName, text);
  label->setMargin(footerPadding);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

}  // namespace

SidebarView::SidebarView(model::AstronomyModel& model, QWidget* parent)
    : QScrollArea(parent),
      model_(model),
      location_(new LocationSection(model)),
      date_(new DateSection(model)),
      time_(new TimeSection(model)) {
  setObjectName(QStringLiteral("sidebar"));
  auto* const content = new QWidget;
  auto* const calculate = new CalculateArea(model);
  auto* const column = new QVBoxLayout(content);
  column->addWidget(location_);
  column->addWidget(date_);
  column->addWidget(time_);
  column->addWidget(calculate);
  column->addStretch();
  column->addWidget(makeExportArea());
  setWidget(content);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::NoFrame);

  connect(location_, &LocationSection::mapRequested, this, &SidebarView::mapRequested);
  connect(location_, &LocationSection::saveRequested, this, [this] {
    commit();
    open(new SaveLocationSheet(model_, window()));
  });
  connect(location_, &LocationSection::deleteRequested, this, [this] {
    commit();
    open(new DeleteLocationSheet(model_, window()));
  });
  connect(calculate, &CalculateArea::calculateRequested, this, [this] {
    commit();
    Q_EMIT calculatePressed();
    model_.recalculate();
  });
}

void SidebarView::open(QDialog* sheet) {
  // What the sheet was opened with is gone when it has done its work, and the focus would fall on
  // whatever stands in its place: Delete, for a place just saved.
  connect(sheet, &QDialog::accepted, location_, &LocationSection::focusPicker);
  sheet->open();
}

QWidget* SidebarView::makeExportArea() {
  auto* const area = new QGroupBox(tr("Export options"));
  nativeExport_ = named(new QPushButton(icon("document-save-as", "export"), QString()),
                        "nativeExportButton", tr("Export in its own format"));
  auto* const pdf = named(new QPushButton(icon("document-save-as", "export"), tr("&PDF")),
                          "pdfButton", tr("Export as PDF"));
  auto* const row = new QHBoxLayout;
  row->addWidget(nativeExport_);
  row->addWidget(pdf);
  auto* const column = new QVBoxLayout(area);
  column->setContentsMargins(exportPadding, exportPadding, exportPadding, exportPadding);
  column->addLayout(row);
  auto* const footer = new QHBoxLayout;
  footer->addWidget(footerLabel(tr("Version ") + programVersion(), "versionLabel"));
  footer->addWidget(footerLabel(tr("Build ") + programBuild(), "buildLabel"));
  footer->addStretch();
  column->addLayout(footer);
  connect(nativeExport_, &QPushButton::clicked, this, [this] {
    commit();
    Q_EMIT nativeExportRequested();
  });
  connect(pdf, &QPushButton::clicked, this, [this] {
    commit();
    Q_EMIT pdfExportRequested();
  });
  return area;
}

void SidebarView::setTab(exports::OutputTab tab) {
  nativeExport_->setText(exports::isChart(tab) ? tr("SV&G") : tr("&TXT"));
  location_->showColorMode(tab == exports::OutputTab::horoscope);
}

QSize SidebarView::minimumSizeHint() const {
  const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  return {std::max(minimumColumnWidth, widget()->minimumSizeHint().width() + scrollBar),
          QScrollArea::minimumSizeHint().height()};
}

bool SidebarView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) {
    updateGeometry();  // other controls, another width
  }
  return QScrollArea::eventFilter(watched, event);
}

void SidebarView::commit() {
  location_->commit();
  date_->commit();
  time_->commit();
}

}  // namespace veyruna::ui
