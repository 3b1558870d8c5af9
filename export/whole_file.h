#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace veyruna::exports {

/// Puts the bytes at the path, replacing the file that is there: whole, or not at all. Returns
/// nothing where that was done, else why it was not, in plain words; the old file is then as it
/// was.
std::optional<QString> writeWholeFile(const QString& path, const QByteArray& bytes);

}  // namespace veyruna::exports
