#pragma once

#include <QPushButton>

class QProgressBar;

namespace veyruna::ui {

/// "Calculate", with room beside the word for the progress of a calculation, and a ring that shows
/// the focus: a default button is drawn the same with and without it.
class CalculateButton final : public QPushButton {
  Q_OBJECT

 public:
  explicit CalculateButton(QWidget* parent = nullptr);

  void showProgress(bool isCalculating);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int progressSize() const;
  [[nodiscard]] int contentWidth() const;
  void placeProgress();

  QProgressBar* progress_;
};

}  // namespace veyruna::ui
