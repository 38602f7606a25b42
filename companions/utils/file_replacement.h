// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdarg>
#include <cstdio>
#include <memory>
#include <string>

#include "utils/debug.h"

namespace utils_internal {

// A new content for a file, which replaces the old one whole or not at all. Until Commit succeeds the target
// is as it was; a replacement that is destroyed without it removes what it wrote and prints one line.
class FileReplacement {
 public:
  // Null when `path` names anything but a regular file (through links), when the file is write-protected, or
  // when nothing can be created beside it.
  static std::unique_ptr<FileReplacement> Create(const std::string& path);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  bool WriteFormatted(const char* format, std::va_list arguments) UTILS_PRINTF_FORMAT(2, 0);

  // Puts the new content in place. False, with one line, when that or any write before it failed. Call it
  // once.
  bool Commit();

 private:
  FileReplacement(std::string path, std::string target)
      : m_Path(std::move(path)), m_Target(std::move(target)) {}
  void GiveUp();

  std::string m_Path;    // as the caller knows it, for the message
  std::string m_Target;  // what is replaced: behind all links
  std::string m_NewPath;
  std::FILE* m_File = nullptr;  // null once the replacement is decided
  bool m_Failed = false;
};

}  // namespace utils_internal
