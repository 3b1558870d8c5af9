#include "ui/map/map_area.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "ui/controls/fixed_pitch_font.h"
#include "ui/controls/named.h"
#include "ui/controls/plain_key.h"
#include "ui/map/map_marks.h"
#include "ui/map/map_tiles.h"
#include "ui/map/translucent_label.h"

namespace veyruna::ui {

namespace {

constexpr double pinchThreshold = 0.01;  ///< of the magnification
constexpr double keyStep = 40.0;         ///< points the map moves at one press of an arrow
constexpr int readoutInset = 10;         ///< points from the area's edges
constexpr double calloutSize = 0.92;     ///< of the body's type

/// Larger pictures than any zoom makes are not drawn, so that whole numbers hold their pixels.
constexpr double mostPixels = 1e9;

/// The ground under the map: black at opacity 0.04 over the window's colour. On a dark window that
/// alone could not be told from it, so there the ground is first lightened.
QColor groundOf(const QPalette& palette) {
  constexpr float blackness = 0.04F;
  constexpr int dark = 128;
  constexpr int lightened = 130;  // percent
  const QColor window = palette.color(QPalette::Window);
  const QColor base = window.lightness() < dark ? window.lighter(lightened) : window;
  const auto darkened = [](float channel) { return channel * (1.0F - blackness); };
  return QColor::fromRgbF(darkened(base.redF()), darkened(base.greenF()), darkened(base.blueF()));
}

/// The picture's pixels on the device; empty where it is too small or too far to be seen.
QRect onDevice(const Layout& layout, const QTransform& toDevice) {
  const QPointF origin = toDevice.map(layout.origin);
  const double width = std::round(layout.displaySize.width() * toDevice.m11());
  const double height = std::round(layout.displaySize.height() * toDevice.m22());
  const bool isDrawn = width >= 1.0 && width <= mostPixels && height >= 1.0 &&
                       height <= mostPixels && std::abs(origin.x()) <= mostPixels &&
                       std::abs(origin.y()) <= mostPixels;
  return isDrawn ? QRect(origin.toPoint(), QSize(static_cast<int>(width), static_cast<int>(height)))
                 : QRect();
}

QFont readoutFont() {
  QFont font = fixedPitchFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  font.setPointSizeF(font.pointSizeF() * calloutSize);
  return font;
}

}  // namespace

MapArea::MapArea(PictureSource source, model::Executor executor, QWidget* parent)
    : QWidget(parent),
      source_(std::move(source)),
      executor_(std::move(executor)),
      tiles_(new MapTiles(executor_, this)),
      readout_(named(new TranslucentLabel(this), "mapReadout", tr("Place under the pointer"))),
      placeName_(named(new TranslucentLabel(this), "mapPlaceName", tr("Saved place"))) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::CrossCursor);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  readout_->setFont(readoutFont());
  readout_->move(readoutInset, readoutInset);
  connect(tiles_, &MapTiles::tileCame, this, &MapArea::repaintTile);
}

void MapArea::showLayout(const Layout& layout) {
  shown_ = layout;
  isDrawn_ = false;
  showNameUnderPointer();
  update();
}

void MapArea::showMarks(std::vector<MapMark> marks) {
  marks_ = std::move(marks);
  showNameUnderPointer();
  update();
}

void MapArea::showReadout(const QString& text) {
  readout_->showText(text);
}

bool MapArea::isComplete() const {
  return tiles_->hasPicture() && isDrawn_ && tiles_->isComplete();
}

void MapArea::readPicture() {
  executor_([self = QPointer<MapArea>(this), source = source_] {
    QImage image = source();
    const auto picture =
        image.isNull() ? nullptr : std::make_shared<const MapPicture>(std::move(image));
    QMetaObject::invokeMethod(
        qApp,
        [self, picture] {
          if (self && picture) {
            self->takePicture(picture);
          }
        },
        Qt::QueuedConnection);
  });
}

void MapArea::takePicture(const std::shared_ptr<const MapPicture>& picture) {
  tiles_->setPicture(picture);
  isDrawn_ = false;
  update();
}

void MapArea::repaintTile(QRect area) {
  const double pixels = devicePixelRatioF();
  const QRectF points(QPointF(area.topLeft()) / pixels, QSizeF(area.size()) / pixels);
  const QRectF inSight = points.translated(shown_.origin) & QRectF(rect());
  if (!inSight.isEmpty()) {
    // The picture lies on whole device pixels, up to one beside its layout.
    update(inSight.toAlignedRect().adjusted(-1, -1, 1, 1));
  }
}

void MapArea::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  drawMap(painter, event->rect());
  if (hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0));
  }
}

void MapArea::drawMap(QPainter& painter, const QRectF& exposed) {
  const QTransform toDevice = painter.deviceTransform();
  const QRect part = toDevice.mapRect(exposed).toAlignedRect();
  const QRect view = toDevice.mapRect(QRectF(rect())).toAlignedRect();
  const QRect image = tiles_->hasPicture() ? onDevice(shown_, toDevice) : QRect();
  painter.save();
  painter.setWorldTransform(toDevice.inverted() * painter.worldTransform());
  const QColor ground = groundOf(palette());
  for (const QRect& bare : QRegion(part) - image) {
    painter.fillRect(bare, ground);
  }
  tiles_->draw(painter, {.image = image, .view = view, .exposed = part});
  stamps_.draw(painter, marks_, shown_, toDevice, view);
  painter.restore();
  isDrawn_ = true;
}

bool MapArea::event(QEvent* event) {
  if (event->type() != QEvent::NativeGesture) {
    return QWidget::event(event);
  }
  const bool isTaken = pinch(static_cast<const QNativeGestureEvent&>(*event));
  event->setAccepted(isTaken);
  return isTaken;
}

bool MapArea::pinch(const QNativeGestureEvent& event) {
  switch (event.gestureType()) {
    case Qt::BeginNativeGesture:
      magnification_ = 1.0;
      return true;
    case Qt::ZoomNativeGesture:
      // An increment that leaves nothing of the map, or is no number, cannot come from fingers.
      if (event.value() > -1.0 && std::isfinite(event.value())) {
        magnification_ *= 1.0 + event.value();
      }
      isPinching_ = isPinching_ || std::abs(magnification_ - 1.0) >= pinchThreshold;
      if (isPinching_) {
        Q_EMIT pinchMoved(magnification_);
      }
      return true;
    case Qt::EndNativeGesture: {
      const double magnification = std::exchange(magnification_, 1.0);
      if (std::exchange(isPinching_, false)) {
        Q_EMIT pinchEnded(magnification);
      }
      return true;
    }
    default:
      return false;
  }
}

void MapArea::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Q_EMIT resized(size());
}

void MapArea::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!std::exchange(hasAskedForPicture_, true)) {
    readPicture();
  }
}

void MapArea::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  cancelGestures();
  leave();
}

void MapArea::enterEvent(QEnterEvent* event) {
  point(event->position());
}

void MapArea::leaveEvent(QEvent* /*event*/) {
  leave();
}

void MapArea::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    press_ = Press(event->position());
  }
}

void MapArea::mouseMoveEvent(QMouseEvent* event) {
  if (press_.isDown() && !event->buttons().testFlag(Qt::LeftButton)) {
    cancelGestures();  // the button was let go where nobody told
  }
  if (press_.becomesDrag(event->position())) {
    setCursor(Qt::ClosedHandCursor);
  }
  if (press_.isDrag()) {
    Q_EMIT dragMoved(press_.translationTo(event->position()));
  }
  point(event->position());
}

void MapArea::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !press_.isDown()) {
    return;
  }
  const Press press = std::exchange(press_, Press());
  if (press.isDrag()) {
    setCursor(Qt::CrossCursor);
    Q_EMIT dragEnded(press.translationTo(event->position()));
  } else {
    Q_EMIT clicked(event->position());
  }
}

void MapArea::keyPressEvent(QKeyEvent* event) {
  if (!isPlain(*event)) {
    QWidget::keyPressEvent(event);
    return;
  }
  // An arrow looks that way: the map moves the other.
  switch (event->key()) {
    case Qt::Key_Left:
      Q_EMIT panRequested({keyStep, 0.0});
      break;
    case Qt::Key_Right:
      Q_EMIT panRequested({-keyStep, 0.0});
      break;
    case Qt::Key_Up:
      Q_EMIT panRequested({0.0, keyStep});
      break;
    case Qt::Key_Down:
      Q_EMIT panRequested({0.0, -keyStep});
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

void MapArea::point(QPointF position) {
  if (!QRectF(rect()).contains(position)) {
    leave();  // a drag goes on beyond the border
    return;
  }
  pointer_ = position;
  showNameUnderPointer();
  Q_EMIT pointerMoved(position);
}

void MapArea::leave() {
  if (std::exchange(pointer_, std::nullopt)) {
    showNameUnderPointer();
    Q_EMIT pointerLeft();
  }
}

void MapArea::showNameUnderPointer() {
  const NameOnMap name = pointer_ ? nameAt(*pointer_, marks_, shown_) : NameOnMap();
  placeName_->showText(name.text);
  if (!name.text.isEmpty()) {
    constexpr QPoint beside(10, 4);
    const QSize room = size() - placeName_->size();
    const QPoint corner =
        name.mark.toPoint() + QPoint(beside.x(), -beside.y() - placeName_->height());
    placeName_->move(std::clamp(corner.x(), 0, std::max(0, room.width())),
                     std::clamp(corner.y(), 0, std::max(0, room.height())));
  }
}

void MapArea::cancelGestures() {
  magnification_ = 1.0;
  const bool wasDragging = std::exchange(press_, Press()).isDrag();
  const bool wasPinching = std::exchange(isPinching_, false);
  if (wasDragging) {
    setCursor(Qt::CrossCursor);
  }
  if (wasDragging || wasPinching) {
    Q_EMIT gesturesCancelled();
  }
}

}  // namespace veyruna::ui
