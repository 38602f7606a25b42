// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "companions/utils/files/absence_posix.h"
#include "companions/utils/files/file_platform.h"
#include "companions/utils/files/replace_file_platform.h"
#include "utils/file.h"

namespace utils_internal {

PathKind GetPathKind(const std::string& path) {
  struct stat info;
  if (stat(path.c_str(), &info) != 0) return IsAbsence(errno) ? PathKind::kNone : PathKind::kUnknown;
  if (S_ISREG(info.st_mode)) return PathKind::kFile;
  return S_ISDIR(info.st_mode) ? PathKind::kFolder : PathKind::kOther;
}

std::vector<std::string> ListNames(const std::string& folder) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> opened(opendir(folder.c_str()), closedir);
  if (!opened) return names;
  while (const dirent* const entry = readdir(opened.get())) names.emplace_back(entry->d_name);
  return names;
}

std::string MakeAbsolute(const std::string& path) {
  char folder[4096];
  if (path.starts_with('/') || !getcwd(folder, sizeof folder)) return path;
  return std::string(folder) + (std::string_view(folder) == "/" ? "" : "/") + path;
}

std::string FindTemporaryFolder() {
  for (const char* const name : {"TMPDIR", "TMP", "TEMP", "TEMPDIR"}) {
    const char* const folder = std::getenv(name);
    if (folder && *folder) return folder;
  }
  return "/tmp";
}

bool MakeEmptyFile(const std::string& path) {
  std::string target, reason;
  if (!FollowLinks(path, target, reason)) return false;
  const int file = open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  return file >= 0 && close(file) == 0;
}

bool MakeFolder(const std::string& path) {
  return mkdir(path.c_str(), 0777) == 0 || GetPathKind(path) == PathKind::kFolder;
}

bool IsSeparator(char c) { return c == '/'; }

long long GetStreamLength(std::FILE* file) {
  struct stat info;
  if (fstat(fileno(file), &info) != 0) return -1;
  return info.st_size;
}

}  // namespace utils_internal

std::FILE* mm_fopen(const char* path, const char* mode) {
  return path && mode ? std::fopen(path, mode) : nullptr;
}
