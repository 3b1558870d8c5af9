#include "ui/window/window_state.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

namespace veyruna::ui {

namespace {

constexpr QRect desktop(-100'000, -100'000, 200'000, 200'000);  // larger than any

const QString frameKey = QStringLiteral("frame");
const QString sizeKey = QStringLiteral("size");
const QString isMaximizedKey = QStringLiteral("isMaximized");
const QString isFullScreenKey = QStringLiteral("isFullScreen");
const QString sidebarWidthKey = QStringLiteral("sidebarWidth");
const QString isLiveKey = QStringLiteral("isLive");
const QString timeStepKey = QStringLiteral("timeStep");
const QString timeSpeedKey = QStringLiteral("timeSpeed");
const QString exportFolderKey = QStringLiteral("exportFolder");

}  // namespace

WindowState::WindowState(const QString& path) : state_(path) {}

std::optional<Placement> WindowState::placement() const {
  const Placement stored = {state_.stored(frameKey).toRect(), state_.stored(sizeKey).toSize(),
                            state_.stored(isMaximizedKey).toBool(),
                            state_.stored(isFullScreenKey).toBool()};
  // On some desktop, and a frame is around its window.
  const bool isSound = desktop.contains(stored.frame) && !stored.size.isEmpty() &&
                       stored.frame.size().expandedTo(stored.size) == stored.frame.size();
  return isSound ? std::optional(stored) : std::nullopt;
}

void WindowState::setPlacement(const Placement& placement) {
  state_.store({{frameKey, placement.frame},
                {sizeKey, placement.size},
                {isMaximizedKey, placement.isMaximized},
                {isFullScreenKey, placement.isFullScreen}});
}

std::optional<int> WindowState::sidebarWidth() const {
  const int width = state_.stored(sidebarWidthKey).toInt();
  return width > 0 ? std::optional(width) : std::nullopt;
}

void WindowState::setSidebarWidth(int width) {
  state_.store({{sidebarWidthKey, width}});
}

bool WindowState::isLive() const {
  return state_.stored(isLiveKey).toBool();
}

void WindowState::setLive(bool isLive) {
  state_.store({{isLiveKey, isLive}});
}

std::optional<model::TimeStep> WindowState::timeStep() const {
  return model::timeStepOf(state_.stored(timeStepKey).toString());
}

std::optional<double> WindowState::timeSpeed() const {
  const double speed = state_.stored(timeSpeedKey).toDouble();
  const auto* const known = std::ranges::find(model::timeSpeeds, speed);
  return known == model::timeSpeeds.end() ? std::nullopt : std::optional(*known);
}

void WindowState::setPace(model::TimeStep step, double speed) {
  state_.store({{timeStepKey, entryOf(step).word.toString()}, {timeSpeedKey, speed}});
}

QString WindowState::exportFolder() const {
  const QString folder = state_.stored(exportFolderKey).toString();
  return QFileInfo(folder).isDir()
             ? folder
             : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void WindowState::setExportFolder(const QString& folder) {
  state_.store({{exportFolderKey, folder}});
}

}  // namespace veyruna::ui
