#pragma once

#include <QObject>
#include <cstddef>
#include <optional>
#include <utility>

namespace veyruna::ui {

/// The body that a person has selected in a window: marked on its charts and in its positions list
/// until it is let go, whatever is calculated meanwhile.
class ChartSelection final : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// Its row in the positions list.
  [[nodiscard]] std::optional<std::size_t> body() const { return body_; }

  void setBody(std::optional<std::size_t> body) {
    if (std::exchange(body_, body) != body) {
      Q_EMIT changed();
    }
  }

 Q_SIGNALS:
  void changed();

 private:
  std::optional<std::size_t> body_;
};

}  // namespace veyruna::ui
