// start_probe NANOSECONDS [RECALCULATIONS]: opens the window as the program does and prints, in
// milliseconds since the moment given (as `date +%s%N` has it), when it was first painted and when
// its first chart stood there, and in MB the memory that it then takes. With a number of
// recalculations, each drawn: besides, the median of the milliseconds from Calculate to the new
// picture, and the memory after all.
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "ui/window/application.h"
#include "ui/window/main_view.h"

namespace {

double since(qint64 startNanoseconds) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return static_cast<double>(std::chrono::nanoseconds(now).count() - startNanoseconds) / 1e6;
}

/// The proportional memory of this process, in MB.
double memory() {
  QFile file(QStringLiteral("/proc/self/smaps_rollup"));
  const QByteArray all = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  for (const QByteArray& line : all.split('\n')) {
    if (line.startsWith("Pss:")) {
      return line.mid(4).simplified().split(' ').constFirst().toDouble() / 1024.0;
    }
  }
  return 0.0;
}

/// Notes when something is painted for the first time while `isDue` holds.
class FirstPaint final : public QObject {
 public:
  FirstPaint(qint64 startNanoseconds, std::function<bool()> isDue)
      : start_(startNanoseconds), isDue_(std::move(isDue)) {}

  double at = 0.0;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (at == 0.0 && event->type() == QEvent::Paint && isDue_()) {
      // After this turn of the event loop it is on the screen.
      QTimer::singleShot(0, this, [this] { at = at == 0.0 ? since(start_) : at; });
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  qint64 start_;
  std::function<bool()> isDue_;
};

/// Calculates so many moments, one when the last has been painted, and prints what it took.
void recalculate(veyruna::model::AstronomyModel& model, QWidget& shown, int times) {
  std::vector<double> milliseconds;
  for (int i = 0; i < times; ++i) {
    QEventLoop waiting;
    bool isNew = false;
    FirstPaint picture(0, [&isNew] { return isNew; });
    shown.installEventFilter(&picture);
    const auto published =
        QObject::connect(&model, &veyruna::model::AstronomyModel::starMapSVGChanged, &picture,
                         [&isNew] { isNew = true; });
    model.setDayIndex(i % 30);
    model.setHour(i % 24 + 0.25);
    QElapsedTimer clock;
    clock.start();
    model.recalculate();
    while (picture.at == 0.0) {
      waiting.processEvents(QEventLoop::WaitForMoreEvents);
    }
    milliseconds.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
    QObject::disconnect(published);
  }
  std::nth_element(milliseconds.begin(), milliseconds.begin() + times / 2, milliseconds.end());
  std::printf("%.1f %.0f\n", milliseconds[static_cast<std::size_t>(times) / 2], memory());
}

}  // namespace

int main(int argc, char** argv) {
  const qint64 start = argc > 1 ? QByteArray(argv[1]).toLongLong() : 0;
  const QApplication application(argc, argv);
  veyruna::ui::VeyrunaAstroApp program(
      veyruna::model::AstronomyModel::standardSurroundings(),
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
          QStringLiteral("/window.ini"));
  FirstPaint window(start, [] { return true; });
  FirstPaint chart(start, [&program] { return !program.model().starMapSVG().isEmpty(); });
  veyruna::ui::MainView* const view = program.openWindow();
  view->installEventFilter(&window);
  view->findChild<QWidget*>(QStringLiteral("starMap"))->installEventFilter(&chart);
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, view, [&] {
    if (chart.at > 0.0) {
      watch.stop();
      // Memory settles after the first picture.
      QTimer::singleShot(2000, view, [&] {
        std::printf("%.0f %.0f %.0f\n", window.at, chart.at, memory());
        if (argc > 2) {
          recalculate(program.model(), *view->findChild<QWidget*>(QStringLiteral("starMap")),
                      QByteArray(argv[2]).toInt());
        }
        QApplication::closeAllWindows();
      });
    }
  });
  watch.start(std::chrono::milliseconds(2));
  return QApplication::exec();
}
