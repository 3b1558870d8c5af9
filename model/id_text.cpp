#include "model/id_text.h"

namespace veyruna::model {

QString canonicalText(const QUuid& id) {
  return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> idOf(const QString& text) {
  constexpr qsizetype length = 36;
  const QUuid id = QUuid::fromString(text);
  // QUuid reads leniently; what it read must be what stands there.
  return text.size() == length && canonicalText(id) == text.toUpper() ? std::optional(id)
                                                                      : std::nullopt;
}

}  // namespace veyruna::model
