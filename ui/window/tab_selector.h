#pragma once

#include <QToolBar>

#include "export/output_tab.h"

class QActionGroup;

namespace veyruna::ui {

/// The tabs of the output area, one button each, in a toolbar that can be neither hidden nor moved
/// and whose buttons never fold away.
class TabSelector final : public QToolBar {
  Q_OBJECT

 public:
  explicit TabSelector(QWidget* parent = nullptr);

  /// Shows which tab is selected; reports nothing.
  void setTab(exports::OutputTab tab);

 Q_SIGNALS:
  /// The person chose a tab.
  void chosen(exports::OutputTab tab);

 private:
  QActionGroup* actions_;
};

}  // namespace veyruna::ui
