// What a frame costs while time plays: the moment set, its chart calculated, read and painted by
// the software renderer, in the whole window with a chart of so many pixels. Prints the median and
// the tenth that is slowest, in milliseconds.
#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "model/live_time.h"
#include "ui/window/main_view.h"
#include "ui/window/window_state.h"

namespace {

using veyruna::exports::OutputTab;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// Preferences that nobody keeps.
class NoSettings final : public veyruna::model::SettingsStore {
 public:
  [[nodiscard]] QVariant stored(const QString& /*key*/) const override { return {}; }
  void store(const Group& /*group*/) override {}
};

/// The tab's chart, of so many pixels each way.
QWidget* chartOf(veyruna::ui::MainView& window, OutputTab tab, int pixels) {
  window.selectTab(tab);
  QWidget* const chart = window.findChild<QWidget*>(
      tab == OutputTab::starMap ? QStringLiteral("starMap") : QStringLiteral("horoscope"));
  for (int i = 0; i < 3; ++i) {  // the window's other parts may take room of their own
    window.resize(window.size() + QSize(pixels, pixels) - chart->size());
    QCoreApplication::processEvents();
  }
  return chart;
}

std::vector<double> framesOf(veyruna::model::LiveTime& time, int count) {
  std::vector<double> frames;
  for (int i = 0; i < count; ++i) {
    const auto begin = std::chrono::steady_clock::now();
    time.stepBy(1);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    frames.push_back(Milliseconds(std::chrono::steady_clock::now() - begin).count());
  }
  std::sort(frames.begin(), frames.end());
  return frames;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  const QApplication application(argc, argv);
  const QTemporaryDir folder;
  const auto store =
      std::make_shared<veyruna::model::UnhurriedStore>(std::make_shared<NoSettings>());
  veyruna::model::AstronomyModel model(
      {store, std::nullopt, &QUuid::createUuid, [](const std::function<void()>& task) { task(); }});
  veyruna::model::LiveTime time(model, store);
  veyruna::ui::WindowState state(folder.filePath(QStringLiteral("window.ini")));
  veyruna::ui::MainView window(model, time, state);
  window.setAttribute(Qt::WA_DeleteOnClose, false);
  window.show();
  time.setOn(true);
  time.setStep(veyruna::model::TimeStep::quarter);
  constexpr int count = 300;
  for (const int pixels : {900, 1800}) {
    for (const OutputTab tab : {OutputTab::starMap, OutputTab::horoscope}) {
      const QSize size = chartOf(window, tab, pixels)->size();
      const std::vector<double> frames = framesOf(time, count);
      std::printf("  %-9s at %4d x %4d pixels: %5.1f ms, the slowest tenth %5.1f ms\n",
                  tab == OutputTab::starMap ? "star map" : "horoscope", size.width(), size.height(),
                  frames[count / 2], frames[count * 9 / 10]);
    }
  }
  return 0;
}
