#pragma once

#include <QScrollArea>

#include "export/output_tab.h"
#include "model/astronomy_model.h"

class QDialog;
class QPushButton;

namespace veyruna::ui {

class DateSection;
class LocationSection;
class TimeSection;

/// The inputs, top to bottom: place, date, time, the calculation and the exports.
class SidebarView final : public QScrollArea {
  Q_OBJECT

 public:
  explicit SidebarView(model::AstronomyModel& model, QWidget* parent = nullptr);

  /// Fits the buttons to the tab that is shown.
  void setTab(exports::OutputTab tab);

  /// Takes over what is being typed anywhere in the sidebar.
  void commit();

  /// As wide as the widest control asks, with room for the scroll bar of a short window.
  [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void calculatePressed();  ///< it is being seen to
  void mapRequested();
  void nativeExportRequested();
  void pdfExportRequested();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* makeExportArea();
  void open(QDialog* sheet);

  model::AstronomyModel& model_;
  LocationSection* location_;
  DateSection* date_;
  TimeSection* time_;
  QPushButton* nativeExport_ = nullptr;
};

}  // namespace veyruna::ui
