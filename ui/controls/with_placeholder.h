#pragma once

#include <QLabel>
#include <QStackedLayout>

namespace veyruna::ui {

/// A view with a text in its place while there is nothing to see.
class WithPlaceholder : public QWidget {
 public:
  WithPlaceholder(QWidget* view, const QString& text, QWidget* parent = nullptr)
      : QWidget(parent), layout_(new QStackedLayout(this)) {
    auto* const label = new QLabel(text);
    label->setObjectName(QStringLiteral("placeholder"));
    label->setAlignment(Qt::AlignCenter);
    label->setEnabled(false);  // drawn in the palette's secondary colour
    layout_->addWidget(label);
    layout_->addWidget(view);
  }

  void showView(bool hasContent) { layout_->setCurrentIndex(hasContent ? 1 : 0); }

 private:
  QStackedLayout* layout_;
};

}  // namespace veyruna::ui
