// What is painted by hand around the sidebar, pixel by pixel: icons, tabs, the list of bodies, the
// sheets and About.
#include <QDialog>
#include <QDirIterator>
#include <QEnterEvent>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>

#include "tests/ui/golden/looking_window.h"
#include "tests/ui/light_and_dark.h"
#include "ui/controls/icons.h"
#include "ui/window/about_view.h"
#include "ui/window/export_notice.h"

namespace veyruna::ui {
namespace {

struct WindowLook : tests::LookingWindow {
  static QImage pixels(const QIcon& drawn, int size, QIcon::Mode mode = QIcon::Normal) {
    return drawn.pixmap(QSize(size, size), 1.0, mode).toImage();
  }
  QDialog& sheet(const char* name) {
    auto* const found = shown.find<QDialog>(name);
    EXPECT_TRUE(QTest::qWaitForWindowActive(found, tests::patienceMilliseconds));
    settle();
    return *found;
  }
};

INSTANTIATE_TEST_SUITE_P(Desktop, WindowLook, testing::Bool(), tests::lightOrDark);

TEST_P(WindowLook, TheTabs) {
  compare(pictureOf(*shown.find<QWidget>("tabSelector")), "tabs");
}

TEST_P(WindowLook, TheTimeBar) {
  shown.time.setOn(true);
  resize({1, 1});
  QWidget& bar = *shown.find<QWidget>("timeBar");
  const QImage resting = pictureOf(bar);
  shown.time.play(model::LiveTime::Motion::backward);
  const QImage back = pictureOf(bar);
  shown.time.play(model::LiveTime::Motion::forward);
  compare({{resting}, {back}, {pictureOf(bar)}}, "time_bar");
}

TEST_P(WindowLook, TheListOfBodies) {
  choose("tab3");
  resize({750, 320});
  auto* const table = shown.find<QTableWidget>("positionsTable");
  table->selectRow(2);
  table->clearFocus();
  compare(pictureOf(*table), "positions");
}

TEST_P(WindowLook, EveryIconInEveryMode) {
  QList<QList<QImage>> rows;
  QStringList names;
  for (QDirIterator files(QStringLiteral(":/icons/light")); files.hasNext();) {
    files.next();
    names.append(files.fileName().section(QLatin1Char('_'), 0, -2));
  }
  names.removeDuplicates();
  names.sort();
  for (const QString& name : names) {
    const QIcon drawn = icon("", qPrintable(name));
    rows.append({pixels(drawn, 16), pixels(drawn, 16, QIcon::Disabled),
                 pixels(drawn, 16, QIcon::Selected), pixels(drawn, 40)});
  }
  EXPECT_GT(rows.size(), 10);
  QList<QImage> sizes;
  for (const int size : {10, 17, 20, 24, 31, 32, 47, 48, 63, 64, 70}) {
    sizes.append(pixels(icon("", "calculate"), size));
  }
  rows.append(sizes);
  compare(rows, "icons");
}

TEST_P(WindowLook, About) {
  AboutView about;
  about.show();
  settle();
  const QImage picture = pictureOf(about);
  EXPECT_EQ(picture.pixelColor(3, 3), QApplication::palette().color(QPalette::Window));
  compare(picture, "about");
  QEnterEvent enter(QPointF(3, 3), QPointF(3, 3), QPointF(3, 3));
  QApplication::sendEvent(&about, &enter);
  EXPECT_EQ(pictureOf(about).pixelColor(3, 3), QApplication::palette().color(QPalette::Base));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&about, &leave);
  EXPECT_EQ(pictureOf(about), picture);
}

TEST_P(WindowLook, TheQuestionBeforeAPlaceIsDeleted) {
  const QString name =
      QStringLiteral("a name of many words ").repeated(5).trimmed() + QString(60, QLatin1Char('W'));
  shown.model.setSelectedCityID(std::get<QUuid>(shown.model.addCity(name)));
  shown.press("deleteButton");
  QDialog& question = sheet("deleteSheet");
  auto* const remove = question.findChild<QPushButton*>(QStringLiteral("confirmButton"));
  const QImage whole = pictureOf(question);
  question.findChild<QPushButton*>(QStringLiteral("cancelButton"))->setFocus();
  compare({{whole}, {pictureOf(*remove), underMouse(*remove), pressed(*remove)}}, "delete_sheet");
}

TEST_P(WindowLook, AFailureInTheStatusBar) {
  resize({640, 400});
  shown.window.findChild<ExportNotice*>()->showFailure(
      QStringLiteral("Not saved: no room is left"));
  compare(pictureOf(*shown.window.statusBar()), "not_saved");
}

}  // namespace
}  // namespace veyruna::ui
