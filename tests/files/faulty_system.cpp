// The linker lets the program call these in place of the system's (--wrap).
#include "tests/files/faulty_system.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using veyruna::tests::Faults;

Faults current;
int syncCount = 0;
bool isRenameBehindSync = false;

int refused(int reason) {
  errno = reason;
  return -1;
}

bool isHidden(std::string_view path) {
  return current.hidesProcesses && path.starts_with("/proc/");
}

}  // namespace

extern "C" {

int __real_open(const char* path, int flags, ...);
int __real_access(const char* path, int mode);
int __real_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags);
int __real_rename(const char* from, const char* to);
int __real_fsync(int file);
int __real_posix_fallocate(int file, off_t from, off_t size);
ssize_t __real_write(int file, const void* bytes, std::size_t count);

int __wrap_open(const char* path, int flags, ...);
int __wrap_access(const char* path, int mode);
int __wrap_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags);
int __wrap_rename(const char* from, const char* to);
int __wrap_fsync(int file);
int __wrap_posix_fallocate(int file, off_t from, off_t size);
ssize_t __wrap_write(int file, const void* bytes, std::size_t count);

int __wrap_open(const char* path, int flags, ...) {
  const bool isUnnamed = (flags & O_TMPFILE) == O_TMPFILE;
  mode_t mode = 0;
  if (isUnnamed || (flags & O_CREAT) != 0) {
    va_list rest;
    va_start(rest, flags);
    mode = va_arg(rest, mode_t);
    va_end(rest);
  }
  if (isUnnamed && current.needsNames) {
    return refused(EOPNOTSUPP);
  }
  // What nobody else may read is made where temporary files are, not in the folder.
  const bool isInFolder = mode != 0 && mode != 0600;
  if (isInFolder && current.folderRefuses != 0) {
    return refused(current.folderRefuses);
  }
  return __real_open(path, flags, mode);
}

int __wrap_access(const char* path, int mode) {
  return isHidden(path) ? refused(ENOENT) : __real_access(path, mode);
}

int __wrap_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
  return isHidden(from) ? refused(ENOENT) : __real_linkat(fromFolder, from, toFolder, to, flags);
}

int __wrap_rename(const char* from, const char* to) {
  isRenameBehindSync = syncCount > 0;
  return current.renameRefuses != 0 ? refused(current.renameRefuses) : __real_rename(from, to);
}

int __wrap_fsync(int file) {
  ++syncCount;
  struct stat status {};
  const bool isFolder = fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
  const int reason = isFolder ? current.folderSyncRefuses : current.syncRefuses;
  return reason != 0 ? refused(reason) : __real_fsync(file);
}

int __wrap_posix_fallocate(int file, off_t from, off_t size) {
  if (current.promisesNoRoom) {
    return EOPNOTSUPP;
  }
  if (current.room != Faults::everything && static_cast<std::size_t>(from + size) > current.room) {
    // As on a real disk, a part of the room may be taken by then.
    static_cast<void>(__real_posix_fallocate(file, 0, size - 1));
    return ENOSPC;
  }
  return __real_posix_fallocate(file, from, size);
}

ssize_t __wrap_write(int file, const void* bytes, std::size_t count) {
  struct stat status {};
  if (current.room == Faults::everything || fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) {
    return __real_write(file, bytes, count);
  }
  if (current.room == 0) {
    return refused(ENOSPC);
  }
  const ssize_t written = __real_write(file, bytes, std::min(count, current.room));
  current.room -= written > 0 ? static_cast<std::size_t>(written) : 0;
  return written;
}

}  // extern "C"

namespace veyruna::tests {

FaultySystem::FaultySystem(const Faults& faults) {
  current = faults;
  syncCount = 0;
  isRenameBehindSync = false;
}

FaultySystem::~FaultySystem() {
  current = {};
}

int FaultySystem::syncs() {
  return syncCount;
}

bool FaultySystem::syncedBeforeRename() {
  return isRenameBehindSync;
}

}  // namespace veyruna::tests
