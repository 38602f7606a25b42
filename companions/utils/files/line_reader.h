// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <vector>

#include "utils/whole_file.h"

namespace utils_internal {

// What one line held, beside the text that was copied.
struct LineInfo {
  int bytes;      // taken from the file, line end included; 0: there was no further line. At most INT_MAX.
  int first;      // the first byte, 0 to 255, or -1 for a blank line
  unsigned kept;  // bytes copied
};

// Lines of a stream, through a buffer of its own. The stream stays the caller's. A byte-order mark at the
// start is skipped, and is no part of the first line. A read error ends the reading: the line that it fell
// into is not handed out, nor anything behind it; a stream that goes on beyond the bound is such an error.
class LineReader {
 public:
  explicit LineReader(std::FILE* file);

  // Copies at most `limit` bytes of the next line, without its end (LF or CR LF), and passes over the rest of
  // it.
  LineInfo Next(char* out, unsigned limit);

  bool HasFailed() const { return m_Failed; }

  // Whether that was because the stream has more than kMostFileBytes (utils/whole_file.h).
  bool IsTooLong() const { return m_Taken > kMostFileBytes; }

 private:
  bool Fill();

  std::FILE* m_File;
  std::vector<char> m_Buffer;
  std::size_t m_Begin = 0, m_End = 0;  // what is read and not yet used
  unsigned m_Taken = 0;                // bytes that the stream gave
  bool m_Failed = false;               // nothing more can be read
};

}  // namespace utils_internal
