// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <string_view>

#include "companions/utils/files/file_platform.h"
#include "companions/utils/files/line_reader.h"
#include "utils/characters.h"
#include "utils/contained_call.h"
#include "utils/file.h"
#include "utils/numbers.h"
#include "utils/replace_file.h"
#include "utils/whole_file.h"

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
  bool readFailed = false;
  FileReplacement output;
  std::string inputPath, outputPath;  // as the caller knows them, for messages

  void EndReading() {
    lines.reset();
    input.reset();
  }

  void TellFailure() {
    if (lines->IsTooLong() && !readFailed) PrintDebugString("File %s %s\n", inputPath.c_str(), kTooManyBytes);
    readFailed = true;
  }

  void GiveUp() {
    output.Discard();
    PrintDebugString("File %s could not be written and is left as it was\n", outputPath.c_str());
  }

  // The next line that is no comment. No bytes at the end of the file, and from the end character on.
  LineInfo Next(char* out, unsigned limit) {
    for (;;) {
      const LineInfo none{0, -1, 0};
      const LineInfo line = lines ? lines->Next(out, std::min(limit, lineLimit)) : none;
      if (line.bytes == 0 && lines && lines->HasFailed()) TellFailure();
      if (line.bytes == 0 || !comments || line.first < 0) return line;
      if (line.first == static_cast<unsigned char>(end)) {
        EndReading();
        return none;
      }
      if (line.first != static_cast<unsigned char>(comment)) return line;
    }
  }
};

namespace {

bool WriteFormatted(FileReplacement& output, const char* format, std::va_list arguments)
    UTILS_PRINTF_FORMAT(2, 0);

// A text of any length; only a long one is made twice.
bool WriteFormatted(FileReplacement& output, const char* format, std::va_list arguments) {
  char line[512];
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(line, sizeof line, format, arguments);
  std::string text;
  if (length >= static_cast<int>(sizeof line)) {
    text.resize(static_cast<unsigned>(length));
    std::vsnprintf(text.data(), text.size() + 1, format, again);
  }
  va_end(again);
  if (length < 0) return output.Fail("its text cannot be formatted");
  return output.Write(text.empty() ? std::string_view(line, static_cast<unsigned>(length)) : text);
}

}  // namespace

MTextFile::MTextFile(bool comments, char comment, char end, unsigned lineSize)
    : m_State(new State{
          comments, comment, end, lineSize > 0 ? lineSize - 1 : 0, nullptr, nullptr, false, {}, {}, {}}) {}

MTextFile::~MTextFile() {
  if (m_State->output.IsOpen()) m_State->GiveUp();
}

bool MTextFile::Open(const char* path, bool write) {
  Close();
  m_State->readFailed = false;
  if (!path || !*path) return false;
  if (write) {
    m_State->outputPath = path;
    return m_State->output.Open(path);
  }
  if (utils_internal::GetPathKind(path) == utils_internal::PathKind::kFolder) return false;
  m_State->inputPath = path;
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

bool MTextFile::HasReadFailed() const { return m_State->readFailed; }

bool MTextFile::Readln(int& value) {
  char text[64];
  if (Readln(text, sizeof text) == 0) return false;
  std::string_view rest = text;
  SkipWhiteSpace(rest);
  return TakeNumber(rest, value);
}

bool MTextFile::Write(const char* format, ...) {
  if (!m_State->output.IsOpen() || !format) return false;
  std::va_list arguments;
  va_start(arguments, format);
  bool written = false;
  if (!RunsThrough([&] { written = WriteFormatted(m_State->output, format, arguments); })) {
    m_State->output.Fail("no memory");
  }
  va_end(arguments);
  return written;
}

bool MTextFile::Close() {
  m_State->EndReading();
  if (!m_State->output.IsOpen()) return true;
  if (m_State->output.Commit()) return true;
  m_State->GiveUp();
  return false;
}
