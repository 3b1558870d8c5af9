#pragma once

#include <QObject>

#include "export/document_exporter.h"
#include "export/output_tab.h"
#include "model/astronomy_model.h"

class QFileInfo;

namespace veyruna::ui {

class ExportNotice;
class WindowState;

/// The export commands of a window: what the tab shows is taken when the command is chosen,
/// then the person is asked where it goes, then it is written and the notice says how that ended.
class ExportCommands final : public QObject {
  Q_OBJECT

 public:
  /// The dialogs open over `window`.
  ExportCommands(model::AstronomyModel& model, WindowState& state, ExportNotice& notice,
                 QWidget& window);

  /// Saves what the tab shows as it is; for the location nothing happens.
  void exportNative(exports::OutputTab tab);
  /// Saves it in a form that is made of it; nothing happens where the tab's documents cannot have
  /// that form.
  void exportAs(documents::Form form, exports::OutputTab tab);

 private:
  template <class Content>
  void ask(const Content& content);
  void report(const QFileInfo& file, const QString& remark, const std::optional<QString>& error);

  const model::AstronomyModel& model_;
  exports::DocumentExporter exporter_;
  WindowState& state_;
  ExportNotice& notice_;
  QWidget& window_;
};

}  // namespace veyruna::ui
