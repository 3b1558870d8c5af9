#include "export/output_tab.h"

namespace veyruna::exports {

QString title(OutputTab tab) {
  switch (tab) {
    case OutputTab::starMap:
      return QStringLiteral("Star Map");
    case OutputTab::horoscope:
      return QStringLiteral("Horoscope");
    case OutputTab::planets:
      return QStringLiteral("Thessil System");
    case OutputTab::sunMoon:
      return QStringLiteral("Sun & Moon");
    case OutputTab::positions:
      return QStringLiteral("Positions");
    case OutputTab::location:
      return QStringLiteral("Location");
  }
  return {};
}

bool isChart(OutputTab tab) {
  return tab == OutputTab::starMap || tab == OutputTab::horoscope;
}

}  // namespace veyruna::exports
