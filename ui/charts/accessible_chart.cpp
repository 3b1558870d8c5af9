#include "ui/charts/accessible_chart.h"

#include <QAccessibleWidget>
#include <algorithm>
#include <utility>
#include <vector>

#include "ui/charts/accessible_mark.h"
#include "ui/charts/chart_view.h"

namespace veyruna::ui {

namespace {

/// A chart view as a screen reader meets it.
class AccessibleChart final : public QAccessibleWidget {
 public:
  explicit AccessibleChart(ChartView* chart) : QAccessibleWidget(chart, QAccessible::Graphic) {}

  ~AccessibleChart() override {
    for (const auto& [key, id] : children_) {
      QAccessible::deleteAccessibleInterface(id);
    }
  }
  AccessibleChart(const AccessibleChart&) = delete;
  AccessibleChart& operator=(const AccessibleChart&) = delete;

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Description ? chart().description() : QAccessibleWidget::text(kind);
  }

  [[nodiscard]] int childCount() const override {
    return static_cast<int>(chart().marks().speaking().size());
  }

  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    const auto& marks = chart().marks().speaking();
    if (index < 0 || static_cast<std::size_t>(index) >= marks.size()) {
      return nullptr;
    }
    return childOf(MarkKey(*marks[static_cast<std::size_t>(index)]));
  }

  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    const auto* const mark = dynamic_cast<const AccessibleMark*>(child);
    const auto& marks = chart().marks().speaking();
    const auto place = std::ranges::find_if(marks, [mark](const charts::ChartMark* each) {
      return mark != nullptr && MarkKey(*each) == mark->key();
    });
    return place == marks.end() ? -1 : static_cast<int>(place - marks.begin());
  }

  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint at = chart().mapFromGlobal(QPoint(x, y));
    const charts::ChartMark* const mark =
        chart().rect().contains(at) ? chart().markUnder(at) : nullptr;
    return mark != nullptr && speaks(*mark) ? childOf(MarkKey(*mark)) : nullptr;
  }

  [[nodiscard]] QAccessibleInterface* focusChild() const override {
    const charts::ChartMark* const mark = chart().hasFocus() ? chart().focusedMark() : nullptr;
    return mark != nullptr && speaks(*mark) ? childOf(MarkKey(*mark)) : nullptr;
  }

  /// One interface for each mark that was ever asked for: what a screen reader holds stays good,
  /// and is said to be invalid while the mark is not shown.
  [[nodiscard]] QAccessibleInterface* childOf(const MarkKey& key) const {
    const auto known = std::ranges::find(children_, key, &Child::first);
    if (known != children_.end()) {
      return QAccessible::accessibleInterface(known->second);
    }
    auto* const made = new AccessibleMark(chart(), key);
    children_.emplace_back(key, QAccessible::registerAccessibleInterface(made));
    return made;
  }

  [[nodiscard]] bool speaks(const charts::ChartMark& mark) const {
    return std::ranges::find(chart().marks().speaking(), &mark) != chart().marks().speaking().end();
  }

 private:
  using Child = std::pair<MarkKey, QAccessible::Id>;

  [[nodiscard]] ChartView& chart() const { return static_cast<ChartView&>(*widget()); }

  mutable std::vector<Child> children_;
};

QAccessibleInterface* chartInterface(const QString& /*className*/, QObject* object) {
  auto* const chart = qobject_cast<ChartView*>(object);
  return chart == nullptr ? nullptr : new AccessibleChart(chart);
}

}  // namespace

void makeChartsAccessible() {
  static const bool isInstalled = [] {
    QAccessible::installFactory(chartInterface);
    return true;
  }();
  static_cast<void>(isInstalled);
}

QAccessibleInterface* accessibleMark(ChartView& chart, const MarkKey& key) {
  const auto* const spoken =
      static_cast<const AccessibleChart*>(QAccessible::queryAccessibleInterface(&chart));
  const charts::ChartMark* const mark = chart.marks().find(key);
  return spoken != nullptr && mark != nullptr && spoken->speaks(*mark) ? spoken->childOf(key)
                                                                       : nullptr;
}

void tellOfFocus(ChartView& chart, const MarkKey& key) {
  if (!QAccessible::isActive() || !chart.hasFocus()) {
    return;
  }
  if (QAccessibleInterface* const mark = accessibleMark(chart, key)) {
    QAccessibleEvent focused(mark, QAccessible::Focus);
    QAccessible::updateAccessibility(&focused);
  }
}

}  // namespace veyruna::ui
