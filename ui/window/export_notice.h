#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QPushButton;

namespace veyruna::ui {

/// How an export goes and how it ended: a line in the window's status bar that goes after a few
/// seconds, with a way to the folder of what was saved. It takes its room all the time, so that
/// nothing moves.
class ExportNotice final : public QWidget {
  Q_OBJECT

 public:
  explicit ExportNotice(QWidget* parent = nullptr);

  /// The file is being made; stays until it is known how that ends.
  void showSaving(const QString& path);
  void showSaved(const QString& path);
  /// The reason in plain words, without a full stop of its own or with one.
  void showFailure(const QString& path, const QString& reason);

 private:
  void say(const QString& line);

  QLabel* line_;
  QPushButton* openFolder_;
  QTimer timeout_;
  QString folder_;
};

}  // namespace veyruna::ui
