#pragma once

#include <QString>
#include <QUuid>
#include <optional>

/// Ids as they are written into files.
namespace veyruna::model {

/// The 36 characters of a UUID in upper case, without braces.
QString canonicalText(const QUuid& id);

/// The UUID of exactly 36 characters in either case; nothing for any other text.
std::optional<QUuid> idOf(const QString& text);

}  // namespace veyruna::model
