#pragma once

#include <QTimer>
#include <QWidget>
#include <optional>

class QLabel;
class QPushButton;

namespace veyruna::ui {

/// How an export or a print goes and how it ended: a line in the window's status bar, with a way to
/// the folder of what was saved. It takes its room all the time, so that nothing moves.
class ExportNotice final : public QWidget {
  Q_OBJECT

 public:
  explicit ExportNotice(QWidget* parent = nullptr);

  /// Stays until it is known how that ends.
  void showProgress(const QString& line);
  /// Goes after a few seconds. `folder` is where the file is, if there is one.
  void showSuccess(const QString& line, const std::optional<QString>& folder = std::nullopt);
  /// Stays until it is dismissed.
  void showFailure(const QString& line);
  /// The person has gone on to something else: a failure goes.
  void dismissFailure();
  /// There is nothing to be said any more.
  void clear();

 private:
  void say(const QString& line);

  QLabel* line_;
  QPushButton* openFolder_;
  QTimer timeout_{this};
  QString folder_;
  bool isFailure_ = false;
};

}  // namespace veyruna::ui
