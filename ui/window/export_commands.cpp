#include "ui/window/export_commands.h"

#include <QFileInfo>

#include "ui/window/export_notice.h"
#include "ui/window/save_dialog.h"
#include "ui/window/window_state.h"

namespace veyruna::ui {

ExportCommands::ExportCommands(model::AstronomyModel& model, const PageEngine& engine,
                               WindowState& state, ExportNotice& notice, QWidget& window)
    : QObject(&window),
      exporter_(model, engine.renderPdf),
      state_(state),
      notice_(notice),
      window_(window) {}

void ExportCommands::exportNative(exports::OutputTab tab) {
  if (const auto content = exporter_.native(tab)) {
    const bool isSvg = content->format == exports::NativeFormat::svg;
    ask(*content, isSvg ? tr("SVG") : tr("Plain text"), content->extension);
  }
}

void ExportCommands::exportPdf(exports::OutputTab tab) {
  if (const auto content = exporter_.pdf(tab)) {
    ask(*content, tr("PDF"), QStringLiteral("pdf"));
  }
}

template <class Content>
void ExportCommands::ask(const Content& content, const QString& typeName, const QString& suffix) {
  askWhereToSave(window_,
                 {content.message, state_.exportFolder(), content.proposedName, typeName, suffix},
                 [this, content](const QString& path) {
                   notice_.showSaving(path);
                   exporter_.save(content, path, reportTo(path));
                 });
}

exports::Saved ExportCommands::reportTo(const QString& path) {
  return [window = QPointer<ExportCommands>(this), path](const std::optional<QString>& error) {
    if (window) {
      window->report(path, error);
    }
  };
}

void ExportCommands::report(const QString& path, const std::optional<QString>& error) {
  if (error) {
    notice_.showFailure(path, *error);
  } else {
    // Only a folder that could be written to is offered again.
    state_.setExportFolder(QFileInfo(path).absolutePath());
    notice_.showSaved(path);
  }
}

}  // namespace veyruna::ui
