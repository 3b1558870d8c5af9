#include "ui/web_page_engine.h"

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
  }

  void setHtml(const QString& html) override { view_->setHtml(html); }

 private:
  QWebEngineView* view_;
};

}  // namespace

PageEngine webPageEngine() {
  return {[] { return new WebPageView; }, &exports::PDFExporter::render};
}

}  // namespace veyruna::ui
