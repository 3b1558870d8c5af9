#include "export/output_tab.h"

#include <algorithm>

#include "astro/invariant.h"
#include "export/report_pages.h"
#include "export/said_text.h"

namespace veyruna::exports {

namespace {

using documents::Document;

constexpr std::array starMapSections = {TabSection{Document::starMap}};
constexpr std::array horoscopeSections = {TabSection{Document::horoscope}};
constexpr std::array planetsSections = {TabSection{Document::positions}};
constexpr std::array sunMoonSections = {TabSection{Document::hourly},
                                        TabSection{Document::monthly}};
constexpr std::array positionsSections = {TabSection{Document::daily, u"Daily Conjunctions"},
                                          TabSection{Document::yearly, u"Yearly Conjunctions"}};

}  // namespace

// The bodies' tab is called after the sun; the conjunctions' report after what it holds.
constexpr std::array<TabEntry, outputTabCount> allTabs = {{
    {OutputTab::starMap, u"Star Map", starMapSections, u"", QSizeF(720, 720)},
    {OutputTab::horoscope, u"Horoscope", horoscopeSections, u"", QSizeF(1440, 760)},
    {OutputTab::planets, u"Thessil System", planetsSections, u"Planet Positions",
     reportPageSizePoints},
    {OutputTab::sunMoon, u"Sun & Moon", sunMoonSections, u"Sun & Moon", reportPageSizePoints},
    {OutputTab::positions, u"Positions", positionsSections, u"Conjunctions", reportPageSizePoints},
    {OutputTab::location, u"Location", {}, u"", QSizeF()},
}};

namespace {

constexpr bool everyTabHasItsRowInOrder() {
  for (std::size_t i = 0; i < allTabs.size(); ++i) {
    if (allTabs[i].tab != outputTabs[i]) {
      return false;
    }
  }
  return true;
}
static_assert(everyTabHasItsRowInOrder());

constexpr bool isComplete(const TabEntry& entry) {
  const bool saves = !entry.sections.empty();
  return !entry.title.empty() &&
         (entry.pageSizePoints.width() > 0 && entry.pageSizePoints.height() > 0) == saves &&
         (saves || entry.reportTitle.empty()) &&
         std::ranges::all_of(entry.sections, [](const TabSection& section) {
           return section.document < Document::count;
         });
}
static_assert(std::ranges::all_of(allTabs, isComplete), "something of a tab is not said");

}  // namespace

const TabEntry& entryOf(OutputTab tab) {
  const auto row = static_cast<std::size_t>(tab);
  astro::requireInvariant(row < allTabs.size(), "a tab has its row");
  return allTabs[row];
}

QString title(OutputTab tab) {
  return entryOf(tab).title.toString();
}

QString heading(Document document) {
  return saidText(documents::entryOf(document).heading);
}

QString filePrefix(const TabEntry& tab) {
  return tab.sections.empty()
             ? QString()
             : saidText(documents::entryOf(tab.sections.front().document).fileTitle);
}

bool isChart(OutputTab tab) {
  const std::span<const TabSection> sections = entryOf(tab).sections;
  return !sections.empty() &&
         documents::entryOf(sections.front().document).kind == documents::Kind::chart;
}

}  // namespace veyruna::exports
