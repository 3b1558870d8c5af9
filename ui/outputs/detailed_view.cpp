#include "ui/outputs/detailed_view.h"

#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "ui/controls/named.h"
#include "ui/outputs/calculated_caption.h"
#include "ui/outputs/tab_views.h"
#include "ui/outputs/time_bar.h"

namespace veyruna::ui {

DetailedView::DetailedView(model::AstronomyModel& model, model::LiveTime& time, QWidget* parent)
    : QWidget(parent),
      caption_(named(new QLabel, "caption", tr("Moment and place of what is shown"))),
      tabs_(new QStackedWidget),
      bar_(named(new TimeBar(time), "timeBar", tr("Time"))) {
  caption_->setAlignment(Qt::AlignCenter);
  caption_->setWordWrap(true);
  caption_->setTextFormat(Qt::PlainText);
  caption_->setMinimumWidth(1);  // no name makes the window wider
  caption_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(caption_);
  column->addWidget(tabs_, 1);
  column->addWidget(bar_);
  auto* const selection = new ChartSelection(this);
  for (const TabView& view : tabViews) {
    tabs_->addWidget(view.make(model, *selection));
  }
  const auto showCaption = [this, &model] { caption_->setText(calculatedCaption(model)); };
  connect(&model, &model::AstronomyModel::published, this, showCaption);
  showCaption();
}

void DetailedView::giveKeysToTime() {
  bar_->takeKeys();
}

void DetailedView::setTab(exports::OutputTab tab) {
  tabs_->setCurrentIndex(static_cast<int>(tab));
}

void DetailedView::focusMap() {
  tabs_->widget(static_cast<int>(exports::OutputTab::location))->setFocus(Qt::OtherFocusReason);
}

}  // namespace veyruna::ui
