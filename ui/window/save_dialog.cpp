#include "ui/window/save_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>

namespace veyruna::ui {

namespace {

bool agreesToReplace(QWidget* parent, const QString& path) {
  const QString question = QFileDialog::tr("%1 already exists.\nDo you want to replace it?")
                               .arg(QFileInfo(path).fileName());
  return QMessageBox::warning(parent, parent->windowTitle(), question,
                              QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) == QMessageBox::Yes;
}

QString withSuffix(const QString& path, const QString& suffix) {
  const bool hasSuffix = path.endsWith(QLatin1Char('.') + suffix, Qt::CaseInsensitive);
  return hasSuffix ? path : path + QLatin1Char('.') + suffix;
}

/// A save dialog that takes a typed name as it stands. Qt's own takes quotation marks for the ends
/// of several names, adds no suffix to a name that holds a dot ("40.50°N"), and answers a name that
/// is too long with silence.
class SaveDialog final : public QFileDialog {
 public:
  SaveDialog(QWidget* parent, const SaveQuestion& question)
      : QFileDialog(parent, question.message, question.folder,
                    QStringLiteral("%1 (*.%2)").arg(question.typeName, question.suffix)),
        suffix_(question.suffix) {
    setObjectName(QStringLiteral("saveDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptMode(AcceptSave);
    selectFile(question.proposedName);
  }

 protected:
  void accept() override {
    const auto* const field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (field == nullptr) {  // the platform's own dialog, which asks for itself
      QFileDialog::accept();
      return;
    }
    const QString name = field->text();
    const QString typed = name.startsWith(QLatin1String("~/")) ? QDir::homePath() + name.mid(1)
                                                               : directory().absoluteFilePath(name);
    if (name.trimmed().isEmpty() || QFileInfo(typed).isDir()) {
      QFileDialog::accept();
      return;
    }
    const QString path = withSuffix(typed, suffix_);
    if (QFileInfo::exists(path) && !agreesToReplace(this, path)) {
      return;
    }
    done(Accepted);
    Q_EMIT fileSelected(path);
  }

 private:
  QString suffix_;
};

}  // namespace

void askWhereToSave(QWidget& window, const SaveQuestion& question,
                    const std::function<void(const QString& path)>& answered) {
  auto* const dialog = new SaveDialog(&window, question);
  QObject::connect(
      dialog, &QFileDialog::fileSelected, &window,
      [&window, answered, suffix = question.suffix](const QString& chosen) {
        const QString path = withSuffix(chosen, suffix);
        // What was added may name another file than the one the dialog asked about.
        if (path == chosen || !QFileInfo::exists(path) || agreesToReplace(&window, path)) {
          answered(path);
        }
      });
  dialog->open();
}

}  // namespace veyruna::ui
