#include "ui/controls/segmented_picker.h"

#include <QButtonGroup>
#include <QHBoxLayout>

#include "ui/controls/highlighted_buttons.h"

namespace veyruna::ui {

SegmentedPicker::SegmentedPicker(const char* name, const QList<Segment>& segments, QWidget* parent)
    : QWidget(parent), segments_(new QButtonGroup(this)) {
  setObjectName(QString::fromLatin1(name));
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->setSpacing(0);
  for (int segment = 0; segment < segments.size(); ++segment) {
    const auto& [title, spoken] = segments[segment];
    auto* const button = new SegmentButton(title);
    button->setObjectName(objectName() + title);
    button->setAccessibleName(spoken);
    button->setCheckable(true);
    button->setAutoDefault(false);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    segments_->addButton(button, segment);
    row->addWidget(button);
  }
  segments_->button(0)->setChecked(true);
  connect(segments_, &QButtonGroup::idClicked, this, &SegmentedPicker::picked);
}

void SegmentedPicker::setChosen(int segment) {
  segments_->button(segment)->setChecked(true);
}

}  // namespace veyruna::ui
