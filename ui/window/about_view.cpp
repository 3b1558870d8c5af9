#include "ui/window/about_view.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>

#include "ui/controls/icons.h"
#include "ui/controls/named.h"
#include "ui/controls/program.h"
#include "ui/window/product.h"

namespace veyruna::ui {

namespace {

constexpr int contentWidth = 650;
constexpr int spacing = 6;
constexpr int pictureSize = 100;

QPushButton* linkButton(const QString& title, const QUrl& address) {
  auto* const button = named(new QPushButton(title), "", title);
  button->setObjectName(QStringLiteral("link") + title);
  button->setEnabled(address.isValid());
  button->setToolTip(address.isValid() ? address.toDisplayString()
                                       : AboutView::tr("No address has been given for this yet."));
  QObject::connect(button, &QPushButton::clicked, button,
                   [address] { QDesktopServices::openUrl(address); });
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
  setWindowTitle(tr("About Veyruna Astro"));
  setFixedWidth(contentWidth);
  setAutoFillBackground(true);
  const Product product = readProduct();

  auto* const picture = named(centred(QString()), "picture", tr("The sky of Veyruna"));
  picture->setPixmap(programIcon().pixmap(QSize(pictureSize, pictureSize), devicePixelRatio()));
  auto* const title = centred(tr("Veyrunan Astrologer"));
  QFont titleFont = title->font();
  titleFont.setPointSizeF(titleFont.pointSizeF() * 2.0);
  title->setFont(titleFont);

  auto* const column = new QVBoxLayout(this);
  column->setSpacing(spacing);
  column->addWidget(picture);
  column->addWidget(title);
  column->addWidget(centred(tr("Version %1 (Build %2)").arg(programVersion(), programBuild())));
  for (const QString& paragraph : product.credits) {
    column->addWidget(centred(paragraph));
  }
  auto* const links = new QHBoxLayout;
  links->addWidget(linkButton(tr("Application Documentation"), product.documentation));
  links->addWidget(linkButton(tr("Developer Website"), product.developerWebsite));
  links->addWidget(linkButton(tr("Community Chat"), product.community));
  column->addLayout(links);
  auto* const publisherLinks = new QHBoxLayout;
  publisherLinks->addWidget(linkButton(tr("Publisher"), product.publisher));
  publisherLinks->addWidget(linkButton(tr("Publisher's PDF"), product.publishersEdition));
  column->addLayout(publisherLinks);
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
