// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "utils/api.h"

// A file whose bytes lie in memory as they stand on the disk: the system reads a page of them when it is
// first looked at, and may give it back. Opening reads nothing. Good for files of any size where the address
// space holds them: in a 32-bit process those of more than about 1 GB are refused.
//
// Whoever replaces the file by another one of the same name (utils/replace_file.h) does not touch what is
// mapped here; Windows refuses to replace it meanwhile. Nobody may shorten the file itself: as with a disk
// that fails, the system ends a process that looks at bytes which it cannot read.
//
// Not copyable. An object belongs to one thread; its bytes may be read by all.
class UTILS_API MappedFile {
 public:
  MappedFile() noexcept = default;
  ~MappedFile();  // as Close
  MappedFile(MappedFile&& other) noexcept;
  MappedFile& operator=(MappedFile&& other) noexcept;

  // Maps the file `path` (UTF-8) whole, for reading, in place of what was open. False for what is missing or
  // no regular file and when there is no room: nothing is open then, and `reason` says why, one line without
  // a name and without an end. An empty file can be opened.
  bool Open(const char* path, std::string& reason);
  void Close() noexcept;

  // Null when nothing is open or the file is empty. The object's, until it is closed.
  const unsigned char* GetBytes() const noexcept { return m_Bytes; }
  std::size_t GetSize() const noexcept { return m_Size; }

 private:
  const unsigned char* m_Bytes = nullptr;
  std::size_t m_Size = 0;
};
