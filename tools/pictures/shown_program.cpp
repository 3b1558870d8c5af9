#include "tools/pictures/shown_program.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QMouseEvent>
#include <QStyleFactory>
#include <QThreadPool>
#include <cmath>
#include <utility>

#include "astro/angle.h"
#include "ui/map/map_area.h"

namespace veyruna::pictures {

namespace {

QPalette darkPalette() {
  QPalette dark(QColor(0x35, 0x35, 0x39), QColor(0x2b, 0x2b, 0x2e));
  dark.setColor(QPalette::Base, QColor(0x1f, 0x1f, 0x22));
  dark.setColor(QPalette::AlternateBase, QColor(0x28, 0x28, 0x2b));
  dark.setColor(QPalette::ToolTipBase, QColor(0x1f, 0x1f, 0x22));
  dark.setColor(QPalette::ToolTipText, QColor(0xee, 0xee, 0xee));
  dark.setColor(QPalette::Highlight, QColor(0x3d, 0x7a, 0xc8));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  dark.setColor(QPalette::Link, QColor(0x6a, 0xa8, 0xf0));
  for (const QPalette::ColorRole role :
       {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    dark.setColor(role, QColor(0xee, 0xee, 0xee));
    dark.setColor(QPalette::Disabled, role, QColor(0x90, 0x90, 0x94));
  }
  return dark;
}

/// Keeps nothing.
class NoSettings final : public model::SettingsStore {
 public:
  [[nodiscard]] QVariant stored(const QString&) const override { return {}; }
  void store(const Group&) override {}
};

model::AstronomyModel::Surroundings nothingOfTheUsers() {
  return {std::make_shared<NoSettings>(), std::nullopt, &QUuid::createUuid,
          [](const std::function<void()>& task) { task(); }};
}

void send(QWidget& part, QEvent::Type type, QPointF point, Qt::MouseButton button) {
  const bool isDown = type == QEvent::MouseButtonPress;
  QMouseEvent event(type, point, part.mapToGlobal(point), button,
                    isDown ? Qt::MouseButtons(button) : Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&part, &event);
}

}  // namespace

void setLook(Look look) {
  QLocale::setDefault(QLocale::c());
  QIcon::setThemeSearchPaths({});
  QIcon::setFallbackSearchPaths({});
  QApplication::setCursorFlashTime(0);
  QFont type(QStringLiteral("DejaVu Sans"));
  type.setPointSizeF(9.0);
  type.setHintingPreference(QFont::PreferNoHinting);
  type.setStyleStrategy(QFont::NoSubpixelAntialias);
  QApplication::setFont(type);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(look == Look::dark ? darkPalette() : QPalette(QColor(0xef, 0xef, 0xef)));
}

ShownProgram::ShownProgram(QSize size, const Evening& evening)
    : program_(nothingOfTheUsers(), folder_.filePath(QStringLiteral("window.ini"))) {
  model::AstronomyModel& model = program_.model();
  model.setYear(evening.reading.year);
  model.setMonthIndex(evening.reading.monthIndex);
  model.setDayIndex(evening.reading.dayIndex);
  model.setHour(evening.reading.hour);
  model.setUseLocalTime(true);
  model.setManualLatDeg(std::abs(astro::typedDegreesOf(evening.latitude)));
  model.setLatNorth(evening.latitude >= 0.0);
  model.setManualLongDeg(std::abs(astro::typedDegreesOf(evening.longitude)));
  model.setLongWest(evening.longitude < 0.0);
  window_ = program_.openWindow();
  window_->setAttribute(Qt::WA_DeleteOnClose, false);
  window_->resize(size);
  settle();
}

ShownProgram::~ShownProgram() {
  QApplication::closeAllWindows();
}

QImage ShownProgram::pictureOf(QWidget& part) {
  settle();
  // What answers a picture being taken, such as tiles that are wanted only now, changes the next.
  const auto* const map = window_->findChild<ui::MapArea*>();
  constexpr int mostPictures = 200;
  QImage picture = part.grab().toImage();
  for (int taken = 1; taken < mostPictures; ++taken) {
    settle();
    const QImage before = std::exchange(picture, part.grab().toImage());
    const bool isWhole = map == nullptr || !map->isVisible() || map->isComplete();
    if (isWhole && picture == before) {
      return picture.convertToFormat(QImage::Format_RGB32);
    }
  }
  astro::stopOnBrokenInvariant("a part of the window comes to rest");
}

void ShownProgram::pointAt(QWidget& part, QPointF point) {
  send(part, QEvent::MouseMove, point, Qt::NoButton);
}

void ShownProgram::clickAt(QWidget& part, QPointF point) {
  send(part, QEvent::MouseButtonPress, point, Qt::LeftButton);
  send(part, QEvent::MouseButtonRelease, point, Qt::LeftButton);
}

void ShownProgram::settle() {
  constexpr int turnsOfLayouts = 5;
  for (int turn = 0; turn < turnsOfLayouts; ++turn) {
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
  }
}

}  // namespace veyruna::pictures
