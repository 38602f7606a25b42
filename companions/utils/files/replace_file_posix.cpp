// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <system_error>

#include "companions/utils/files/absence_posix.h"
#include "companions/utils/files/replace_file_platform.h"

namespace utils_internal {
namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

std::string GetSystemReason() { return std::generic_category().message(errno); }

// Where a link leads, "" when `path` is no link or nothing. False when the system does not tell.
bool ReadLink(const std::string& path, std::string& to) {
  char buffer[4096];
  const ssize_t length = readlink(path.c_str(), buffer, sizeof buffer);
  if (length == static_cast<ssize_t>(sizeof buffer)) errno = ENAMETOOLONG;
  if (length <= 0 || length == static_cast<ssize_t>(sizeof buffer)) {
    to.clear();
    return errno == EINVAL || IsAbsence(errno);
  }
  to.assign(buffer, static_cast<std::size_t>(length));
  return true;
}

// Takes over the mode and the owner of the old file; false when the mode cannot be had. Giving the file away
// may be refused, which is no failure: then the user who saves owns the file.
bool CopyPermissions(int file, struct stat old) {
  struct stat now;
  if (fchown(file, old.st_uid, old.st_gid) != 0 && fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0) {
    old.st_mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
  }
  // A file system whose files all have one mode refuses to change it.
  return fchmod(file, old.st_mode & 07777) == 0 || (fstat(file, &now) == 0 && now.st_mode == old.st_mode);
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
  } else if (!(info.st_mode & S_IWUSR)) {
    reason = kWriteProtected;
  } else if (access(path.c_str(), W_OK) == 0) {
    return true;
  } else {
    reason = errno == EACCES || errno == EROFS ? kWriteProtected : GetSystemReason();
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

// The folder is locked, for it stays the same while its files are replaced, and no file is left behind.
TargetLock::TargetLock(const std::string& target) {
  constexpr int kTries = 2000;
  constexpr timespec kPause = {0, 1000000};
  const std::string folder = FolderOf(target);
  const int file = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  m_Handle = file;
  for (int i = 0; file >= 0 && i < kTries; ++i) {
    if (flock(file, LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR)) return;
    nanosleep(&kPause, nullptr);
  }
}

TargetLock::~TargetLock() {
  if (m_Handle >= 0) close(static_cast<int>(m_Handle));
}

}  // namespace utils_internal
