#pragma once

#include <QWidget>
#include <functional>

#include "export/pdf_result.h"

namespace veyruna::ui {

/// Shows an HTML document, which may load nothing and run nothing.
class PageView : public QWidget {
 public:
  using QWidget::QWidget;
  virtual void setHtml(const QString& html) = 0;
};

/// What draws documents, on screen and as PDF. It comes into the windows from outside: the program
/// hands in the web engine, which is slow to start, so a view is made only when it is to be seen.
struct PageEngine {
  std::function<PageView*()> makeView;
  exports::PdfRenderer renderPdf;
};

}  // namespace veyruna::ui
