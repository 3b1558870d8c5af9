// Opens the window and, when its charts stand there, writes what a screen reader ought to meet: for
// each chart a line "NAME<tab>DESCRIPTION" and a line "NAME<tab>PART" for every part, and an empty
// line. It then shows the tabs that lines on its standard input number, answers "shown", and ends
// with them.
#include <QApplication>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <string>

#include "charts/mark_reading.h"
#include "ui/charts/chart_view.h"
#include "ui/window/application.h"
#include "ui/window/main_view.h"

namespace {

using veyruna::ui::ChartView;

void writeParts(ChartView& chart) {
  const QByteArray name = chart.accessibleName().toUtf8();
  std::printf("%s\t%s\n", name.constData(), chart.description().toUtf8().constData());
  for (const veyruna::charts::ChartMark& mark : chart.marks().all()) {
    if (mark.kind != veyruna::charts::MarkKind::backgroundStar) {
      std::printf("%s\t%s\n", name.constData(),
                  veyruna::charts::spoken(mark, chart.marks().observer()).c_str());
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  veyruna::ui::VeyrunaAstroApp program(
      veyruna::model::AstronomyModel::standardSurroundings(),
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
          QStringLiteral("/window.ini"));
  veyruna::ui::MainView* const view = program.openWindow();
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, view, [&] {
    if (!program.model().isCalculating() && program.model().lastHoroscopeBasetime()) {
      watch.stop();
      for (ChartView* const chart : view->findChildren<ChartView*>()) {
        writeParts(*chart);
      }
      std::printf("\n");
      std::fflush(stdout);
    }
  });
  watch.start(std::chrono::milliseconds(5));
  QSocketNotifier asked(fileno(stdin), QSocketNotifier::Read);
  QObject::connect(&asked, &QSocketNotifier::activated, view, [&] {
    std::string tab;
    if (!std::getline(std::cin, tab)) {
      asked.setEnabled(false);
      QApplication::closeAllWindows();
      return;
    }
    view->selectTab(static_cast<veyruna::exports::OutputTab>(std::stoi(tab)));
    std::printf("shown\n");
    std::fflush(stdout);
  });
  return QApplication::exec();
}
