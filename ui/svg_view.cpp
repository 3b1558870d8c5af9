#include "ui/svg_view.h"

#include <QCoreApplication>
#include <QShowEvent>
#include <QVBoxLayout>
#include <QWebEngineView>

#include "export/report_html.h"
#include "export/sealed_page.h"

namespace veyruna::ui {

namespace {

/// The one profile of all charts. It belongs to the application, so that no page outlives it.
exports::SealedProfile& chartProfile() {
  static auto* const profile = new exports::SealedProfile(QCoreApplication::instance());
  return *profile;
}

}  // namespace

SVGView::SVGView(const QString& accessibleName, QWidget* parent)
    : QWidget(parent), layout_(new QVBoxLayout(this)) {
  setAccessibleName(accessibleName);
  layout_->setContentsMargins({});
}

void SVGView::show(const QString& svg) {
  svg_ = svg;
  if (view_ != nullptr) {
    load();
  }
}

void SVGView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (view_ == nullptr) {
    // After the window's first paint: the engine takes longer to start than the window.
    QMetaObject::invokeMethod(this, &SVGView::makeView, Qt::QueuedConnection);
  }
}

void SVGView::makeView() {
  if (view_ != nullptr) {
    return;
  }
  view_ = new QWebEngineView(this);
  view_->setObjectName(QStringLiteral("chart"));
  view_->setAccessibleName(accessibleName());
  view_->setPage(new exports::SealedPage(chartProfile(), view_));
  view_->setContextMenuPolicy(Qt::NoContextMenu);
  layout_->addWidget(view_);
  load();
}

void SVGView::load() {
  if (svg_ != loaded_) {
    loaded_ = svg_;
    view_->setHtml(exports::chartPage(svg_));
  }
}

}  // namespace veyruna::ui
