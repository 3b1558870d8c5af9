#include "tests/ui/golden/layout_text.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTextDocument>

#include "tests/ui/golden/widget_properties.h"

namespace veyruna::tests {

namespace {

/// A window has its size alone: where it stands is the window manager's.
QString placeText(const QWidget& widget, bool isFirst) {
  const QString size = QStringLiteral("%1x%2").arg(widget.width()).arg(widget.height());
  return isFirst ? size : QStringLiteral("%1,%2 %3").arg(widget.x()).arg(widget.y()).arg(size);
}

QString nameOf(const QWidget& widget) {
  QString name = QString::fromLatin1(widget.metaObject()->className());
  name.remove(QStringLiteral("veyruna::ui::"));
  return widget.objectName().isEmpty() ? name : name + QLatin1Char('#') + widget.objectName();
}

QStringList typeAndColours(const QWidget& widget) {
  QStringList unusual;
  const QFont& type = widget.font();
  const QFont usual = widget.isWindow() ? QApplication::font() : widget.parentWidget()->font();
  if (type.family() != usual.family()) {
    unusual.append(QStringLiteral("family ") + type.family());
  }
  if (type.pointSizeF() != usual.pointSizeF()) {
    unusual.append(QStringLiteral("type of %1 points").arg(type.pointSizeF()));
  }
  if (type.weight() != usual.weight()) {
    unusual.append(QStringLiteral("weight %1").arg(type.weight()));
  }
  const QPalette plain = QApplication::palette();
  for (const auto& [role, name] :
       {std::pair(QPalette::WindowText, "ink"), std::pair(QPalette::Text, "text ink"),
        std::pair(QPalette::ButtonText, "button ink"), std::pair(QPalette::Base, "ground")}) {
    const QColor color = widget.palette().color(QPalette::Active, role);
    if (color != plain.color(QPalette::Active, role)) {
      unusual.append(QString::fromLatin1(name) + QLatin1Char(' ') + color.name());
    }
  }
  return unusual;
}

QStringList windowTraits(const QWidget& widget) {
  QStringList traits;
  if (widget.testAttribute(Qt::WA_TransparentForMouseEvents)) {
    traits.append(QStringLiteral("not for the mouse"));
  }
  if (widget.hasFocus()) {
    traits.append(QStringLiteral("has the focus"));
  }
  if (widget.isWindow()) {
    traits.append(widget.windowType() == Qt::Dialog ? QStringLiteral("dialog")
                                                    : QStringLiteral("window"));
    if (widget.testAttribute(Qt::WA_DeleteOnClose)) {
      traits.append(QStringLiteral("deleted when closed"));
    }
    if (!widget.testAttribute(Qt::WA_QuitOnClose)) {
      traits.append(QStringLiteral("does not keep the program running"));
    }
  }
  return traits;
}

/// What no property tells.
QStringList contents(const QWidget& widget) {
  QStringList told;
  if (const auto* const label = qobject_cast<const QLabel*>(&widget);
      label != nullptr && label->buddy() != nullptr) {
    told.append(QStringLiteral("of ") + nameOf(*label->buddy()));
  }
  if (const auto* const text = qobject_cast<const QPlainTextEdit*>(&widget)) {
    told.append(QStringLiteral("margin %1").arg(text->document()->documentMargin()));
  }
  if (const auto* const table = qobject_cast<const QTableWidget*>(&widget)) {
    QStringList columns;
    for (int column = 0; column < table->columnCount(); ++column) {
      const int flags = table->item(0, column)->textAlignment();
      columns.append(QStringLiteral("%1 %2 %3")
                         .arg(table->horizontalHeaderItem(column)->text())
                         .arg(table->columnWidth(column))
                         .arg((flags & Qt::AlignRight) != 0 ? QStringLiteral("right")
                                                            : QStringLiteral("left")));
    }
    told.append(QStringLiteral("%1 rows (%2)")
                    .arg(table->rowCount())
                    .arg(columns.join(QStringLiteral(", "))));
  }
  return told;
}

void write(const QWidget& widget, int depth, QStringList& lines) {
  QStringList parts = {nameOf(widget), placeText(widget, depth == 0)};
  parts.append(
      QStringLiteral("asks %1x%2").arg(widget.sizeHint().width()).arg(widget.sizeHint().height()));
  const QStringList told =
      windowTraits(widget) + unusualProperties(widget) + typeAndColours(widget) + contents(widget);
  lines.append(
      QString(qsizetype{2} * depth, QLatin1Char(' ')) + parts.join(QLatin1Char(' ')) +
      (told.isEmpty() ? QString() : QStringLiteral("; ") + told.join(QStringLiteral(", "))));
  if (qobject_cast<const QPlainTextEdit*>(&widget) != nullptr) {
    return;  // its bars come and go with the system's fixed-pitch type
  }
  for (const QObject* const child : widget.children()) {
    const auto* const inner = qobject_cast<const QWidget*>(child);
    if (inner != nullptr && inner->isVisible() && !inner->isWindow()) {
      write(*inner, depth + 1, lines);
    }
  }
}

void writeMenu(const QMenu& menu, int depth, QStringList& lines) {
  for (const QAction* const entry : menu.actions()) {
    const QString indent(qsizetype{2} * depth, QLatin1Char(' '));
    if (entry->isSeparator()) {
      lines.append(indent + QStringLiteral("--"));
      continue;
    }
    QStringList told = {quoted(entry->text())};
    const auto add = [&told](const char* word, const QString& text) {
      if (!text.isEmpty()) {
        told.append(QString::fromLatin1(word) + QLatin1Char(' ') + quoted(text));
      }
    };
    add("key", entry->shortcut().toString());
    add("tip", entry->toolTip() == entry->iconText() ? QString() : entry->toolTip());
    add("status", entry->statusTip());
    told.append(entry->isEnabled() ? QStringList() : QStringList(QStringLiteral("disabled")));
    if (entry->isCheckable()) {
      told.append(entry->isChecked() ? QStringLiteral("checked") : QStringLiteral("unchecked"));
    }
    lines.append(indent + told.join(QStringLiteral(", ")));
  }
}

std::string joined(const QStringList& lines) {
  return (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toStdString();
}

}  // namespace

std::string layoutText(const QWidget& part) {
  QStringList lines;
  write(part, 0, lines);
  return joined(lines);
}

std::string menuText(const QMenuBar& menus) {
  QStringList lines;
  for (const QAction* const title : menus.actions()) {
    const QMenu& menu = *title->menu();
    lines.append(quoted(title->text()) +
                 (menu.toolTipsVisible() ? QStringLiteral(", shows tips") : QString()));
    writeMenu(menu, 1, lines);
  }
  return joined(lines);
}

std::string tabOrderText(const QWidget& window) {
  QStringList lines;
  for (const QWidget* next = window.nextInFocusChain(); next != &window;
       next = next->nextInFocusChain()) {
    if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->isVisible() && next->isEnabled() &&
        next->focusProxy() == nullptr) {
      lines.append(nameOf(*next));
    }
  }
  return joined(lines);
}

}  // namespace veyruna::tests
