#include "export/whole_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QUuid>
#include <cerrno>
#include <cstdio>

namespace veyruna::exports {

namespace {

constexpr qsizetype longestNameBytes = 255;
/// What QSaveFile appends to the name while it replaces a file.
constexpr qsizetype suffixBytes = 7;

std::optional<QString> writeUnderItsName(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
    return file.errorString();
  }
  // A disk that runs full takes a part first, without an error; the rest is then refused. With a
  // buffer between, commit() would put the part in the file's place.
  for (qsizetype written = 0; written < bytes.size();) {
    const qint64 taken = file.write(bytes.constData() + written, bytes.size() - written);
    if (taken <= 0) {
      return file.errorString();
    }
    written += taken;
  }
  if (!file.commit()) {
    return file.errorString();
  }
  return std::nullopt;
}

/// For names that leave no room for a suffix: written under a short name beside, then renamed.
std::optional<QString> writeThenRename(const QString& path, const QByteArray& bytes) {
  const QFileInfo existing(path);
  if (existing.exists() && !existing.isWritable()) {
    return qt_error_string(EACCES);
  }
  const QString target = existing.exists() ? existing.canonicalFilePath() : path;
  const QString beside = QFileInfo(target).path() + QStringLiteral("/.veyruna-") +
                         QUuid::createUuid().toString(QUuid::WithoutBraces);
  if (auto error = writeUnderItsName(beside, bytes)) {
    return error;
  }
  if (std::rename(QFile::encodeName(beside).constData(), QFile::encodeName(target).constData()) !=
      0) {
    const QString error = qt_error_string(errno);
    QFile::remove(beside);
    return error;
  }
  return std::nullopt;
}

}  // namespace

std::optional<QString> writeWholeFile(const QString& path, const QByteArray& bytes) {
  const qsizetype nameBytes = QFile::encodeName(QFileInfo(path).fileName()).size();
  return nameBytes + suffixBytes > longestNameBytes ? writeThenRename(path, bytes)
                                                    : writeUnderItsName(path, bytes);
}

}  // namespace veyruna::exports
