#include "ui/outputs/web_page_engine.h"

#include <QCoreApplication>
#include <QVBoxLayout>
#include <QWebEngineView>

#include "export/pdf_exporter.h"
#include "export/sealed_page.h"

namespace veyruna::ui {

namespace {

/// The one profile of all views. It belongs to the application, so that no page outlives it.
exports::SealedProfile& sharedProfile() {
  static auto* const profile = new exports::SealedProfile(QCoreApplication::instance());
  return *profile;
}

class WebPageView final : public PageView {
 public:
  WebPageView() : view_(new QWebEngineView(this)) {
    view_->setObjectName(QStringLiteral("webView"));
    view_->setPage(new exports::SealedPage(sharedProfile(), view_));
    view_->setContextMenuPolicy(Qt::NoContextMenu);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(view_);
    setFocusProxy(view_);
    connect(view_, &QWebEngineView::renderProcessTerminated, this, &WebPageView::revive,
            Qt::QueuedConnection);
  }

  void setHtml(const QString& html) override {
    html_ = html;
    revivals_ = 0;
    view_->setHtml(html);
  }

 private:
  /// Shows the document again when the process that draws it has died. Not without end: a document
  /// that kills its process would do so again.
  void revive() {
    constexpr int mostRevivals = 3;
    if (revivals_ < mostRevivals) {
      ++revivals_;
      view_->setHtml(html_);
    }
  }

  QWebEngineView* view_;
  QString html_;
  int revivals_ = 0;
};

}  // namespace

PageEngine webPageEngine() {
  return {[] { return new WebPageView; }, &exports::PDFExporter::render};
}

}  // namespace veyruna::ui
