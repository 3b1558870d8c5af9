// window_pictures FOLDER WIDTH HEIGHT light|dark
// Opens the window on the screen it is given, visits its tabs and saves a picture of each as
// FOLDER/star-map.png and so on, with the sidebar alone and the About window. Everything it stores
// goes to where XDG_CONFIG_HOME and XDG_DATA_HOME point; tools/make_screenshots points them to a
// scratch folder.
#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QEventLoop>
#include <QScreen>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTimer>
#include <cstdio>

#include "ui/outputs/tab_views.h"
#include "ui/window/about_view.h"
#include "ui/window/application.h"
#include "ui/window/main_view.h"
#include "ui/window/product.h"

namespace {

/// The look of a dark desktop.
QPalette darkPalette() {
  QPalette dark(QColor(0x35, 0x35, 0x39), QColor(0x2b, 0x2b, 0x2e));
  dark.setColor(QPalette::Base, QColor(0x1f, 0x1f, 0x22));
  dark.setColor(QPalette::AlternateBase, QColor(0x28, 0x28, 0x2b));
  dark.setColor(QPalette::Text, QColor(0xee, 0xee, 0xee));
  dark.setColor(QPalette::WindowText, QColor(0xee, 0xee, 0xee));
  dark.setColor(QPalette::ButtonText, QColor(0xee, 0xee, 0xee));
  dark.setColor(QPalette::ToolTipBase, QColor(0x1f, 0x1f, 0x22));
  dark.setColor(QPalette::ToolTipText, QColor(0xee, 0xee, 0xee));
  dark.setColor(QPalette::Highlight, QColor(0x3d, 0x7a, 0xc8));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  dark.setColor(QPalette::Link, QColor(0x6a, 0xa8, 0xf0));
  for (const QPalette::ColorRole role :
       {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    dark.setColor(QPalette::Disabled, role, QColor(0x90, 0x90, 0x94));
  }
  return dark;
}

void wait(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

bool save(const QWidget& widget, const QString& path) {
  const QPixmap screen = widget.screen()->grabWindow(0);
  const int pixels = qRound(screen.devicePixelRatio());
  const QRect part(widget.mapToGlobal(QPoint()) * pixels, widget.size() * pixels);
  return screen.copy(part).save(path);
}

/// By local time at Wendmark, as tools/pictures/moments has them.
struct Evening {
  int year;
  int monthIndex;
  int dayIndex;
  double hour;
};

/// A full moon's evening in late autumn.
constexpr Evening firstTour{720, 5, 11, 22.5};

/// All planets stand together: their chords leave the names on the wheel alone.
constexpr Evening closePlanets{773, 11, 7, 19.5};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) {
    std::fputs("window_pictures FOLDER WIDTH HEIGHT light|dark\n", stderr);
    return 2;
  }
  const QApplication application(argc, argv);
  QApplication::setApplicationName(veyruna::ui::product().name);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  const QSize size(QByteArray(argv[2]).toInt(), QByteArray(argv[3]).toInt());
  if (QByteArray(argv[4]) == "dark") {
    QApplication::setPalette(darkPalette());
  }

  veyruna::ui::VeyrunaAstroApp program(
      veyruna::model::AstronomyModel::standardSurroundings(),
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
          QStringLiteral("/window.ini"));
  auto& model = program.model();
  const auto show = [&model](const Evening& evening) {
    model.setYear(evening.year);
    model.setMonthIndex(evening.monthIndex);
    model.setDayIndex(evening.dayIndex);
    model.setHour(evening.hour);
  };
  model.setUseLocalTime(true);
  show(firstTour);
  veyruna::ui::MainView* const window = program.openWindow();
  window->setGeometry(QRect(QPoint(), size));
  constexpr int untilDrawn = 1000;
  wait(untilDrawn);
  bool isSaved = true;
  for (const veyruna::ui::TabView& view : veyruna::ui::tabViews) {
    show(view.tab == veyruna::exports::OutputTab::horoscope ? closePlanets : firstTour);
    model.recalculate();
    window->selectTab(view.tab);
    // On a chart the pointer would have something told; on the map it has a place read out.
    const bool isMap = view.tab == veyruna::exports::OutputTab::location;
    QCursor::setPos(isMap ? window->geometry().center() : window->geometry().bottomLeft());
    wait(untilDrawn);
    const QString name = QString::fromLatin1(view.icon).replace(QLatin1Char('_'), QLatin1Char('-'));
    isSaved &= save(*window, folder.filePath(QStringLiteral("window-%1.png").arg(name)));
  }
  // The map enlarged, about its middle: four steps and all of them.
  auto* const zoomIn = window->findChild<QAbstractButton*>(QStringLiteral("zoomInButton"));
  for (const auto& [steps, name] : {std::pair{4, "location-384"}, {4, "location-1200"}}) {
    for (int step = 0; step < steps; ++step) {
      zoomIn->click();
    }
    wait(untilDrawn);
    isSaved &= save(*window, folder.filePath(QStringLiteral("%1.png").arg(QLatin1String(name))));
  }
  isSaved &= save(*window->findChild<QWidget*>(QStringLiteral("sidebar")),
                  folder.filePath(QStringLiteral("sidebar.png")));
  veyruna::ui::AboutView* const about = program.openAbout();
  wait(untilDrawn / 3);
  isSaved &= save(*about, folder.filePath(QStringLiteral("about.png")));
  QApplication::closeAllWindows();
  return isSaved ? 0 : 1;
}
