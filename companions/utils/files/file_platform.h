// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What utils asks of the file system beyond C streams: file_posix.cpp and file_windows.cpp. Paths are UTF-8
// on both. Nothing here prints; failure is the return value.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace utils_internal {

enum class PathKind {
  kNone,     // nothing there
  kUnknown,  // the system does not tell
  kFile,     // a regular file
  kFolder,
  kOther,  // a device, a pipe, a socket
};

// What the path names; a symbolic link counts as what it leads to.
PathKind GetPathKind(const std::string& path);

// The names in a folder, "." and ".." among them where the system has them; none for what cannot be read.
std::vector<std::string> ListNames(const std::string& folder);

// The path from the root of the system; `path` as it is where the system knows no current folder.
std::string MakeAbsolute(const std::string& path);

// Where the environment wants files of a moment, and the system's own place otherwise; it may be missing.
std::string FindTemporaryFolder();

// Makes an empty file; a link is followed. False when something is there already, and when none can be made.
bool MakeEmptyFile(const std::string& path);

// Makes one folder, whose parent must exist. True also when the folder is there already.
bool MakeFolder(const std::string& path);

// True for the characters that separate the pieces of a path on this system.
bool IsSeparator(char c);

// Length of an open file in bytes, -1 when it has none. Buffered output is not counted.
long long GetStreamLength(std::FILE* file);

}  // namespace utils_internal
