#include "ui/charts/svg_view.h"

#include <QPaintEvent>
#include <QPainter>

#include "drawing/svg_reader.h"

namespace veyruna::ui {

SVGView::SVGView(const QString& accessibleName, QWidget* parent) : QWidget(parent) {
  setAccessibleName(accessibleName);
  setAttribute(Qt::WA_OpaquePaintEvent);  // nothing shows through paper
}

void SVGView::show(const QString& svg) {
  if (svg == svg_) {
    return;
  }
  svg_ = svg;
  fault_.clear();
  picture_ = {};
  try {
    picture_ = drawing::readSvg(svg.toUtf8());
  } catch (const drawing::PictureError& error) {
    fault_ = tr("This chart cannot be shown: %1").arg(QString::fromStdString(error.what()));
  }
  painted_ = {};
  update();
  pictureChanged();
}

void SVGView::setFraming(const ChartFraming& framing) {
  if (framing == framing_) {
    return;
  }
  framing_ = framing;
  painted_ = {};
  update();
  pictureChanged();
}

void SVGView::paintEvent(QPaintEvent* event) {
  // The screen's own pixels: a scale factor makes the chart finer, not coarser.
  const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
  if (painted_.size() != pixels || painted_.devicePixelRatioF() != devicePixelRatioF()) {
    painted_ = QImage(pixels, QImage::Format_RGB32);
    painted_.setDevicePixelRatio(devicePixelRatioF());
    paintChart();
  }
  QPainter painter(this);
  painter.drawImage(event->rect(), painted_,
                    QRectF(QPointF(event->rect().topLeft()) * devicePixelRatioF(),
                           QSizeF(event->rect().size()) * devicePixelRatioF()));
  paintOver(painter);
}

void SVGView::paintChart() {
  painted_.fill(Qt::white);
  QPainter painter(&painted_);
  if (fault_.isEmpty()) {
    painter_.paint(painter, picture_, targetOf(framing(), stage()), drawing::Medium::pixels);
  } else {
    painter.setPen(Qt::black);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, fault_);
  }
}

}  // namespace veyruna::ui
