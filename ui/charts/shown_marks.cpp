#include "ui/charts/shown_marks.h"

#include <algorithm>
#include <array>
#include <utility>

namespace veyruna::ui {

namespace {

using charts::ChartMark;
using charts::MarkKind;

/// In this order they are told of.
constexpr std::array speakingKinds = {MarkKind::body,        MarkKind::ascendant,  MarkKind::chord,
                                      MarkKind::panelLine,   MarkKind::figureName, MarkKind::star,
                                      MarkKind::signBoundary};

}  // namespace

ShownMarks::ShownMarks(documents::Document chart, ObserverSource observerOfShown)
    : chart_(chart), observerOfShown_(std::move(observerOfShown)) {}

void ShownMarks::refresh() {
  const std::optional<astro::Observer> now = observerOfShown_();
  if (now == observer_) {
    return;
  }
  observer_ = now;
  marks_ = now ? documents::marksOf(chart_, *now) : charts::ChartMarks();
  speaking_.clear();
  for (const MarkKind kind : speakingKinds) {
    for (const ChartMark& mark : marks_) {
      if (mark.kind == kind) {
        speaking_.push_back(&mark);
      }
    }
  }
}

const charts::ChartMarks& ShownMarks::all() {
  refresh();
  return marks_;
}

const std::vector<const ChartMark*>& ShownMarks::speaking() {
  refresh();
  return speaking_;
}

const ChartMark* ShownMarks::find(const MarkKey& key) {
  const auto found =
      std::ranges::find_if(all(), [&key](const ChartMark& mark) { return MarkKey(mark) == key; });
  return found == marks_.end() ? nullptr : &*found;
}

}  // namespace veyruna::ui
