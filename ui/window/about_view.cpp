#include "ui/window/about_view.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "ui/controls/icons.h"
#include "ui/controls/named.h"
#include "ui/controls/program.h"
#include "ui/window/manual.h"
#include "ui/window/product.h"

namespace veyruna::ui {

namespace {

constexpr int contentWidth = 650;
constexpr int spacing = 6;
constexpr int pictureSize = 100;

/// As wide as its title asks, so that all five stand in one row.
QPushButton* linkButton(const ProductLink& link) {
  auto* const button = named(new QPushButton(labelOf(link.title)), "", link.title);
  button->setObjectName(QStringLiteral("link") + link.title);
  const int padding = 2 * button->fontMetrics().averageCharWidth();
  button->setMinimumWidth(button->fontMetrics().horizontalAdvance(link.title) + padding);
  button->setEnabled(link.address.isValid());
  button->setToolTip(leadsTo(link));
  button->setAccessibleDescription(leadsTo(link));
  QObject::connect(button, &QPushButton::clicked, button,
                   [link] { QDesktopServices::openUrl(link.address); });
  return button;
}

QLabel* centred(const QString& text) {
  auto* const label = new QLabel(text);
  label->setAlignment(Qt::AlignCenter);
  label->setWordWrap(true);
  return label;
}

}  // namespace

AboutView::AboutView(QWidget* parent) : QWidget(parent, Qt::Dialog) {
  for (const QKeySequence::StandardKey key : {QKeySequence::Cancel, QKeySequence::Close}) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
  }
  setObjectName(QStringLiteral("about"));
  setAttribute(Qt::WA_QuitOnClose, false);  // the program ends with its last main window
  setWindowTitle(tr("About %1").arg(product().name));
  setAutoFillBackground(true);

  auto* const picture = named(centred(QString()), "picture", tr("The sky of Veyruna"));
  picture->setPixmap(programIcon().pixmap(QSize(pictureSize, pictureSize), devicePixelRatio()));
  auto* const title = centred(product().title);
  QFont titleFont = title->font();
  titleFont.setPointSizeF(titleFont.pointSizeF() * 2.0);
  title->setFont(titleFont);

  auto* const column = new QVBoxLayout(this);
  column->setSpacing(spacing);
  column->addWidget(picture);
  column->addWidget(title);
  column->addWidget(centred(tr("Version %1 (Build %2)").arg(programVersion(), programBuild())));
  for (const QString& paragraph : product().credits) {
    column->addWidget(centred(paragraph));
  }
  addLinks(column);
  setFixedWidth(std::max(contentWidth, column->minimumSize().width()));
}

void AboutView::addLinks(QVBoxLayout* column) {
  auto* const row = new QHBoxLayout;
  column->addLayout(row);
  QStringList without;
  for (const ProductLink& link :
       {ProductLink{product().documentation.title, manual()}, product().developerWebsite,
        product().community, product().publisher, product().publishersEdition}) {
    row->addWidget(linkButton(link));
    if (!link.address.isValid()) {
      without.append(link.title);
    }
  }
  if (!without.isEmpty()) {
    column->addWidget(named(centred(tr("No address yet: %1").arg(without.join(tr(", ")))),
                            "linkStatus", tr("Links that do nothing yet")));
  }
}

void AboutView::mousePressEvent(QMouseEvent* event) {
  // The window manager moves it, where there is one that can.
  if (event->button() == Qt::LeftButton && !windowHandle()->startSystemMove()) {
    grip_ = event->position().toPoint();
  }
}

void AboutView::mouseMoveEvent(QMouseEvent* event) {
  if (grip_) {
    move(pos() + event->position().toPoint() - *grip_);
  }
}

void AboutView::mouseReleaseEvent(QMouseEvent* /*event*/) {
  grip_.reset();
}

void AboutView::enterEvent(QEnterEvent* /*event*/) {
  showHovering(true);
}

void AboutView::leaveEvent(QEvent* /*event*/) {
  showHovering(false);
}

void AboutView::showHovering(bool isHovering) {
  setBackgroundRole(isHovering ? QPalette::Base : QPalette::Window);
}

}  // namespace veyruna::ui
