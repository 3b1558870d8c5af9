#include "export/document_exporter.h"

#include <QFile>
#include <cstdio>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "export/said_text.h"
#include "files/file_writer.h"

namespace veyruna::exports {

namespace {

/// Reports a failure under its prefix and tells the caller how it ended.
void conclude(const FailureSink& failures, const QString& prefix,
              const std::optional<QString>& error, const Saved& saved) {
  if (error) {
    failures(prefix + *error);
  }
  if (saved) {
    saved(error);
  }
}

/// Why the file could not be written, in the system's words; nothing where it was.
std::optional<QString> written(const QString& path, const QByteArray& bytes) {
  const std::error_code error =
      files::writeWholeFile(QFile::encodeName(path).toStdString(),
                            {bytes.constData(), static_cast<std::size_t>(bytes.size())});
  return error ? std::optional(QString::fromLocal8Bit(error.message())) : std::nullopt;
}

}  // namespace

FailureSink standardOutput() {
  return [](const QString& line) {
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
  };
}

DocumentExporter::DocumentExporter(const model::AstronomyModel& model, FailureSink failures)
    : model_(model), failures_(std::move(failures)) {}

std::optional<NativeExport> DocumentExporter::native(OutputTab tab) const {
  return nativeExport(model_, tab);
}

std::optional<SheetExport> DocumentExporter::sheet(OutputTab tab, documents::Form form) const {
  return sheetExport(model_, tab, form);
}

void DocumentExporter::save(const SheetExport& content, const QString& path,
                            const Saved& saved) const {
  if (path.isEmpty()) {
    return;
  }
  const QString name = saidText(documents::formEntry(content.form).name);
  QByteArray bytes;
  try {
    bytes = bytesOf(content, content.form);
  } catch (const std::runtime_error& error) {
    conclude(failures_, QStringLiteral("Error rendering %1: ").arg(name),
             QString::fromUtf8(error.what()), saved);
    return;
  }
  conclude(failures_, QStringLiteral("Error writing %1: ").arg(name), written(path, bytes), saved);
}

void DocumentExporter::save(const NativeExport& content, const QString& path,
                            const Saved& saved) const {
  if (path.isEmpty()) {
    return;
  }
  conclude(failures_,
           content.form == documents::Form::svg ? QStringLiteral("Error saving SVG: ")
                                                : QStringLiteral("Error saving text: "),
           written(path, content.text.toUtf8()), saved);
}

}  // namespace veyruna::exports
