#pragma once

#include <QObject>
#include <functional>

#include "export/document_exporter.h"
#include "model/astronomy_model.h"

namespace veyruna::ui {

class ExportNotice;

/// Prints what a tab shows: the pages its PDF has, handed to the platform's print command (`lp`)
/// for the printer the person chooses. Where nothing can be printed, the notice says why.
class PrintCommand final : public QObject {
  Q_OBJECT

 public:
  /// The question for the printer opens over `window`.
  PrintCommand(const model::AstronomyModel& model, ExportNotice& notice, QWidget& window);

  /// Does nothing for the location, or while it is still asking about an order before.
  void print(exports::OutputTab tab);

 private:
  struct Order {
    exports::SheetExport content;
    QString title;   ///< what the printer's list calls it
    QString remark;  ///< what is to be said with the result
  };
  using Answered = std::function<void(const QString& output, const QString& failure)>;

  void askForPrinter(const Order& order, const QStringList& printers, const QString& usual);
  void render(const Order& order, const QString& printer, int copies);
  void hand(const QByteArray& pdf, const Order& order, const QString& printer, int copies);
  void run(const QString& program, const QStringList& arguments, const QByteArray& input,
           const Answered& answered);
  void fail(const QString& reason);

  const model::AstronomyModel& model_;
  exports::DocumentExporter exporter_;
  ExportNotice& notice_;
  QWidget& window_;
  bool isAsking_ = false;  ///< which printers there are, or for which one
};

}  // namespace veyruna::ui
