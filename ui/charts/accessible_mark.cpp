#include "ui/charts/accessible_mark.h"

#include "charts/mark_reading.h"

namespace veyruna::ui {

using charts::MarkKind;

std::optional<AccessibleMark::Shown> AccessibleMark::shown() const {
  ChartView* const chart = chart_.data();
  if (chart == nullptr) {
    return std::nullopt;
  }
  const charts::ChartMark* const mark = chart->marks().find(key_);
  return mark == nullptr ? std::nullopt : std::optional(Shown{*chart, *mark});
}

bool AccessibleMark::isValid() const {
  return shown().has_value();
}

QAccessibleInterface* AccessibleMark::parent() const {
  return chart_ ? QAccessible::queryAccessibleInterface(chart_) : nullptr;
}

QString AccessibleMark::text(QAccessible::Text kind) const {
  const auto here = shown();
  if (!here) {
    return {};
  }
  const astro::Observer& observer = here->chart.marks().observer();
  if (kind == QAccessible::Name) {
    return QString::fromStdString(charts::spoken(here->mark, observer));
  }
  if (kind == QAccessible::Description) {
    QStringList lines;
    for (const std::string& line : charts::readOut(here->mark, observer)) {
      lines.append(QString::fromStdString(line));
    }
    return lines.join(QStringLiteral(", "));
  }
  return {};
}

QRect AccessibleMark::rect() const {
  const auto here = shown();
  if (!here) {
    return {};
  }
  const QRect place = here->chart.placeOf(here->mark).toAlignedRect();
  return {here->chart.mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::Role AccessibleMark::role() const {
  return key_.kind == MarkKind::panelLine ? QAccessible::StaticText : QAccessible::Graphic;
}

QAccessible::State AccessibleMark::state() const {
  QAccessible::State state;
  const auto here = shown();
  if (!here) {
    state.invalid = true;
    return state;
  }
  state.focusable = true;
  state.focused = here->chart.hasFocus() && here->chart.focusedMark() == &here->mark;
  state.selectable = key_.kind == MarkKind::body;
  state.selected = state.selectable && here->chart.selection().body() == key_.ordinal;
  state.invisible = !here->chart.isVisible();
  state.offscreen = !here->chart.rect().intersects(here->chart.placeOf(here->mark).toAlignedRect());
  return state;
}

void* AccessibleMark::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                              : nullptr;
}

QStringList AccessibleMark::actionNames() const {
  return key_.kind == MarkKind::body ? QStringList{pressAction(), setFocusAction()}
                                     : QStringList{setFocusAction()};
}

void AccessibleMark::doAction(const QString& name) {
  const auto here = shown();
  if (here && name == setFocusAction()) {
    here->chart.setFocus(Qt::OtherFocusReason);
    here->chart.focusMark(key_);
  } else if (here && name == pressAction()) {
    here->chart.select(key_);
  }
}

}  // namespace veyruna::ui
