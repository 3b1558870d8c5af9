#include "export/pdf_exporter.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QList>
#include <QWebEngineScript>
#include <utility>

#include "export/page_fitting.h"

namespace veyruna::exports {

namespace {

/// The renderings whose completion has not run to its end, in the order they were started. Used on
/// the interface thread alone, like everything that enters them.
QList<PDFExporter*>& activeExporters() {
  static QList<PDFExporter*> exporters;
  return exporters;
}

/// Pages that still print although their completion has been called.
qsizetype pagesLeftPrinting = 0;

}  // namespace

void PDFExporter::start(const QString& html, const QSizeF& pageSize,
                        const PdfCompletion& completion, std::chrono::milliseconds patience) {
  auto* const exporter = new PDFExporter(html, pageSize, completion);  // deletes itself
  activeExporters().append(exporter);
  exporter->begin(patience);
}

void PDFExporter::render(const QString& html, const QSizeF& pageSize,
                         const PdfCompletion& completion) {
  start(html, pageSize, completion);
}

qsizetype PDFExporter::activeCount() {
  return activeExporters().size();
}

bool PDFExporter::waitForAll(std::chrono::milliseconds patience) {
  const auto isIdle = [] { return activeExporters().isEmpty() && pagesLeftPrinting == 0; };
  const QDeadlineTimer deadline(patience);
  QEventLoop loop;
  QTimer clock;
  connect(&clock, &QTimer::timeout, &loop, [&] {
    if (isIdle() || deadline.hasExpired()) {
      loop.quit();
    }
  });
  clock.start(std::chrono::milliseconds(5));
  loop.exec();
  // After the application's own loop nobody else deletes what is to be deleted later.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return isIdle();
}

PDFExporter::PDFExporter(const QString& html, const QSizeF& pageSize,
                         const PdfCompletion& completion)
    : page_(profile_), html_(html), pageSize_(pageSize), completion_(completion) {}

void PDFExporter::begin(std::chrono::milliseconds patience) {
  // Queued, so that nothing is answered before start() has returned, nor from inside the page.
  connect(
      &page_, &QWebEnginePage::loadFinished, this,
      [this](bool isLoaded) {
        if (isLoaded) {
          fit();
        } else {
          fail(QStringLiteral("The document could not be loaded."));
        }
      },
      static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
  connect(
      &page_, &QWebEnginePage::renderProcessTerminated, this,
      [this] {
        // Nothing answers a print any more. Its page is kept for good: deleting it would end the
        // program even now.
        if (isPrinting_ && isFinished_ && !isLost_) {
          --pagesLeftPrinting;
        }
        isLost_ = true;
        fail(QStringLiteral("The process that draws the document ended."));
      },
      Qt::QueuedConnection);
  connect(&watchdog_, &QTimer::timeout, this,
          [this] { fail(QStringLiteral("Drawing the document took too long.")); });
  watchdog_.setSingleShot(true);
  watchdog_.start(patience);
  page_.setHtml(html_);
}

void PDFExporter::fit() {
  if (isFinished_) {
    return;
  }
  page_.runJavaScript(fittingScript(pageSize_), QWebEngineScript::ApplicationWorld,
                      [this](const QVariant& fitting) {
                        if (!isFinished_) {
                          print(fitting);
                        }
                      });
}

void PDFExporter::print(const QVariant& fitting) {
  const auto layout = fittedLayout(pageSize_, fitting);
  if (!layout) {
    fail(QStringLiteral("The document could not be laid out."));
    return;
  }
  isPrinting_ = true;
  page_.printToPdf([this](const QByteArray& bytes) { printed(bytes); }, *layout);
}

void PDFExporter::printed(const QByteArray& bytes) {
  isPrinting_ = false;
  if (isFinished_) {
    pagesLeftPrinting -= isLost_ ? 0 : 1;
    deleteLater();
  } else if (bytes.isEmpty()) {
    fail(QStringLiteral("The document could not be drawn."));
  } else {
    finish(bytes);
  }
}

void PDFExporter::fail(const QString& description) {
  finish(RenderFailure{description});
}

void PDFExporter::finish(const PdfResult& result) {
  if (isFinished_) {
    return;
  }
  isFinished_ = true;
  watchdog_.stop();
  // A page that is deleted while it prints takes the program with it: it goes when it has answered.
  const bool isLeftPrinting = isPrinting_;
  pagesLeftPrinting += isLeftPrinting && !isLost_ ? 1 : 0;
  std::exchange(completion_, {})(result);
  activeExporters().removeOne(this);
  if (!isLeftPrinting) {
    deleteLater();
  }
}

}  // namespace veyruna::exports
