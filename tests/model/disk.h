#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/mount.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "tests/model/printing.h"
#include "tests/support/as_nobody.h"

/// Files, users and file systems for the tests of what can go wrong with them.
namespace veyruna::tests {

/// Why the system refuses, as it says it in its language.
inline QString reasonOf(int error) {
  return QString::fromLocal8Bit(std::generic_category().message(error).c_str());
}

/// An empty folder of its own that everybody may read; gone at the end. In memory where the system
/// has such a place: every save waits for the disk, and the tests save thousands of times.
class Folder {
 public:
  Folder()
      : folder_((QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
                QStringLiteral("/veyruna-XXXXXX")) {
    if (!folder_.isValid() || chmod(QFile::encodeName(folder_.path()).constData(), 0755) != 0) {
      throw std::runtime_error("cannot make a folder for the test");
    }
  }
  [[nodiscard]] QString path() const { return folder_.path(); }
  [[nodiscard]] QString operator/(const QString& name) const { return folder_.filePath(name); }
  [[nodiscard]] QStringList names() const { return namesIn(path()); }

  static QStringList namesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
  }

 private:
  static inline const QString memory = QStringLiteral("/dev/shm");

  QTemporaryDir folder_;
};

inline QByteArray bytesIn(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw std::runtime_error("cannot read " + path.toStdString());
  }
  return file.readAll();
}

inline void writeBytes(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size() ||
      !file.flush()) {
    throw std::runtime_error("cannot write " + path.toStdString());
  }
}

inline void setMode(const QString& path, mode_t mode) {
  if (chmod(QFile::encodeName(path).constData(), mode) != 0) {
    throw std::runtime_error("cannot set the mode of " + path.toStdString());
  }
}

inline void giveToNobody(const QString& path) {
  constexpr uid_t nobody = 65534;
  if (geteuid() == 0 && chown(QFile::encodeName(path).constData(), nobody, nobody) != 0) {
    throw std::runtime_error("cannot give away " + path.toStdString());
  }
}

/// Whether the files of `folder` that begin like "locations.unreadable" hold these very bytes.
inline bool isKeptAside(const QString& folder, const QString& stem, const QByteArray& bytes) {
  for (const QString& name : Folder::namesIn(folder)) {
    if (name.startsWith(stem + QStringLiteral(".unreadable")) &&
        bytesIn(folder + QLatin1Char('/') + name) == bytes) {
      return true;
    }
  }
  return false;
}

/// A file system of 64 KiB in memory, mounted while it lives where that may be done.
class SmallFileSystem {
 public:
  SmallFileSystem()
      : isMounted_(mount("none", name().constData(), "tmpfs", 0, "size=64k,mode=777") == 0) {}
  SmallFileSystem(const SmallFileSystem&) = delete;
  SmallFileSystem& operator=(const SmallFileSystem&) = delete;
  ~SmallFileSystem() {
    if (isMounted_) {
      umount2(name().constData(), MNT_DETACH);
    }
  }
  [[nodiscard]] bool isMounted() const { return isMounted_; }
  [[nodiscard]] QString operator/(const QString& file) const { return folder_ / file; }
  [[nodiscard]] QString path() const { return folder_.path(); }

  /// Leaves room for so many blocks of 4 KiB.
  void fill(int blocksLeft) const {
    const int filler = open(fillerName().constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const QByteArray block(4096, 'x');
    int blocks = 0;
    while (write(filler, block.constData(), 4096) == 4096) {
      ++blocks;
    }
    const bool isCut = ftruncate(filler, off_t{4096} * (blocks - blocksLeft)) == 0;
    close(filler);
    if (!isCut) {
      throw std::runtime_error("cannot fill the small file system");
    }
  }
  void empty() const { QFile::remove(QFile::decodeName(fillerName())); }

  /// From now on nothing can be written.
  [[nodiscard]] bool makeReadOnly() const {
    return mount("none", name().constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
  }

 private:
  [[nodiscard]] QByteArray name() const { return QFile::encodeName(folder_.path()); }
  [[nodiscard]] QByteArray fillerName() const { return name() + "/filler"; }

  Folder folder_;
  bool isMounted_;
};

/// How often something is tried: a few times in every run of the tests, many in a long one.
inline int times(int few, int many) {
  return std::getenv("VEYRUNA_LONG") != nullptr ? many : few;
}

}  // namespace veyruna::tests
