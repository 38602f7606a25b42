// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <vector>

namespace utils_internal {

// What one line held, beside the text that was copied.
struct LineInfo {
  int bytes;      // taken from the file, line end included; 0: there was no further line. At most INT_MAX.
  int first;      // the first byte, 0 to 255, or -1 for a blank line
  unsigned kept;  // bytes copied
};

// Lines of a stream, through a buffer of its own. The stream stays the caller's. A byte-order mark at the
// start is skipped, and is no part of the first line. A read error ends the reading: the line that it fell
// into is not handed out, nor anything behind it.
class LineReader {
 public:
  explicit LineReader(std::FILE* file);

  // Copies at most `limit` bytes of the next line, without its end (LF or CR LF), and passes over the rest of
  // it.
  LineInfo Next(char* out, unsigned limit);

  bool HasFailed() const { return m_Failed; }

 private:
  bool Fill();

  std::FILE* m_File;
  std::vector<char> m_Buffer;
  std::size_t m_Begin = 0, m_End = 0;  // what is read and not yet used
  bool m_Failed = false;               // nothing more can be read
};

}  // namespace utils_internal
