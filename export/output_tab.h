#pragma once

#include <QString>
#include <array>

namespace veyruna::exports {

/// The tabs of the output area, in the order they are shown.
enum class OutputTab { starMap, horoscope, planets, sunMoon, positions, location };

inline constexpr std::array<OutputTab, 6> outputTabs = {OutputTab::starMap,   OutputTab::horoscope,
                                                        OutputTab::planets,   OutputTab::sunMoon,
                                                        OutputTab::positions, OutputTab::location};

/// What a person reads on the tab: "Star Map", "Thessil System" and so on.
QString title(OutputTab tab);

/// Whether the tab shows a chart, which is saved as a picture; the others are saved as text.
bool isChart(OutputTab tab);

}  // namespace veyruna::exports
