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
  /// The segments in order, by what is read on them and what is spoken for them; the first is
  /// chosen. A segment's object name is the picker's with the segment's title.
  SegmentedPicker(const char* name, const QStringList& titles, const QStringList& spoken,
                  QWidget* parent = nullptr);

  /// Shows a choice, counted from 0; reports nothing.
  void setChosen(int segment);

 Q_SIGNALS:
  /// The person chose a segment.
  void picked(int segment);

 private:
  QButtonGroup* segments_;
};

}  // namespace veyruna::ui
