#pragma once

#include <QImage>
#include <QWidget>

#include "drawing/picture_painter.h"

namespace veyruna::ui {

/// A chart on white paper, as large as fits into the view, centred.
class SVGView : public QWidget {
  Q_OBJECT

 public:
  explicit SVGView(const QString& accessibleName, QWidget* parent = nullptr);

  /// Shows a chart; the same chart again costs nothing. A text that is no chart is said to be none.
  void show(const QString& svg);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintChart();

  QString svg_;
  drawing::Picture picture_;
  QString fault_;  ///< why there is no picture; empty where there is one
  drawing::PicturePainter painter_;
  QImage painted_;  ///< the view as it was painted last; none where something has changed since
};

}  // namespace veyruna::ui
