#include "ui/map/map_location_picker_view.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "model/input_signals.h"
#include "ui/controls/coordinates_text.h"
#include "ui/controls/icons.h"
#include "ui/controls/named.h"
#include "ui/controls/plain_key.h"
#include "ui/map/map_area.h"
#include "ui/map/map_marks.h"
#include "ui/map/map_pick.h"

namespace veyruna::ui {

namespace {

using model::AstronomyModel;

constexpr double zoomInFactor = 1.4;
constexpr double zoomOutFactor = 1.0 / zoomInFactor;
constexpr ZoomRange zoomRange{MapLocationPickerView::minZoom, MapLocationPickerView::maxZoom};
constexpr int spacing = 12;       ///< points
constexpr int readoutWidth = 56;  ///< points

QToolButton* zoomButton(const QIcon& picture, const QString& help) {
  auto* const button = new QToolButton;
  button->setIcon(picture);
  button->setToolTip(help);
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

}  // namespace

MapLocationPickerView::MapLocationPickerView(AstronomyModel& model, PictureSource picture,
                                             model::Executor executor, QWidget* parent)
    : QWidget(parent),
      model_(&model),
      area_(named(new MapArea(std::move(picture), std::move(executor)), "mapArea",
                  tr("Map of Tamsorel"))) {
  area_->setAccessibleDescription(tr(
      "Click to pick a place. The arrow keys move the map, plus and minus or Page Up and Page Down "
      "zoom it; a place can also be typed in the sidebar."));
  auto* const divider = new QFrame;
  divider->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(spacing);
  column->addLayout(makeControls());
  column->addWidget(divider);
  column->addWidget(area_, 1);
  addShortcuts();
  followArea();
  followModel();
  setFraming({minZoom, {}});
}

MapLocationPickerView::~MapLocationPickerView() = default;

QHBoxLayout* MapLocationPickerView::makeControls() {
  auto* const zoomOut = named(zoomButton(icon("zoom-out", "zoom_out"), tr("Zoom out (⌘−)")),
                              "zoomOutButton", tr("Zoom out"));
  auto* const zoomIn = named(zoomButton(icon("zoom-in", "zoom_in"), tr("Zoom in (⌘+)")),
                             "zoomInButton", tr("Zoom in"));
  zoomReadout_ = named(new QLabel, "zoomReadout", tr("Zoom"));
  zoomReadout_->setMinimumWidth(readoutWidth);
  zoomReadout_->setAlignment(Qt::AlignCenter);
  auto* const resetButton = named(new QPushButton(icon("zoom-original", "reset"), tr("Reset")),
                                  "resetButton", tr("Show the whole map"));
  auto* const hint = named(new QLabel(tr("Click to pick · ⌥-scroll to zoom · drag to pan")),
                           "mapHint", tr("How to use the map"));
  hint->setToolTip(
      tr("⌥ is the Alt key, ⌘ is the Ctrl key.\n"
         "Where the desktop keeps ⌥-scroll for itself, + and − or Page Up and Page Down zoom as "
         "well, once the map has been clicked or reached with Tab."));
  hint->setWordWrap(true);

  auto* const row = new QHBoxLayout;
  row->addWidget(zoomOut);
  row->addWidget(zoomReadout_);
  row->addWidget(zoomIn);
  row->addWidget(resetButton);
  row->addWidget(hint, 1);
  connect(zoomOut, &QToolButton::clicked, this, [this] { zoomBy(zoomOutFactor); });
  connect(zoomIn, &QToolButton::clicked, this, [this] { zoomBy(zoomInFactor); });
  connect(resetButton, &QPushButton::clicked, this, &MapLocationPickerView::reset);
  return row;
}

void MapLocationPickerView::addShortcuts() {
  // Like every shortcut, they rest while the view they belong to is out of sight.
  const auto add = [this](Qt::Key key, double factor) {
    const auto* const shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    connect(shortcut, &QShortcut::activated, this, [this, factor] { zoomBy(factor); });
  };
  add(Qt::Key_Minus, zoomOutFactor);
  add(Qt::Key_Equal, zoomInFactor);
  add(Qt::Key_Plus, zoomInFactor);
}

void MapLocationPickerView::followArea() {
  connect(area_, &MapArea::resized, this, [this](QSizeF size) {
    lastViewSize_ = size;
    showLayout();
  });
  connect(area_, &MapArea::pointerMoved, this, [this](QPointF position) {
    lastHoverLocation_ = position;
    showHover();
  });
  connect(area_, &MapArea::pointerLeft, this, [this] {
    lastHoverLocation_.reset();
    showHover();
  });
  connect(area_, &MapArea::clicked, this, &MapLocationPickerView::pickAt);
  connect(area_, &MapArea::dragMoved, this, [this](QPointF translation) {
    dragDelta_ = translation;
    showLayout();
  });
  connect(area_, &MapArea::dragEnded, this, [this](QPointF translation) {
    dragDelta_ = {};
    setFraming({framing_.zoom, framing_.pan + translation});
  });
  connect(area_, &MapArea::pinchMoved, this, [this](double magnification) {
    pinchDelta_ = magnification;
    showLayout();
  });
  connect(area_, &MapArea::pinchEnded, this, [this](double magnification) {
    pinchDelta_ = 1.0;
    setFraming(pinchedBy(magnification, framing_, zoomRange));
  });
  connect(area_, &MapArea::gesturesCancelled, this, [this] {
    pinchDelta_ = 1.0;
    dragDelta_ = {};
    showLayout();
  });
  connect(area_, &MapArea::panRequested, this, [this](QPointF translation) {
    setFraming({framing_.zoom, framing_.pan + translation});
  });
}

void MapLocationPickerView::followModel() {
  for (const auto signal : model::placeSignals) {
    connect(model_, signal, this, &MapLocationPickerView::showMarks);
  }
  connect(model_, &QObject::destroyed, this, &MapLocationPickerView::showMarks);
  showMarks();
}

void MapLocationPickerView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!scrollMonitor_) {
    scrollMonitor_ = std::make_unique<ScrollMonitor>(
        *this, [this](double scrollingDelta) { zoomByScrolling(scrollingDelta); });
  }
}

void MapLocationPickerView::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  scrollMonitor_.reset();
}

/// What the map and the controls above it leave: some window managers keep the wheel with Alt to
/// themselves, so that the same is done by a key alone.
void MapLocationPickerView::focusInEvent(QFocusEvent* event) {
  area_->setFocus(event->reason());
}

void MapLocationPickerView::keyPressEvent(QKeyEvent* event) {
  if (!isPlain(*event)) {
    QWidget::keyPressEvent(event);
    return;
  }
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
    case Qt::Key_PageUp:
      zoomBy(zoomInFactor);
      break;
    case Qt::Key_Minus:
    case Qt::Key_PageDown:
      zoomBy(zoomOutFactor);
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

Layout MapLocationPickerView::mapLayout() const {
  return layoutOf(lastViewSize_, {framing_.zoom * pinchDelta_, framing_.pan + dragDelta_});
}

void MapLocationPickerView::zoomBy(double factor) {
  const QPointF centre(lastViewSize_.width() * 0.5, lastViewSize_.height() * 0.5);
  const std::optional<Framing> zoomed =
      zoomedBy(factor, framing_, lastHoverLocation_.value_or(centre), lastViewSize_, zoomRange);
  if (zoomed) {
    setFraming(*zoomed);
  }
}

void MapLocationPickerView::zoomByScrolling(double scrollingDelta) {
  constexpr double zoomPerPoint = 0.04;
  zoomBy(std::clamp(1.0 + scrollingDelta * zoomPerPoint, 0.5, 2.0));
}

void MapLocationPickerView::reset() {
  setFraming({minZoom, {}});
}

void MapLocationPickerView::pickAt(QPointF point) {
  const std::optional<MapPlace> place = placeAt(point, mapLayout());
  if (place && model_) {
    pick(*place, *model_);
  }
}

void MapLocationPickerView::setFraming(const Framing& framing) {
  framing_ = framing;
  zoomReadout_->setText(QString::number(static_cast<qint64>(framing_.zoom * 100.0)) +
                        QLatin1Char('%'));
  showLayout();
}

void MapLocationPickerView::showLayout() {
  area_->showLayout(mapLayout());
  showHover();
}

/// The map may also have moved under a pointer at rest.
void MapLocationPickerView::showHover() {
  hover_ = lastHoverLocation_ ? placeAt(*lastHoverLocation_, mapLayout()) : std::nullopt;
  constexpr int decimals = 3;  // as many as a pick takes over
  area_->showReadout(hover_ ? coordinatesText(hover_->latitude, hover_->longitude, decimals)
                            : QString());
}

void MapLocationPickerView::showMarks() {
  area_->showMarks(model_ ? marksOf(*model_) : std::vector<MapMark>());
}

}  // namespace veyruna::ui
