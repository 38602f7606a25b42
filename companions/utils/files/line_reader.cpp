// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/files/line_reader.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace utils_internal {
namespace {

constexpr std::size_t kBufferSize = 16384;
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

}  // namespace

LineReader::LineReader(std::FILE* file) : m_File(file), m_Buffer(kBufferSize) {
  if (Fill() && m_End >= 3 && std::memcmp(m_Buffer.data(), kByteOrderMark, 3) == 0) m_Begin = 3;
}

bool LineReader::Fill() {
  m_Begin = m_End = 0;
  // What follows a failed read may have lost bytes in front of it, which would make one line of two.
  if (m_Failed) return false;
  m_End = std::fread(m_Buffer.data(), 1, m_Buffer.size(), m_File);
  m_Taken += static_cast<unsigned>(m_End);
  m_Failed = std::ferror(m_File) != 0 || IsTooLong();
  if (IsTooLong()) m_End = 0;
  return m_End > 0;
}

LineInfo LineReader::Next(char* out, unsigned limit) {
  LineInfo line{0, -1, 0};
  unsigned long long length = 0;  // bytes before the LF
  bool ended = false;
  char last = 0;
  while (!ended && (m_Begin < m_End || Fill())) {
    const char* begin = m_Buffer.data() + m_Begin;
    const void* feed = std::memchr(begin, '\n', m_End - m_Begin);
    ended = feed != nullptr;
    const std::size_t count =
        ended ? static_cast<std::size_t>(static_cast<const char*>(feed) - begin) : m_End - m_Begin;
    if (count > 0) {
      if (length == 0) line.first = static_cast<unsigned char>(*begin);
      last = begin[count - 1];
      const std::size_t copied = std::min<std::size_t>(count, limit - line.kept);
      std::copy_n(begin, copied, out + line.kept);
      line.kept += static_cast<unsigned>(copied);
    }
    length += count;
    m_Begin += count + (ended ? 1 : 0);
  }
  if (!ended && m_Failed) return {0, -1, 0};
  line.bytes = static_cast<int>(std::min<unsigned long long>(length + (ended ? 1 : 0), INT_MAX));
  if (ended && length > 0 && last == '\r') {
    --length;
    if (length == 0) line.first = -1;
    line.kept = static_cast<unsigned>(std::min<unsigned long long>(line.kept, length));
  }
  return line;
}

}  // namespace utils_internal
