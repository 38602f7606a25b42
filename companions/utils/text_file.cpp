// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>

#include "companions/utils/file_platform.h"
#include "companions/utils/file_replacement.h"
#include "companions/utils/line_reader.h"
#include "utils/file.h"

using utils_internal::FileReplacement;
using utils_internal::LineInfo;
using utils_internal::LineReader;

// Open for reading: `input` and `lines`. Open for writing: `output`. Closed: none of them.
struct MTextFile::State {
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  const bool comments;
  const char comment, end;
  const unsigned lineLimit;  // most characters of a line
  std::unique_ptr<std::FILE, Closer> input;
  std::unique_ptr<LineReader> lines;
  std::unique_ptr<FileReplacement> output;

  void EndReading() {
    lines.reset();
    input.reset();
  }

  // The next line that is no comment. No bytes at the end of the file, and from the end character on.
  LineInfo Next(char* out, unsigned limit) {
    for (;;) {
      const LineInfo none{0, -1, 0};
      const LineInfo line = lines ? lines->Next(out, std::min(limit, lineLimit)) : none;
      if (line.bytes == 0 || !comments || line.first < 0) return line;
      if (line.first == static_cast<unsigned char>(end)) {
        EndReading();
        return none;
      }
      if (line.first != static_cast<unsigned char>(comment)) return line;
    }
  }
};

MTextFile::MTextFile(bool comments, char comment, char end, unsigned lineSize)
    : m_State(new State{comments, comment, end, lineSize > 0 ? lineSize - 1 : 0, nullptr, nullptr, nullptr}) {
}

// What is still being written is given up by the replacement's own destructor.
MTextFile::~MTextFile() = default;

bool MTextFile::Open(const char* path, bool write) {
  Close();
  if (!path || !*path) return false;
  if (write) {
    m_State->output = FileReplacement::Create(path);
    return m_State->output != nullptr;
  }
  if (utils_internal::GetPathKind(path) == utils_internal::PathKind::kFolder) return false;
  m_State->input.reset(mm_fopen(path, "rb"));
  if (!m_State->input) return false;
  m_State->lines = std::make_unique<LineReader>(m_State->input.get());
  return true;
}

int MTextFile::Readln(char* buffer, unsigned size) {
  const LineInfo line = m_State->Next(buffer, size > 0 ? size - 1 : 0);
  if (size > 0) buffer[line.bytes > 0 ? line.kept : 0] = '\0';
  return line.bytes;
}

bool MTextFile::Readln(int& value) {
  char text[64];
  if (Readln(text, sizeof text) == 0) return false;
  char* end;
  errno = 0;
  const long number = std::strtol(text, &end, 10);
  if (end == text || errno != 0 || number < INT_MIN || number > INT_MAX) return false;
  value = static_cast<int>(number);
  return true;
}

bool MTextFile::Write(const char* format, ...) {
  if (!m_State->output || !format) return false;
  std::va_list arguments;
  va_start(arguments, format);
  const bool written = m_State->output->WriteFormatted(format, arguments);
  va_end(arguments);
  return written;
}

bool MTextFile::Close() {
  m_State->EndReading();
  const std::unique_ptr<FileReplacement> output = std::move(m_State->output);
  return !output || output->Commit();
}
