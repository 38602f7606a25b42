// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What utils asks of the file system beyond C streams: file_posix.cpp and file_windows.cpp. Paths are UTF-8
// on both. Nothing here prints; failure is the return value.
#pragma once

#include <cstdio>
#include <string>

namespace utils_internal {

enum class PathKind {
  kNone,  // nothing there, or not to be reached
  kFile,  // a regular file
  kFolder,
  kOther,  // a device, a pipe, a socket
};

// What the path names; a symbolic link counts as what it leads to.
PathKind GetPathKind(const std::string& path);

// Makes one folder, whose parent must exist. True also when the folder is there already.
bool MakeFolder(const std::string& path);

// True for the characters that separate the pieces of a path on this system.
bool IsSeparator(char c);

// The path that a symbolic link leads to, link by link, whether or not something is there; a path that is no
// link is returned as it is. "" for a circle of links.
std::string FollowLinks(const std::string& path);

// Length of an open file in bytes, -1 when it has none. Buffered output is not counted.
long long GetStreamLength(std::FILE* file);

// True for an existing file that this process may not write.
bool IsWriteProtected(const std::string& path);

// Creates a file of a new name in the folder of `target` and opens it for writing. When `target` exists the
// new file takes its permissions and, where the system allows it, its owner. Null when it cannot be created;
// otherwise `path` receives the name, and closing and removing are the caller's.
std::FILE* CreateBeside(const std::string& target, std::string& path);

// Writes out what the stream and the system hold back, so that it survives a power cut.
bool FlushToDisk(std::FILE* file);

// Renames `path` to `target`, in one step that leaves either the old file or the new one under that name.
bool MoveOver(const std::string& path, const std::string& target);

void RemoveFile(const std::string& path);

}  // namespace utils_internal
