// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/files/file_owner_posix.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "companions/utils/files/replace_file_platform.h"

namespace utils_internal {

bool MayOwnerWrite(const struct stat& file) { return (file.st_mode & S_IWUSR) != 0; }

// Giving the file away may be refused, which is no failure: then the user who saves owns the file.
bool CopyPermissions(int file, const struct stat& old) {
  struct stat now;
  mode_t mode = old.st_mode & 07777;
  if (fchown(file, old.st_uid, old.st_gid) != 0 && fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0) {
    mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
  }
  // A file system whose files all have one mode refuses to change it.
  return fchmod(file, mode) == 0 || (fstat(file, &now) == 0 && (now.st_mode & 07777) == mode);
}

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
