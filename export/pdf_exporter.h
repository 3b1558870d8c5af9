#pragma once

#include <QObject>
#include <QSizeF>
#include <QString>
#include <QTimer>
#include <chrono>

#include "export/pdf_result.h"
#include "export/sealed_page.h"

namespace veyruna::exports {

/// One rendering of an HTML document as PDF, off screen. It keeps itself alive, whatever becomes of
/// whoever asked for it, from its start until its completion has run, and its page as long as the
/// web engine may still answer. Any number may run at once. To be used on the interface thread,
/// with a QGuiApplication and after prepareWebEngine().
class PDFExporter final : public QObject {
  Q_OBJECT

 public:
  static constexpr std::chrono::seconds usualPatience{60};

  /// Renders on pages of this size in points, as many as the document fills, and calls `completion`
  /// once, later: with the bytes, or with a failure where the document does not load, its process
  /// dies, no bytes come, or nothing has come within `patience`.
  static void start(const QString& html, const QSizeF& pageSize, const PdfCompletion& completion,
                    std::chrono::milliseconds patience = usualPatience);

  /// start() with the usual patience: a PdfRenderer.
  static void render(const QString& html, const QSizeF& pageSize, const PdfCompletion& completion);

  /// How many renderings' completions have not run to their end.
  static qsizetype activeCount();

  /// Before the program ends: runs the event loop until every completion has run and every page
  /// is gone; not from a completion. False where that took longer than `patience`.
  static bool waitForAll(std::chrono::milliseconds patience = 2 * usualPatience);

 private:
  PDFExporter(const QString& html, const QSizeF& pageSize, const PdfCompletion& completion);

  void begin(std::chrono::milliseconds patience);
  void fit();
  void print(const QVariant& fitting);
  void printed(const QByteArray& bytes);
  void fail(const QString& description);
  void finish(const PdfResult& result);

  SealedProfile profile_;
  SealedPage page_;  ///< after its profile, so that it goes first
  QString html_;
  QSizeF pageSize_;
  PdfCompletion completion_;
  QTimer watchdog_;
  bool isFinished_ = false;
  bool isPrinting_ = false;
  bool isLost_ = false;  ///< its render process is gone
};

}  // namespace veyruna::exports
