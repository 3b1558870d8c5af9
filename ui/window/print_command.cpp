#include "ui/window/print_command.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "drawing/svg_reader.h"
#include "ui/window/changed_inputs.h"
#include "ui/window/export_notice.h"
#include "ui/window/print_sheet.h"

namespace veyruna::ui {

PrintCommand::PrintCommand(const model::AstronomyModel& model, ExportNotice& notice,
                           QWidget& window)
    : QObject(&window), model_(model), exporter_(model), notice_(notice), window_(window) {}

void PrintCommand::print(exports::OutputTab tab) {
  if (isAsking_) {
    return;  // or its question would open over the one before
  }
  const auto content = exporter_.sheet(tab, documents::Form::pdf);
  if (!content) {
    return;
  }
  const Order order{*content, QFileInfo(content->proposedName).completeBaseName(),
                    changedInputsRemark(model_)};
  if (QStandardPaths::findExecutable(QStringLiteral("lp")).isEmpty()) {
    fail(tr("this computer has no print command (lp)"));
    return;
  }
  isAsking_ = true;
  notice_.showProgress(tr("Looking for printers …"));  // over a network that may take a while
  run(QStringLiteral("lpstat"), {QStringLiteral("-e")}, {},
      [this, order](const QString& names, const QString& failure) {
        const QStringList printers = names.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        if (printers.isEmpty()) {
          isAsking_ = false;
          fail(failure.isEmpty() ? tr("no printer is set up") : failure);
          return;
        }
        run(QStringLiteral("lpstat"), {QStringLiteral("-d")}, {},
            [this, order, printers](const QString& line, const QString& /*failure*/) {
              // "system default destination: NAME", or that there is none.
              askForPrinter(order, printers, line.section(QStringLiteral(": "), 1).trimmed());
            });
      });
}

void PrintCommand::askForPrinter(const Order& order, const QStringList& printers,
                                 const QString& usual) {
  notice_.clear();
  auto* const sheet = new PrintSheet(printers, usual, &window_);
  connect(sheet, &QDialog::finished, this, [this] { isAsking_ = false; });
  connect(sheet, &QDialog::accepted, this,
          [this, sheet, order] { render(order, sheet->printer(), sheet->copies()); });
  sheet->open();
}

void PrintCommand::render(const Order& order, const QString& printer, int copies) {
  notice_.showProgress(tr("Printing %1 …").arg(order.title));
  try {
    hand(exports::pdfOf(order.content), order, printer, copies);
  } catch (const drawing::PictureError& error) {
    fail(QString::fromUtf8(error.what()));
  }
}

void PrintCommand::hand(const QByteArray& pdf, const Order& order, const QString& printer,
                        int copies) {
  // The pages are of the documents' own sizes; the printer fits them to its paper.
  run(QStringLiteral("lp"),
      {QStringLiteral("-d"), printer, QStringLiteral("-n"), QString::number(copies),
       QStringLiteral("-t"), order.title, QStringLiteral("-o"), QStringLiteral("fit-to-page")},
      pdf, [this, order, printer](const QString& /*request*/, const QString& failure) {
        if (failure.isEmpty()) {
          notice_.showSuccess(joined(tr("Sent to %1: %2").arg(printer, order.title), order.remark));
        } else {
          fail(failure);
        }
      });
}

void PrintCommand::run(const QString& program, const QStringList& arguments,
                       const QByteArray& input, const Answered& answered) {
  // Of the program, not of the window: what was sent is printed though the window is closed, and
  // the program does not end before that.
  auto* const process = new QProcess(QCoreApplication::instance());
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, process, [process] {
    constexpr int patienceMilliseconds = 30'000;
    process->waitForFinished(patienceMilliseconds);
  });
  connect(process, &QProcess::finished, process, &QObject::deleteLater);
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));  // its answers are read
  process->setProcessEnvironment(environment);
  connect(process, &QProcess::errorOccurred, process, [=](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) {
      process->deleteLater();
    }
  });
  connect(process, &QProcess::errorOccurred, this, [=](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) {
      answered({}, tr("%1 cannot be started").arg(program));
    }
  });
  connect(process, &QProcess::finished, this, [=](int status, QProcess::ExitStatus ending) {
    const QString said = QString::fromLocal8Bit(process->readAllStandardError()).simplified();
    const bool isDone = status == 0 && ending == QProcess::NormalExit;
    const QString failure = said.isEmpty() ? tr("%1 failed").arg(program) : said;
    answered(QString::fromLocal8Bit(process->readAllStandardOutput()),
             isDone ? QString() : failure);
  });
  process->start(program, arguments);
  process->write(input);
  process->closeWriteChannel();
}

void PrintCommand::fail(const QString& reason) {
  notice_.showFailure(tr("Not printed: %1").arg(reason));
}

}  // namespace veyruna::ui
