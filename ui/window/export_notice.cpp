#include "ui/window/export_notice.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <chrono>

#include "ui/controls/alert.h"
#include "ui/controls/icons.h"
#include "ui/controls/named.h"
#include "ui/controls/shades.h"

namespace veyruna::ui {

namespace {

constexpr std::chrono::seconds shown{8};

}  // namespace

ExportNotice::ExportNotice(QWidget* parent)
    : QWidget(parent),
      line_(named(new QLabel, "exportNotice", tr("Result of the export"))),
      openFolder_(named(new QPushButton(icon("folder-open", "folder"), tr("Open Folder")),
                        "openFolder", tr("Open the folder of the saved file"))) {
  line_->setTextFormat(Qt::PlainText);
  line_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  line_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // cut, with a tooltip
  QSizePolicy reserved = openFolder_->sizePolicy();
  reserved.setRetainSizeWhenHidden(true);
  openFolder_->setSizePolicy(reserved);
  openFolder_->hide();
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->addWidget(line_, 1);
  row->addWidget(openFolder_);

  timeout_.setSingleShot(true);
  timeout_.setInterval(shown);
  connect(&timeout_, &QTimer::timeout, this, &ExportNotice::clear);
  connect(openFolder_, &QPushButton::clicked, this,
          [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder_)); });
}

void ExportNotice::showProgress(const QString& line) {
  say(line);
}

void ExportNotice::showSuccess(const QString& line, const std::optional<QString>& folder) {
  say(line);
  folder_ = folder.value_or(QString());
  openFolder_->setVisible(folder.has_value());
  timeout_.start();
}

void ExportNotice::showFailure(const QString& line) {
  say(line);
  isFailure_ = true;
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, warningColor(colors));
  line_->setPalette(colors);
}

void ExportNotice::dismissFailure() {
  if (isFailure_) {
    clear();
  }
}

void ExportNotice::clear() {
  say(QString());
}

void ExportNotice::say(const QString& line) {
  timeout_.stop();
  openFolder_->hide();
  isFailure_ = false;
  line_->setPalette({});
  line_->setText(line);
  // Not as markup, whatever the file is called.
  line_->setToolTip(line.isEmpty() ? QString()
                                   : QStringLiteral("<p>%1</p>").arg(line.toHtmlEscaped()));
  alert(*line_);
}

}  // namespace veyruna::ui
