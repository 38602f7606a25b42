// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/string_table.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

#include "text/flat_table.h"
#include "text/string_line.h"
#include "text/string_pool.h"
#include "utils/debug.h"
#include "utils/file.h"
#include "utils/one_thread.h"
#include "utils/path.h"

namespace CommonInterfaces {

namespace {

constexpr char kFileName[] = "qxstrings.txt";
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr int kMostOfALine = 4095;  // characters; what is behind them is dropped

using StringMap = FlatTable<char*>;

// The last line with an identifier wins, so that a translator can override a text by appending a line.
void AddString(StringMap& strings, unsigned identifier, char* text) {
  if (strings.Insert(identifier, text)) return;
  const int id = static_cast<int>(identifier);
  const char* const earlier = strings.Find(identifier);
  if (std::strcmp(earlier, text) == 0) {
    PrintDebugString("Duplicated string, ID = %d\n", id);
  } else {
    PrintDebugString("Strings conflict, ID = %d\nOld: %s\nNew: %s\n", id, earlier, text);
  }
  strings.Replace(identifier, text);
}

// Reads the file, which said that it has `length` bytes, and returns how many came. One byte more is asked
// for: a file that has it was written to meanwhile.
int ReadBytes(MFile& file, char* bytes, int length) {
  auto count = static_cast<int>(file.Read(bytes, static_cast<unsigned>(length) + 1));
  if (file.HasReadFailed()) {
    PrintDebugString("File %s cannot be read to its end\n", kFileName);
    while (count > 0 && bytes[count - 1] != '\n') --count;  // the line that it fell into is none
  } else if (count > length) {
    PrintDebugString("File %s changed while it was read\n", kFileName);
  }
  return std::min(count, length);
}

// Cuts the bytes up in place. Every text moves to the front and keeps its zero byte behind it, so that it
// ends where its line ended at the latest; behind the last byte there is room for one.
void ReadStrings(char* bytes, int count, StringMap& strings) {
  StringPool pool(bytes, static_cast<unsigned>(count) + 1);
  char* const end = bytes + count;
  char* line = bytes + (count >= 3 && std::memcmp(bytes, kByteOrderMark, 3) == 0 ? 3 : 0);
  while (line < end) {
    auto* const feed = static_cast<char*>(std::memchr(line, '\n', static_cast<std::size_t>(end - line)));
    char* lineEnd = feed ? feed : end;
    if (feed && feed > line && feed[-1] == '\r') --lineEnd;
    if (lineEnd - line > kMostOfALine) lineEnd = line + kMostOfALine;
    *lineEnd = '\0';
    StringLine entry;
    if (ParseStringLine(line, entry)) AddString(strings, entry.identifier, pool.Add(entry.text));
    line = feed ? feed + 1 : end;
  }
}

}  // namespace

FlatTable<char*>* QX4Strings::s_Strings = nullptr;
char* QX4Strings::s_Pool = nullptr;
char* QX4Strings::s_PreviousPool = nullptr;
int QX4Strings::s_ProgramNameId = -1;
bool QX4Strings::s_Done = false;

QX4Strings::QX4Strings() {
  if (s_Pool || s_Done || Load()) return;
  // The entries of an unfinished change of language belong to another file: a failed reload leaves none of
  // them.
  if (s_Strings) s_Strings->Clear();
  PrintDebugString("File %s not found\n", kFileName);
}

bool QX4Strings::Load() {
  const ChangesObject use(&s_Strings, "QX4Strings");
  const std::string path = ZentharPath::GetPath(kFileName);
  MFile file;
  if (path.empty() || !file.Open(path.c_str(), MFile::kRead)) return false;
  const int length = file.GetLength();
  if (length < 0) return false;

  // Beside what there is: without memory for the whole table the earlier texts stay.
  auto strings = std::make_unique<StringMap>();
  auto pool = std::make_unique<char[]>(static_cast<std::size_t>(length) + 1);
  ReadStrings(pool.get(), ReadBytes(file, pool.get(), length), *strings);
  delete s_Strings;
  s_Strings = strings.release();
  s_Pool = pool.release();
  return true;
}

char* QX4Strings::GetString(unsigned int identifier, bool quiet) {
  const ReadsObject use(&s_Strings, "QX4Strings");
  if (!s_Strings) return nullptr;
  if (char* const text = s_Strings->Find(identifier)) return text;
  if (!quiet) {
    PrintDebugString("String with ID = %d not found in file %s\n", static_cast<int>(identifier), kFileName);
  }
  return nullptr;
}

char const* QX4Strings::GetProgramName() { return GetString(static_cast<unsigned>(s_ProgramNameId), false); }

void QX4Strings::SetProgrmaNameId(int id) { s_ProgramNameId = id; }

void QX4Strings::StartLocaleUpdate() {
  const ChangesObject use(&s_Strings, "QX4Strings");
  FinishLocaleUpdate();
  s_PreviousPool = s_Pool;
  s_Pool = nullptr;
}

void QX4Strings::FinishLocaleUpdate() {
  const ChangesObject use(&s_Strings, "QX4Strings");
  if (!s_PreviousPool) return;
  // Without a reload in between the entries still point into the pool that goes: they go with it.
  if (!s_Pool) s_Strings->Clear();
  delete[] s_PreviousPool;
  s_PreviousPool = nullptr;
}

void QX4Strings::Done() {
  const ChangesObject use(&s_Strings, "QX4Strings");
  FinishLocaleUpdate();
  delete s_Strings;
  s_Strings = nullptr;
  delete[] s_Pool;
  s_Pool = nullptr;
  s_Done = true;
}

}  // namespace CommonInterfaces
