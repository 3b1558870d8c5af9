#pragma once

#include <QStringList>
#include <QWidget>

class QButtonGroup;

namespace veyruna::ui {

/// One of a few choices, side by side, the chosen one pressed in. The arrow keys go from one to the
/// next.
class SegmentedPicker final : public QWidget {
  Q_OBJECT

 public:
  struct Segment {
    QString title;   ///< what is read on it
    QString spoken;  ///< what is spoken for it
  };

  /// The segments in order; the first is chosen. A segment's object name is the picker's with the
  /// segment's title.
  SegmentedPicker(const char* name, const QList<Segment>& segments, QWidget* parent = nullptr);

  /// Shows a choice, counted from 0; reports nothing.
  void setChosen(int segment);

 Q_SIGNALS:
  /// The person chose a segment.
  void picked(int segment);

 private:
  QButtonGroup* segments_;
};

}  // namespace veyruna::ui
