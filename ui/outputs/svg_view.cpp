#include "ui/outputs/svg_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include "export/chart_page.h"
#include "ui/controls/named.h"
#include "ui/controls/shades.h"

namespace veyruna::ui {

namespace {

constexpr QColor paper(0xe4, 0xe2, 0xde);

}  // namespace

SVGView::SVGView(const PageEngine& engine, const QString& accessibleName, QWidget* parent)
    : QWidget(parent), makeView_(engine.makeView), layout_(new QVBoxLayout(this)) {
  setAccessibleName(accessibleName);
  layout_->setContentsMargins({});
}

void SVGView::show(const QString& svg) {
  svg_ = svg;
  if (page_ != nullptr) {
    load();
  }
}

void SVGView::paintEvent(QPaintEvent* event) {
  // The charts are drawn in inks for paper; on a dark desktop they get a sheet of it.
  if (isDark(palette())) {
    QPainter(this).fillRect(event->rect(), paper);
  }
  if (!isPageDue_) {
    isPageDue_ = true;
    QTimer::singleShot(0, this, &SVGView::makePage);
  }
}

void SVGView::makePage() {
  page_ = named(makeView_(), "chart", accessibleName());
  layout_->addWidget(page_);
  load();
}

void SVGView::load() {
  if (svg_ != loaded_) {
    loaded_ = svg_;
    page_->setHtml(exports::chartPage(svg_));
  }
}

}  // namespace veyruna::ui
