#pragma once

#include <QWidget>

class QVBoxLayout;
class QWebEngineView;

namespace veyruna::ui {

/// A chart, scaled to the view. The web view behind it is made when the chart is first to be seen;
/// its page runs no scripts and may load nothing.
class SVGView final : public QWidget {
  Q_OBJECT

 public:
  explicit SVGView(const QString& accessibleName, QWidget* parent = nullptr);

  /// Shows a chart; the same chart again costs nothing.
  void show(const QString& svg);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void makeView();
  void load();

  QVBoxLayout* layout_;
  QWebEngineView* view_ = nullptr;
  QString svg_;
  QString loaded_;
};

}  // namespace veyruna::ui
