#pragma once

#include <QAccessibleInterface>
#include <QPointer>
#include <optional>

#include "ui/charts/chart_view.h"

namespace veyruna::ui {

/// A mark of a chart as a screen reader meets it: its name first, then sign and altitude or the
/// rating. Pressing it selects a body.
class AccessibleMark final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleMark(ChartView& chart, const MarkKey& key) : chart_(&chart), key_(key) {}

  [[nodiscard]] bool isValid() const override;
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* parent() const override;
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
    return -1;
  }
  // A point of the screen, as Qt hands it in.
  [[nodiscard]] QAccessibleInterface* childAt(
      int /*x*/, int /*y*/) const override {  // NOLINT(bugprone-easily-swappable-parameters)
    return nullptr;
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  [[nodiscard]] QRect rect() const override;
  [[nodiscard]] QAccessible::Role role() const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;

  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& name) override;
  [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override {
    return {};
  }

  [[nodiscard]] const MarkKey& key() const { return key_; }

 private:
  struct Shown {
    ChartView& chart;
    const charts::ChartMark& mark;
  };
  /// Nothing where it is not shown now.
  [[nodiscard]] std::optional<Shown> shown() const;

  QPointer<ChartView> chart_;
  MarkKey key_;
};

}  // namespace veyruna::ui
