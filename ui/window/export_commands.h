#pragma once

#include <QObject>

#include "export/document_exporter.h"
#include "export/output_tab.h"
#include "model/astronomy_model.h"

class QFileInfo;

namespace veyruna::ui {

class ExportNotice;
class WindowState;

/// The two export commands of a window: what the tab shows is taken when the command is chosen,
/// then the person is asked where it goes, then it is written and the notice says how that ended.
class ExportCommands final : public QObject {
  Q_OBJECT

 public:
  /// The dialogs open over `window`.
  ExportCommands(model::AstronomyModel& model, WindowState& state, ExportNotice& notice,
                 QWidget& window);

  /// Saves what the tab shows, as it is or as PDF; for the location both do nothing.
  void exportNative(exports::OutputTab tab);
  void exportPdf(exports::OutputTab tab);

 private:
  template <class Content>
  void ask(const Content& content, const QString& typeName, const QString& suffix);
  void report(const QFileInfo& file, const QString& remark, const std::optional<QString>& error);

  const model::AstronomyModel& model_;
  exports::DocumentExporter exporter_;
  WindowState& state_;
  ExportNotice& notice_;
  QWidget& window_;
};

}  // namespace veyruna::ui
