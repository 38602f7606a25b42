// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What replacing a file asks of the system: replace_file_posix.cpp and replace_file_windows.cpp. Paths are
// UTF-8 on both. Where `reason` is given, a failure leaves one line there. Nothing here prints.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace utils_internal {

inline constexpr char kNoRegularFile[] = "it is no regular file";
inline constexpr char kWriteProtected[] = "it is write-protected";
inline constexpr char kLinksInACircle[] = "its links lead in a circle";

// The path that a symbolic link leads to, link by link, whether or not something is there; a path that is no
// link is returned as it is. False for a circle of links, and where the system does not tell.
bool FollowLinks(const std::string& path, std::string& target, std::string& reason);

// Whether the path names nothing yet, or a regular file that its owner and this process may write.
bool MayBeReplaced(const std::string& path, std::string& reason);

// Creates a file of a new name in the folder of `target` and opens it for writing. When `target` exists the
// new file takes its permissions and, where the system allows it, its owner. Null when it cannot be created;
// otherwise `path` receives the name, and closing and removing are the caller's.
std::FILE* CreateBeside(const std::string& target, std::string& path, std::string& reason);

// Writes out what the stream and the system hold back, so that it survives a power cut. False with errno set.
bool FlushToDisk(std::FILE* file);

// Renames `path` to `target`, in one step that leaves either the old file or the new one under that name.
bool MoveOver(const std::string& path, const std::string& target, std::string& reason);

void RemoveFile(const std::string& path) noexcept;

// While it lives, no other holder for the same target, in any process, goes past its constructor. At best:
// where the system cannot lock, or somebody holds the lock for seconds, it does nothing.
class TargetLock {
 public:
  explicit TargetLock(const std::string& target);
  ~TargetLock();
  TargetLock(const TargetLock&) = delete;
  TargetLock& operator=(const TargetLock&) = delete;

 private:
  std::intptr_t m_Handle;
};

}  // namespace utils_internal
