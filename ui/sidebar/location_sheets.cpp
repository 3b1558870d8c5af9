#include "ui/sidebar/location_sheets.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <variant>

#include "ui/controls/alert.h"
#include "ui/controls/destructive_button.h"
#include "ui/controls/named.h"
#include "ui/controls/warning_label.h"
#include "ui/controls/wrapped_label.h"

namespace veyruna::ui {

namespace {

constexpr int sheetWidth = 320;
constexpr int spacing = 16;
constexpr int padding = 20;

QVBoxLayout* sheetLayout(QDialog* sheet) {
  sheet->setAttribute(Qt::WA_DeleteOnClose);
  sheet->setMinimumWidth(sheetWidth);
  auto* const column = new QVBoxLayout(sheet);
  column->setSpacing(spacing);
  column->setContentsMargins(padding, padding, padding, padding);
  return column;
}

/// "Cancel" on the left, what the sheet does on the right.
QHBoxLayout* sheetButtons(QPushButton* cancel, QPushButton* act) {
  act->setDefault(true);
  auto* const row = new QHBoxLayout;
  row->addWidget(cancel);
  row->addStretch();
  row->addWidget(act);
  return row;
}

/// As high as its texts ask at this width; a window does not see to that for a text in many lines.
void fitHeight(QDialog& sheet) {
  const int width = std::max(sheet.width(), sheet.minimumWidth());
  sheet.resize(width, std::max(sheet.height(), sheet.layout()->totalHeightForWidth(width)));
}

bool isReturn(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

SaveLocationSheet::SaveLocationSheet(model::AstronomyModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
  setObjectName(QStringLiteral("saveSheet"));
  setWindowTitle(tr("Save Location"));
  QVBoxLayout* const column = sheetLayout(this);
  auto* const title = new QLabel(QStringLiteral("<b>%1</b>").arg(tr("Save Location")));
  auto* const label = new QLabel(tr("&Name"));
  name_ = named(new QLineEdit, "nameField", tr("Name"));
  label->setBuddy(name_);
  error_ = named(new WarningLabel, "saveError", tr("Error"));
  error_->hide();
  auto* const cancel = named(new QPushButton(tr("&Cancel")), "cancelButton", tr("Cancel"));
  auto* const save = named(new QPushButton(tr("&Save")), "confirmButton", tr("Save"));

  auto* const field = new QHBoxLayout;
  field->addWidget(label);
  field->addWidget(name_, 1);
  column->addWidget(title);
  column->addLayout(field);
  column->addWidget(error_);
  column->addLayout(sheetButtons(cancel, save));

  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(save, &QPushButton::clicked, this, &SaveLocationSheet::save);
  name_->setFocus();
}

void SaveLocationSheet::save() {
  const auto outcome = model_.addCity(name_->text());
  if (const auto* const refusal = std::get_if<model::LocationError>(&outcome)) {
    error_->setText(refusal->description());
    error_->show();
    alert(*error_);
    fitHeight(*this);
    name_->setFocus();
    return;
  }
  model_.setSelectedCityID(std::get<QUuid>(outcome));
  accept();
}

DeleteLocationSheet::DeleteLocationSheet(model::AstronomyModel& model, QWidget* parent)
    : QDialog(parent), model_(model), id_(model.selectedCityID()) {
  setObjectName(QStringLiteral("deleteSheet"));
  setWindowTitle(tr("Delete Location"));
  QString name;
  for (const model::CityPreset& city : model.cities()) {
    if (city.id == id_) {
      name = city.name;
    }
  }
  QVBoxLayout* const column = sheetLayout(this);
  auto* const prompt = named(
      new WrappedLabel(tr("Delete location ") + QLatin1Char('"') + name + QStringLiteral("\"?")),
      "deletePrompt", tr("Question"));
  auto* const cancel = named(new QPushButton(tr("&Cancel")), "cancelButton", tr("Cancel"));
  auto* const remove = named(new DestructiveButton(tr("&Delete")), "confirmButton", tr("Delete"));
  column->addWidget(prompt);
  column->addLayout(sheetButtons(cancel, remove));

  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(remove, &QPushButton::clicked, this, &DeleteLocationSheet::remove);
  resize(sheetWidth, 0);
  fitHeight(*this);
  cancel->installEventFilter(this);
  remove->setFocus();
}

void DeleteLocationSheet::keyPressEvent(QKeyEvent* event) {
  if (isReturn(*event)) {
    remove();
  } else {
    QDialog::keyPressEvent(event);
  }
}

bool DeleteLocationSheet::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && isReturn(*static_cast<QKeyEvent*>(event))) {
    remove();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void DeleteLocationSheet::remove() {
  model_.deleteCity(id_);
  accept();
}

}  // namespace veyruna::ui
