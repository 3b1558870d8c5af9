#pragma once

#include <QWidget>
#include <optional>

class QVBoxLayout;

namespace veyruna::ui {

/// What the program is and whose: picture, title, version, credits and links. Can be dragged by its
/// background.
class AboutView final : public QWidget {
  Q_OBJECT

 public:
  explicit AboutView(QWidget* parent = nullptr);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void addLinks(QVBoxLayout* column);
  void showHovering(bool isHovering);

  std::optional<QPoint> grip_;  ///< where it is held, while this window moves itself
};

}  // namespace veyruna::ui
