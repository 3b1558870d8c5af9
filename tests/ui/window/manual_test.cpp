// Every control, list, column, menu entry and key of the window can be found in the manual: the
// list is taken from the window itself, tab by tab and sheet by sheet.
#include <QAction>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSettings>
#include <QShortcut>
#include <QSlider>
#include <QTableWidget>

#include "model/locations_file.h"
#include "model/unreadable_name.h"
#include "tests/support/reference_case.h"
#include "tests/support/source_path.h"
#include "tests/ui/shown_window.h"
#include "ui/controls/program.h"
#include "ui/window/about_view.h"
#include "ui/window/print_sheet.h"

namespace veyruna::ui {
namespace {

using namespace Qt::StringLiterals;

/// What a person reads of a piece of HTML, in one line. Cells and lines stand apart.
QString readableText(QString html) {
  static const QRegularExpression block(u"<(/?(p|t[dhr]|li|h[1-6]|pre|div|br|option|title)\\b)"_s);
  static const QRegularExpression tag(u"<[^>]*>"_s);
  html.replace(block, u" <\\1"_s).remove(tag);
  for (const auto& [entity, letter] :
       {std::pair("&lt;", "<"), {"&gt;", ">"}, {"&quot;", "\""}, {"&#x27;", "'"}, {"&amp;", "&"}}) {
    html.replace(QLatin1String(entity), QLatin1String(letter));
  }
  return html.simplified();
}

QString pageText(const QString& name) {
  return QString::fromStdString(
      tests::fileContent(tests::sourcePath("docs/manual/" + name.toStdString())));
}

/// The cells of the rows of a page's tables, as they are read.
QList<QStringList> rowsOf(const QString& page) {
  static const QRegularExpression cellEnd(u"</t[dh]>"_s);
  QList<QStringList> rows;
  for (const QString& row : pageText(page).split(u"<tr>"_s).sliced(1)) {
    QStringList cells;
    for (const QString& cell : row.section(u"</tr>"_s, 0, 0).split(cellEnd)) {
      cells.append(readableText(cell));
    }
    if (cells.size() > 2) {
      rows.append(cells);
    }
  }
  return rows;
}

/// Whether a cell says these words, alone or as one of several with commas between them.
bool says(const QString& cell, const QString& words) {
  return cell == words || cell.split(u", "_s).contains(words);
}

/// A label without its underlined letter: "Sun & Moon".
QString plain(QString label) {
  label.replace(u"&&"_s, QString(QChar::Null)).remove(u'&').replace(QChar::Null, u"&"_s);
  return label.section(u'\t', 0, 0);
}

/// A key as the manual writes it.
QString keyText(const QKeySequence& key) {
  QString text = key.toString();
  text.replace(u"Right"_s, u"→"_s).replace(u"Left"_s, u"←"_s);
  return text.replace(u"PgUp"_s, u"Page Up"_s).replace(u"PgDown"_s, u"Page Down"_s);
}

struct Manual : testing::Test, tests::ShownWindow {
  const QList<QStringList> controls = rowsOf(u"window.html"_s);
  const QString keys = u' ' + readableText(pageText(u"keyboard.html"_s)) + u' ';
  QString all;
  int found = 0;

  Manual() {
    calculate();
    const QDir pages(QString::fromStdString(tests::sourcePath("docs/manual")));
    for (const QString& page : pages.entryList({u"*.html"_s})) {
      all += readableText(pageText(page)) + u' ';
    }
  }

  /// The page of the window has a row with this label, where there is one, and what is spoken.
  void expectRow(const QString& label, const QString& spoken = {}) {
    ++found;
    const auto fits = [&](const QStringList& row) {
      const bool isSpoken = says(row.at(1), spoken) || row.at(1).startsWith(spoken + u", "_s) ||
                            (says(row.at(1), u"the same"_s) && label == spoken);
      return (label.isEmpty() || says(row.at(0), label)) && (spoken.isEmpty() || isSpoken);
    };
    EXPECT_TRUE(std::ranges::any_of(controls, fits))
        << "window.html has no row of the label \"" << qPrintable(label) << "\" that is spoken \""
        << qPrintable(spoken) << '"';
  }
  void expectSomewhere(const QString& words) {
    EXPECT_TRUE(words.isEmpty() || all.contains(words.simplified()))
        << "the manual does not say: " << qPrintable(words);
  }
  void expectKey(const QKeySequence& key) {
    if (!key.isEmpty()) {
      const QString text = keyText(key);
      const bool isThere = std::ranges::any_of(
          u" ,;"_s, [&](QChar after) { return keys.contains(u' ' + text + after); });
      EXPECT_TRUE(isThere) << "keyboard.html lacks " << qPrintable(text);
    }
  }

  /// Without what changes with the moment.
  QString fixed(QString words) const {
    words.replace(u"Version "_s + programVersion(), u"Version"_s);
    words.replace(u"Build "_s + programBuild(), u"Build"_s);
    words = words.remove(model.dateLabel()).trimmed();
    return words.endsWith(u',') ? words.chopped(1) : words;
  }

  void expectControl(const QWidget& widget) {
    const QString spoken = fixed(widget.accessibleName());
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
      expectRow(plain(button->text()), spoken);
    } else if (const auto* const table = qobject_cast<const QTableWidget*>(&widget)) {
      expectRow({}, spoken);
      for (int column = 0; column < table->columnCount(); ++column) {
        expectSomewhere(table->horizontalHeaderItem(column)->text());
      }
    } else if (const auto* const list = qobject_cast<const QComboBox*>(&widget)) {
      expectRow({}, spoken);
      for (int row = 0; row < list->count(); ++row) {
        expectSomewhere(list->itemText(row));
      }
    } else if (const auto* const group = qobject_cast<const QGroupBox*>(&widget)) {
      expectSomewhere(plain(group->title()));
    } else if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
      // One with a name of its own tells something that changes.
      const QString words = label->objectName().isEmpty() ? readableText(plain(label->text()))
                                                          : label->accessibleDescription();
      expectSomewhere(fixed(words));
    } else if (!spoken.isEmpty()) {
      expectRow({}, spoken);
    }
    expectSomewhere(fixed(widget.toolTip()));
  }

  /// All that can be seen of a part of the window, without what Qt puts into its own controls.
  void expectPart(const QWidget& part) {
    for (const QWidget* const widget : part.findChildren<QWidget*>()) {
      const bool isOfQt = widget->objectName().startsWith(u"qt_"_s) ||
                          widget->inherits("QTableCornerButton") ||
                          widget->inherits("QMenuBarExtension");
      if (widget->isVisible() && !isOfQt) {
        expectControl(*widget);
      }
    }
  }

  void expectMenu(const QMenu& menu) {
    for (const QAction* const entry : menu.actions()) {
      if (!entry->isSeparator()) {
        expectRow(plain(entry->text()));
        expectSomewhere(QFileInfo(entry->toolTip()).isAbsolute() ||
                                entry->toolTip().startsWith(u"file:"_s)
                            ? QString()
                            : plain(entry->toolTip()));
        expectKey(entry->shortcut());
      }
    }
  }
};

TEST_F(Manual, HasEveryControlOfEveryTab) {
  for (const QUuid& place : {model::manualCityID(), model.cities().at(3).id}) {
    model.setSelectedCityID(place);
    time.setOn(place != model::manualCityID());
    for (const exports::OutputTab tab : exports::outputTabs) {
      window.selectTab(tab);
      tests::turnEventLoop();
      SCOPED_TRACE(exports::title(tab).toStdString());
      expectPart(window);
    }
  }
  EXPECT_GT(found, 100);
}

TEST_F(Manual, HasEveryEntryOfTheMenus) {
  for (const exports::OutputTab tab : {exports::OutputTab::starMap, exports::OutputTab::planets}) {
    window.selectTab(tab);
    for (const QAction* const menu : window.menuBar()->actions()) {
      expectSomewhere(plain(menu->text()));
      expectMenu(*menu->menu());
    }
  }
  for (const QShortcut* const shortcut : window.findChildren<QShortcut*>()) {
    expectKey(shortcut->key());
  }
  window.selectTab(exports::OutputTab::starMap);
  auto* const chart = find<QWidget>("starMap");
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, chart->mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(chart, &event);
  auto* const menu = find<QMenu>("chartMenu");
  expectRow({}, menu->accessibleName());
  expectMenu(*menu);
  menu->close();
  EXPECT_GT(found, 20);
}

TEST_F(Manual, HasEverySheet) {
  press("saveButton");
  expectPart(*find<QDialog>("saveSheet"));
  expectSomewhere(find<QDialog>("saveSheet")->windowTitle());
  find<QDialog>("saveSheet")->reject();
  model.setSelectedCityID(model.cities().at(1).id);
  press("deleteButton");
  const auto* const question = find<QDialog>("deleteSheet");
  expectSomewhere(question->windowTitle());
  for (const auto* const button : question->findChildren<QAbstractButton*>()) {
    expectControl(*button);
  }
  PrintSheet print({u"Attic"_s}, u"Attic"_s, &window);
  print.setAttribute(Qt::WA_DeleteOnClose, false);
  print.open();
  for (const auto* const button : print.findChildren<QAbstractButton*>()) {
    expectControl(*button);
  }
  for (const auto* const label : print.findChildren<QLabel*>()) {
    expectControl(*label);
  }
  AboutView about;
  about.show();
  for (const auto* const button : about.findChildren<QAbstractButton*>()) {
    expectRow(plain(button->text()));
  }
  EXPECT_GT(found, 8);
}

TEST_F(Manual, HasEveryStoredValueAndItsFile) {
  model.setSelectedCityID(model.cities().at(1).id);
  model.setManualLatDeg(1.0);
  model.setHour(3.0);
  state.setPlacement({.frame = QRect(1, 2, 3, 4), .size = QSize(5, 6)});
  state.setSidebarWidth(300);
  state.setLive(true);
  state.setPace(model::TimeStep::hour, 2.0);
  state.setExportFolder(folder.path());
  const QSettings stored(folder.filePath(u"window.ini"_s), QSettings::IniFormat);
  QStringList names = settings->values.keys() + stored.allKeys();
  EXPECT_GT(names.size(), 15);
  const QString places = QFileInfo(*model::locationsFileURL()).fileName();
  names += {places, QFileInfo(model::unreadableName(places)).fileName()};
  const QString page = readableText(pageText(u"files.html"_s));
  for (const QString& key : names) {
    EXPECT_TRUE(page.contains(key)) << "files.html does not name " << qPrintable(key);
  }
}

}  // namespace
}  // namespace veyruna::ui
