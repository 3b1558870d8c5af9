#include "ui/window/export_commands.h"

#include <QFileInfo>

#include "export/said_text.h"
#include "ui/window/changed_inputs.h"
#include "ui/window/export_notice.h"
#include "ui/window/save_dialog.h"
#include "ui/window/window_state.h"

namespace veyruna::ui {

ExportCommands::ExportCommands(model::AstronomyModel& model, WindowState& state,
                               ExportNotice& notice, QWidget& window)
    : QObject(&window),
      model_(model),
      exporter_(model),
      state_(state),
      notice_(notice),
      window_(window) {}

void ExportCommands::exportNative(exports::OutputTab tab) {
  if (const auto content = exporter_.native(tab)) {
    ask(*content);
  }
}

void ExportCommands::exportAs(documents::Form form, exports::OutputTab tab) {
  if (const auto content = exporter_.sheet(tab, form)) {
    ask(*content);
  }
}

template <class Content>
void ExportCommands::ask(const Content& content) {
  const documents::FormEntry& form = documents::formEntry(content.form);
  notice_.dismissFailure();
  askWhereToSave(window_,
                 {content.message, state_.exportFolder(), content.proposedName,
                  exports::saidText(form.name), exports::saidText(form.extension)},
                 [this, content, remark = changedInputsRemark(model_)](const QString& path) {
                   exporter_.save(content, path,
                                  [this, path, remark](const std::optional<QString>& error) {
                                    report(QFileInfo(path), remark, error);
                                  });
                 });
}

void ExportCommands::report(const QFileInfo& file, const QString& remark,
                            const std::optional<QString>& error) {
  if (error) {
    // The reason first: what does not fit is cut at the end.
    notice_.showFailure(tr("Not saved: %1 (%2)").arg(*error, file.fileName()));
  } else {
    // Only a folder that could be written to is offered again.
    state_.setExportFolder(file.absolutePath());
    notice_.showSuccess(joined(tr("Saved %1").arg(file.fileName()), remark), file.absolutePath());
  }
}

}  // namespace veyruna::ui
