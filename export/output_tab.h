#pragma once

#include <QSizeF>
#include <QString>
#include <QStringView>
#include <array>
#include <cstddef>
#include <span>

#include "documents/documents.h"

namespace veyruna::exports {

/// The tabs of the output area, in the order they are shown.
enum class OutputTab {
  starMap,
  horoscope,
  planets,
  sunMoon,
  positions,
  location,
  count  ///< none: how many there are
};

inline constexpr auto outputTabCount = static_cast<std::size_t>(OutputTab::count);

/// A document a tab saves.
struct TabSection {
  documents::Document document = documents::Document::count;
  QStringView textHeading = {};  ///< over it in a text of several, where it is not the document's
};

/// What is said of a tab.
struct TabEntry {
  OutputTab tab = OutputTab::count;
  QStringView title;                     ///< what a person reads on it
  std::span<const TabSection> sections;  ///< one chart, or tables; of one that saves nothing, none
  QStringView reportTitle;               ///< over its tables on pages; a chart has none
  QSizeF pageSizePoints;
};

/// Every tab, in their order.
extern const std::array<TabEntry, outputTabCount> allTabs;

/// `OutputTab::count` is a broken invariant, here and below.
const TabEntry& entryOf(OutputTab tab);

/// What a person reads on the tab: "Star Map", "Thessil System" and so on.
QString title(OutputTab tab);

/// What a person reads over the document: "Hourly", "Next full moon" and so on.
QString heading(documents::Document document);

/// What the names of a tab's files begin with, as those of its documents do; empty for one that
/// saves nothing.
QString filePrefix(const TabEntry& tab);

/// Whether the tab shows a chart, which is saved as a picture; the others are saved as text.
bool isChart(OutputTab tab);

/// The tabs alone, to walk them.
inline constexpr std::array<OutputTab, outputTabCount> outputTabs = [] {
  std::array<OutputTab, outputTabCount> tabs{};
  for (std::size_t i = 0; i < tabs.size(); ++i) {
    tabs[i] = static_cast<OutputTab>(i);
  }
  return tabs;
}();

}  // namespace veyruna::exports
