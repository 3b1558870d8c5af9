#pragma once

#include <QWidget>

#include "ui/outputs/page_engine.h"

class QVBoxLayout;

namespace veyruna::ui {

/// A chart, scaled to the view. What draws it is made when the chart is first to be seen, after the
/// window's first paint.
class SVGView : public QWidget {
  Q_OBJECT

 public:
  SVGView(const PageEngine& engine, const QString& accessibleName, QWidget* parent = nullptr);

  /// Shows a chart; the same chart again costs nothing.
  void show(const QString& svg);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void makePage();
  void load();

  std::function<PageView*()> makeView_;
  QVBoxLayout* layout_;
  PageView* page_ = nullptr;
  bool isPageDue_ = false;
  QString svg_;
  QString loaded_;
};

}  // namespace veyruna::ui
