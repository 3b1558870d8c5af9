#pragma once

#include <QList>
#include <QStringList>
#include <memory>

#include "ui/outputs/page_engine.h"

namespace veyruna::tests {

/// What an engine was asked to draw.
struct Drawn {
  QStringList pages;  ///< shown, in order, by all views
  int views = 0;
  struct Pdf {
    QString html;
    QSizeF pageSize;
    exports::PdfCompletion completion;
  };
  QList<Pdf> pdfs;  ///< asked for; a test answers them
};

class RecordingView final : public ui::PageView {
 public:
  explicit RecordingView(std::shared_ptr<Drawn> drawn) : drawn_(std::move(drawn)) {
    ++drawn_->views;
  }
  void setHtml(const QString& html) override { drawn_->pages.append(html); }

 private:
  std::shared_ptr<Drawn> drawn_;
};

/// Draws nothing and remembers everything.
inline ui::PageEngine recordingEngine(std::shared_ptr<Drawn> drawn = std::make_shared<Drawn>()) {
  return {[drawn] { return new RecordingView(drawn); },
          [drawn](const QString& html, const QSizeF& size, const exports::PdfCompletion& done) {
            drawn->pdfs.append({html, size, done});
          }};
}

}  // namespace veyruna::tests
