#include "ui/window/print_sheet.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>

#include "ui/controls/named.h"

namespace veyruna::ui {

PrintSheet::PrintSheet(const QStringList& printers, const QString& usual, QWidget* window)
    : QDialog(window),
      printer_(named(new QComboBox, "printer", tr("Printer"))),
      copies_(named(new QSpinBox, "copies", tr("Copies"))) {
  constexpr int mostCopies = 99;
  setObjectName(QStringLiteral("printSheet"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("Print"));
  printer_->addItems(printers);
  printer_->setCurrentText(usual);
  copies_->setRange(1, mostCopies);

  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  QPushButton* const print = buttons->addButton(tr("Print"), QDialogButtonBox::AcceptRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const form = new QFormLayout(this);
  form->addRow(tr("&Printer"), printer_);
  form->addRow(tr("&Copies"), copies_);
  form->addRow(buttons);
  print->setDefault(true);  // only now that it stands in the sheet does Return press it
}

QString PrintSheet::printer() const {
  return printer_->currentText();
}

int PrintSheet::copies() const {
  return copies_->value();
}

}  // namespace veyruna::ui
