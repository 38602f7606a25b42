// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What of replacing a file asks for users and other processes: file_owner_posix.cpp, and file_owner_wasi.cpp
// for a system that has neither. TargetLock (replace_file_platform.h) is there too.
#pragma once

#include <sys/stat.h>

#include <string>

namespace utils_internal {

// Whether the owner of the file may write it; where files have no owners, whether anybody may.
bool MayOwnerWrite(const struct stat& file);

// Takes over the mode and the owner of the old file; false when the mode cannot be had.
bool CopyPermissions(int file, const struct stat& old);

// The folder of a path, with its separator; "" for one that shows none.
inline std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

}  // namespace utils_internal
