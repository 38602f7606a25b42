// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include <cstdio>

#include "companions/utils/file_platform.h"
#include "utils/file.h"

namespace utils_internal {

PathKind GetPathKind(const std::string& path) {
  struct stat info;
  if (stat(path.c_str(), &info) != 0) return PathKind::kNone;
  if (S_ISREG(info.st_mode)) return PathKind::kFile;
  return S_ISDIR(info.st_mode) ? PathKind::kFolder : PathKind::kOther;
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
