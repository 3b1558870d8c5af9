#pragma once

#include <QList>
#include <QWidget>
#include <array>

#include "export/output_tab.h"
#include "model/astronomy_model.h"
#include "ui/charts/chart_selection.h"

namespace veyruna::ui {

/// How a tab looks and where it is explained. Its view follows the model and the window's
/// selection, which outlive it, and has an object name of its own.
struct TabView {
  exports::OutputTab tab = exports::OutputTab::count;
  const char* icon = nullptr;        ///< of the program's own set
  const char* manualPage = nullptr;  ///< a whole page: not every desktop opens a file at an anchor
  QWidget* (*make)(model::AstronomyModel& model, ChartSelection& selection) = nullptr;
};

/// One for every tab, in their order.
extern const std::array<TabView, exports::outputTabCount> tabViews;

const TabView& viewOf(exports::OutputTab tab);

/// The documents that a person sees in the tab.
QList<documents::Document> documentsSeenIn(exports::OutputTab tab);

}  // namespace veyruna::ui
