// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/string_table.h"

#include <cstring>
#include <string>
#include <vector>

#include "text/string_line.h"
#include "text/string_pool.h"
#include "utils/debug.h"
#include "utils/file.h"
#include "utils/path.h"

namespace CommonInterfaces {

namespace {

constexpr char kFileName[] = "qxstrings.txt";
constexpr unsigned kLineSize = 4096;

using StringMap = std::map<unsigned, char*>;

// The last line with an identifier wins, so that a translator can override a text by appending a line.
void AddString(StringMap& strings, unsigned identifier, char* text) {
  const auto [place, isNew] = strings.emplace(identifier, text);
  if (isNew) return;
  const int id = static_cast<int>(identifier);
  if (std::strcmp(place->second, text) == 0) {
    PrintDebugString("Duplicated string, ID = %d\n", id);
  } else {
    PrintDebugString("Strings conflict, ID = %d\nOld: %s\nNew: %s\n", id, place->second, text);
  }
  place->second = text;
}

void ReadStrings(MTextFile& file, StringPool pool, StringMap& strings) {
  std::vector<char> line(kLineSize);
  while (file.Readln(line.data(), kLineSize) > 0) {
    StringLine entry;
    if (!ParseStringLine(line.data(), entry)) continue;
    char* const text = pool.Add(entry.text);
    if (!text) {
      // The pool has the length of the file, so only a file that grew since then gets here.
      PrintDebugString("File %s changed while it was read\n", kFileName);
      return;
    }
    AddString(strings, entry.identifier, text);
  }
}

}  // namespace

std::map<unsigned, char*>* QX4Strings::s_Strings = nullptr;
char* QX4Strings::s_Pool = nullptr;
char* QX4Strings::s_PreviousPool = nullptr;
int QX4Strings::s_ProgramNameId = -1;
bool QX4Strings::s_Done = false;

QX4Strings::QX4Strings() {
  if (s_Pool || s_Done || Load()) return;
  // The entries of an unfinished change of language belong to another file: a failed reload leaves none of
  // them.
  if (s_Strings) s_Strings->clear();
  PrintDebugString("File %s not found\n", kFileName);
}

bool QX4Strings::Load() {
  const std::string path = ZentharPath::GetPath(kFileName);
  MTextFile file(false, '!', '}', kLineSize);
  if (path.empty() || !file.Open(path.c_str(), false)) return false;

  if (!s_Strings) s_Strings = new StringMap;
  s_Strings->clear();
  // One byte at least: an empty file is a loaded table without texts.
  const int length = MFile::GetLength(path.c_str());
  const unsigned size = length > 0 ? static_cast<unsigned>(length) : 1;
  s_Pool = new char[size];
  s_Pool[0] = '\0';
  ReadStrings(file, StringPool(s_Pool, size), *s_Strings);
  return true;
}

char* QX4Strings::GetString(unsigned int identifier, bool quiet) {
  if (!s_Strings) return nullptr;
  const auto place = s_Strings->find(identifier);
  if (place != s_Strings->end()) return place->second;
  if (!quiet) {
    PrintDebugString("String with ID = %d not found in file %s\n", static_cast<int>(identifier), kFileName);
  }
  return nullptr;
}

char const* QX4Strings::GetProgramName() { return GetString(static_cast<unsigned>(s_ProgramNameId), false); }

void QX4Strings::SetProgrmaNameId(int id) { s_ProgramNameId = id; }

void QX4Strings::StartLocaleUpdate() {
  FinishLocaleUpdate();
  s_PreviousPool = s_Pool;
  s_Pool = nullptr;
}

void QX4Strings::FinishLocaleUpdate() {
  if (!s_PreviousPool) return;
  // Without a reload in between the entries still point into the pool that goes: they go with it.
  if (!s_Pool && s_Strings) s_Strings->clear();
  delete[] s_PreviousPool;
  s_PreviousPool = nullptr;
}

void QX4Strings::Done() {
  FinishLocaleUpdate();
  delete s_Strings;
  s_Strings = nullptr;
  delete[] s_Pool;
  s_Pool = nullptr;
  s_Done = true;
}

}  // namespace CommonInterfaces
