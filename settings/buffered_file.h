// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstring>
#include <memory>

#include "utils/file.h"

namespace CommonInterfaces {

// Reads a file from its position on in large pieces: the records of a block are small, and there are many.
// While it is used the file stands somewhere behind what has been read.
class BufferedFile {
 public:
  explicit BufferedFile(MFile& file)
      : m_File(file),
        m_Size(static_cast<unsigned>(std::clamp(file.GetLength() - file.Tell(), 1, kMostHeld))),
        m_Bytes(new unsigned char[m_Size]) {}

  // As MFile::Read.
  unsigned Read(void* out, unsigned size) {
    if (size > m_End - m_Begin) return ReadPieces(static_cast<unsigned char*>(out), size);
    std::memcpy(out, m_Bytes.get() + m_Begin, size);
    m_Begin += size;
    return size;
  }

 private:
  static constexpr int kMostHeld = 65536;

  unsigned ReadPieces(unsigned char* to, unsigned size) {
    unsigned read = 0;
    while (read < size && (m_Begin < m_End || Fill())) {
      const unsigned piece = std::min(size - read, m_End - m_Begin);
      std::memcpy(to + read, m_Bytes.get() + m_Begin, piece);
      m_Begin += piece;
      read += piece;
    }
    return read;
  }

  bool Fill() {
    m_Begin = 0;
    m_End = m_File.Read(m_Bytes.get(), m_Size);
    return m_End > 0;
  }

  MFile& m_File;
  const unsigned m_Size;
  const std::unique_ptr<unsigned char[]> m_Bytes;
  unsigned m_Begin = 0, m_End = 0;  // bytes that wait
};

}  // namespace CommonInterfaces
