// start_probe NANOSECONDS [early]: opens the window as the program does and prints, in milliseconds
// since the moment given (as `date +%s%N` has it), when it was first painted and when its first
// chart stood there, and in MB the memory that it and its children then take. Built twice: with the
// web engine, and without it (VEYRUNA_WITHOUT_ENGINE), where no chart comes. With "early" the
// engine is started before the window, not after its first paint.
#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QStandardPaths>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <memory>

#include "ui/window/application.h"
#include "ui/window/main_view.h"
#ifndef VEYRUNA_WITHOUT_ENGINE
#include <QWebEngineView>

#include "export/sealed_page.h"
#include "ui/outputs/web_page_engine.h"
#endif

namespace {

qint64 givenNanoseconds = 0;

double sinceStart() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return static_cast<double>(std::chrono::nanoseconds(now).count() - givenNanoseconds) / 1e6;
}

/// The proportional memory of this process and all below it, in MB.
double memory() {
  const auto read = [](const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  QStringList family = {QString::number(QCoreApplication::applicationPid())};
  double kilobytes = 0.0;
  for (qsizetype member = 0; member < family.size(); ++member) {
    for (const QByteArray& line :
         read(QStringLiteral("/proc/%1/smaps_rollup").arg(family[member])).split('\n')) {
      if (line.startsWith("Pss:")) {
        kilobytes += line.mid(4).simplified().split(' ').constFirst().toDouble();
      }
    }
    for (const QString& other :
         QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")})) {
      const QString stat = QString::fromLatin1(read(QStringLiteral("/proc/%1/stat").arg(other)));
      if (stat.section(QLatin1Char(')'), -1).section(QLatin1Char(' '), 2, 2) == family[member]) {
        family.append(other);
      }
    }
  }
  return kilobytes / 1024.0;
}

/// Notes when something is painted for the first time.
class FirstPaint final : public QObject {
 public:
  double at = 0.0;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (at == 0.0 && event->type() == QEvent::Paint) {
      // After this turn of the event loop it is on the screen.
      QTimer::singleShot(0, this, [this] { at = at == 0.0 ? sinceStart() : at; });
    }
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace

int main(int argc, char** argv) {
  givenNanoseconds = argc > 1 ? QByteArray(argv[1]).toLongLong() : 0;
#ifdef VEYRUNA_WITHOUT_ENGINE
  const veyruna::ui::PageEngine engine = {[] { return nullptr; }, {}};
#else
  veyruna::exports::prepareWebEngine();
  QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
#endif
  const QApplication application(argc, argv);
#ifndef VEYRUNA_WITHOUT_ENGINE
  const veyruna::ui::PageEngine engine = veyruna::ui::webPageEngine();
  std::unique_ptr<veyruna::ui::PageView> early(argc > 2 ? engine.makeView() : nullptr);
  if (early) {
    early->setHtml(QStringLiteral("<html></html>"));
    early->show();
  }
#endif
  veyruna::ui::VeyrunaAstroApp program(
      veyruna::model::AstronomyModel::standardSurroundings(), engine,
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
          QStringLiteral("/window.ini"));
  FirstPaint paint;
  veyruna::ui::MainView* const window = program.openWindow();
#ifdef VEYRUNA_WITHOUT_ENGINE
  window->selectTab(veyruna::exports::OutputTab::planets);
#endif
  window->installEventFilter(&paint);

  double chart = 0.0;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, window, [&] {
#ifdef VEYRUNA_WITHOUT_ENGINE
    const bool isThere = paint.at > 0.0 && !program.model().starMapSVG().isEmpty();
#else
    const auto* const view = window->findChild<QWebEngineView*>();
    const bool isThere = view != nullptr && !program.model().starMapSVG().isEmpty() &&
                         !view->page()->isLoading() && !view->page()->url().isEmpty() &&
                         view->page()->contentsSize().isValid();
#endif
    if (isThere && chart == 0.0) {
      chart = sinceStart();
      watch.stop();
      // Memory settles after the first picture.
      QTimer::singleShot(2000, window, [&] {
        std::printf("%.0f %.0f %.0f\n", paint.at, chart, memory());
        QApplication::closeAllWindows();
      });
    }
  });
  watch.start(std::chrono::milliseconds(2));
  return QApplication::exec();
}
