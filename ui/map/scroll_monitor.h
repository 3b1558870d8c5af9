#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace veyruna::ui {

/// Takes every wheel event with Alt held that is meant for one window, from its making to its end,
/// before any control sees it; every other wheel passes on unchanged.
class ScrollMonitor final : public QObject {
 public:
  /// `member`: a widget of the window. `scrolled`: told how far each event taken scrolled: 10 for a
  /// notch of a wheel, pixels on a trackpad, positive away from the person.
  ScrollMonitor(const QWidget& member, std::function<void(double)> scrolled);
  ~ScrollMonitor() override;

  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  [[nodiscard]] bool isOfWindow(const QObject* target) const;

  const QWidget& member_;
  std::function<void(double)> scrolled_;
};

}  // namespace veyruna::ui
