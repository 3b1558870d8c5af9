#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "astro/observer.h"
#include "charts/chart_mark.h"
#include "documents/documents.h"

namespace veyruna::ui {

/// Which mark it is, whatever moment is shown.
struct MarkKey {
  charts::MarkKind kind;
  std::size_t ordinal;

  explicit MarkKey(const charts::ChartMark& mark) : kind(mark.kind), ordinal(mark.ordinal) {}
  MarkKey(charts::MarkKind markKind, std::size_t markOrdinal)
      : kind(markKind), ordinal(markOrdinal) {}
  friend bool operator==(const MarkKey&, const MarkKey&) = default;
};

/// What a shown chart shows where. Worked out when somebody asks, and kept until the moment or
/// place of what is shown is another.
class ShownMarks {
 public:
  /// Whose sky is shown now; nothing before the first calculation.
  using ObserverSource = std::function<std::optional<astro::Observer>()>;

  ShownMarks(documents::Document chart, ObserverSource observerOfShown);

  /// All of them, as they are drawn.
  [[nodiscard]] const charts::ChartMarks& all();

  /// Those that have something to say, the bodies first: not the many stars of no figure.
  [[nodiscard]] const std::vector<const charts::ChartMark*>& speaking();

  /// The mark, where it is shown at all; valid until the next chart.
  [[nodiscard]] const charts::ChartMark* find(const MarkKey& key);

  /// The observer of all(); to be asked for where there is a mark.
  [[nodiscard]] const astro::Observer& observer() const { return *observer_; }

 private:
  void refresh();

  documents::Document chart_;
  ObserverSource observerOfShown_;
  std::optional<astro::Observer> observer_;
  charts::ChartMarks marks_;
  std::vector<const charts::ChartMark*> speaking_;
};

}  // namespace veyruna::ui
