#include "export/document_exporter.h"

#include <QFile>
#include <cstdio>
#include <system_error>
#include <utility>

#include "drawing/svg_reader.h"
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

std::optional<PdfExport> DocumentExporter::pdf(OutputTab tab) const {
  return pdfExport(model_, tab);
}

std::optional<NativeExport> DocumentExporter::native(OutputTab tab) const {
  return nativeExport(model_, tab);
}

void DocumentExporter::save(const PdfExport& content, const QString& path,
                            const Saved& saved) const {
  if (path.isEmpty()) {
    return;
  }
  QByteArray pdf;
  try {
    pdf = pdfOf(content);
  } catch (const drawing::PictureError& error) {
    conclude(failures_, QStringLiteral("Error rendering PDF: "), QString::fromUtf8(error.what()),
             saved);
    return;
  }
  conclude(failures_, QStringLiteral("Error writing PDF: "), written(path, pdf), saved);
}

void DocumentExporter::save(const NativeExport& content, const QString& path,
                            const Saved& saved) const {
  if (path.isEmpty()) {
    return;
  }
  conclude(failures_,
           content.format == NativeFormat::svg ? QStringLiteral("Error saving SVG: ")
                                               : QStringLiteral("Error saving text: "),
           written(path, content.text.toUtf8()), saved);
}

}  // namespace veyruna::exports
