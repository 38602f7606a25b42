// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include "companions/utils/files/absence_posix.h"
#include "companions/utils/files/file_owner_posix.h"
#include "companions/utils/files/replace_file_platform.h"

namespace utils_internal {
namespace {

std::string GetSystemReason() { return std::generic_category().message(errno); }

// Where a link leads, "" when `path` is no link or nothing. False when the system does not tell. What fills
// the buffer is longer than any name that can be opened, and need not be whole.
bool ReadLink(const std::string& path, std::string& to) {
  char buffer[4096];
  const ssize_t length = readlink(path.c_str(), buffer, sizeof buffer);
  if (length <= 0) {
    to.clear();
    return errno == EINVAL || IsAbsence(errno);
  }
  to.assign(buffer, static_cast<std::size_t>(length));
  return true;
}

}  // namespace

bool FollowLinks(const std::string& path, std::string& target, std::string& reason) {
  constexpr int kMostLinks = 40;
  std::string to;
  target = path;
  for (int i = 0; i < kMostLinks; ++i) {
    if (!ReadLink(target, to)) {
      reason = GetSystemReason();
      return false;
    }
    if (to.empty()) return true;
    target = to.front() == '/' ? to : FolderOf(target) + to;
  }
  reason = kLinksInACircle;
  return false;
}

// The mode is asked as well: nothing is protected from the system's administrator.
bool MayBeReplaced(const std::string& path, std::string& reason) {
  struct stat info;
  if (stat(path.c_str(), &info) != 0) {
    if (IsAbsence(errno)) return true;
    reason = GetSystemReason();
  } else if (!S_ISREG(info.st_mode)) {
    reason = kNoRegularFile;
  } else if (!MayOwnerWrite(info)) {
    reason = kWriteProtected;
  } else if (access(path.c_str(), W_OK) == 0) {
    return true;
  } else if (errno == EACCES || errno == EROFS) {
    reason = kWriteProtected;
  } else {
    reason = GetSystemReason();
  }
  return false;
}

std::FILE* CreateBeside(const std::string& target, std::string& path, std::string& reason) {
  static std::atomic<unsigned> s_Counter{0};  // any thread
  // Names left behind by a process of the same number are passed over.
  constexpr int kTries = 10000;
  struct stat old;
  const bool isNew = stat(target.c_str(), &old) != 0;
  if (isNew && !IsAbsence(errno)) {
    reason = GetSystemReason();
    return nullptr;
  }
  int file = -1;
  for (int i = 0; i < kTries && file < 0; ++i) {
    path = target + "." + std::to_string(getpid()) + "-" + std::to_string(s_Counter++) + ".tmp";
    // An existing target may be private: nobody else reads the new file before it has the target's mode.
    file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, isNew ? 0666 : 0600);
    if (file < 0 && errno != EEXIST) break;
  }
  if (file >= 0) {
    std::FILE* const stream = isNew || CopyPermissions(file, old) ? fdopen(file, "wb") : nullptr;
    if (stream) return stream;
    const int code = errno;
    close(file);
    unlink(path.c_str());
    errno = code;
  }
  reason = GetSystemReason();
  return nullptr;
}

bool FlushToDisk(std::FILE* file) {
  if (std::fflush(file) != 0) return false;
  // A file system without this service (EINVAL) has nothing to hold back.
  return fsync(fileno(file)) == 0 || errno == EINVAL;
}

bool MoveOver(const std::string& path, const std::string& target, std::string& reason) {
  std::string folder = FolderOf(target);
  if (std::rename(path.c_str(), target.c_str()) != 0) {
    reason = GetSystemReason();
    return false;
  }
  // The new name itself reaches the disk with its folder. The file is in place whether or not that works.
  const int handle = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle >= 0) {
    (void)fsync(handle);
    close(handle);
  }
  return true;
}

void RemoveFile(const std::string& path) noexcept { unlink(path.c_str()); }

}  // namespace utils_internal
