#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "export/export_content.h"
#include "export/output_tab.h"
#include "model/astronomy_model.h"

namespace veyruna::exports {

/// Where failures are reported, a line at a time without its line feed.
using FailureSink = std::function<void(const QString& line)>;

/// Standard output, in UTF-8, line by line.
FailureSink standardOutput();

/// How an export ended: nothing where the file is there, else why it is not, in plain words.
using Saved = std::function<void(const std::optional<QString>& error)>;

/// Saves what the tabs show. An export has two steps: take the content when the command is chosen,
/// save it when a destination is known. The model must outlive the exporter.
class DocumentExporter {
 public:
  explicit DocumentExporter(const model::AstronomyModel& model,
                            FailureSink failures = standardOutput());

  /// What the tab shows now; nothing for the location.
  [[nodiscard]] std::optional<NativeExport> native(OutputTab tab) const;
  /// In a form that is made of it; nothing either in one that the tab's documents cannot have.
  [[nodiscard]] std::optional<SheetExport> sheet(OutputTab tab, documents::Form form) const;

  /// Makes the file in its form and writes it; `saved` is called once, before this returns. An
  /// empty path is a dialog that was cancelled: nothing happens and `saved` is not called.
  void save(const SheetExport& content, const QString& path, const Saved& saved = {}) const;

  /// Writes the text as UTF-8; `saved` is called once, before this returns. An empty path likewise.
  void save(const NativeExport& content, const QString& path, const Saved& saved = {}) const;

 private:
  const model::AstronomyModel& model_;
  FailureSink failures_;
};

}  // namespace veyruna::exports
