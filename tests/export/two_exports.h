#pragma once

#include <array>
#include <optional>
#include <variant>

#include "export/document_exporter.h"
#include "tests/model/observed.h"
#include "tests/support/pdf_dates.h"

namespace veyruna::tests {

/// The star maps of two moments in one form, and the exporter that saves them.
class TwoExports {
 public:
  explicit TwoExports(documents::Form form)
      : form_(form), contents_{contentOf(first_), contentOf(second_)} {}

  /// Saves one of them; why not, in plain words.
  [[nodiscard]] std::optional<QString> save(int which, const QString& path) const {
    std::optional<QString> outcome = QStringLiteral("never told");
    const auto told = [&outcome](const std::optional<QString>& error) { outcome = error; };
    std::visit([&](const auto& content) { exporter_.save(content, path, told); },
               contents_.at(static_cast<std::size_t>(which)));
    return outcome;
  }

  /// Whether these are the bytes of one of them, whole.
  [[nodiscard]] bool isOne(const QByteArray& bytes) const {
    return bytes == bytesOfOne(0) || bytes == bytesOfOne(1) ||
           (form_ == documents::Form::pdf && bytes.startsWith("%PDF-") &&
            bytes.endsWith("%%EOF\n") &&
            (withoutDates(bytes) == withoutDates(bytesOfOne(0)) ||
             withoutDates(bytes) == withoutDates(bytesOfOne(1))));
  }

 private:
  using Content = std::variant<exports::NativeExport, exports::SheetExport>;

  [[nodiscard]] Content contentOf(const ObservedModel& world) const {
    constexpr auto tab = exports::OutputTab::starMap;
    if (form_ == documents::Form::svg) {
      return *exports::nativeExport(world.model, tab);
    }
    return *exports::sheetExport(world.model, tab, form_);
  }

  [[nodiscard]] QByteArray bytesOfOne(std::size_t which) const {
    if (const auto* const native = std::get_if<exports::NativeExport>(&contents_.at(which))) {
      return native->text.toUtf8();
    }
    return exports::bytesOf(std::get<exports::SheetExport>(contents_.at(which)), form_);
  }

  documents::Form form_;
  ObservedModel first_{referenceCases().at(0)};
  ObservedModel second_{referenceCases().at(1)};
  std::array<Content, 2> contents_;
  exports::DocumentExporter exporter_{first_.model, [](const QString& /*line*/) {}};
};

}  // namespace veyruna::tests
