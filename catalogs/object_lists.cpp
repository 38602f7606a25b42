// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_lists.h"

#include <algorithm>
#include <cstdio>

#include "catalogs/line_fields.h"
#include "utils/debug.h"
#include "utils/file_presence.h"
#include "utils/path.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

constexpr char kFavourites[] = "catalogs:favourites.txt";
constexpr std::size_t kLongestLine = kLineBuffer - 1;
constexpr int kMostNumbers = 3;

// Hands the entries of a list file to `take`: the name and `count` numbers. A missing file has none; one that
// cannot be read whole is noted.
template <class Take>
void ReadList(const std::string& path, int count, IncompleteFiles& incomplete, Take take) {
  const bool whole = ForEachLine(path, [&](const char* line) {
    const auto fields = GetTokens(line, kFieldDelimiter);
    if (fields.size() < static_cast<std::size_t>(count) + 1) return;
    int numbers[kMostNumbers] = {};
    for (int i = 0; i < count; ++i) {
      if (!ReadNumber(fields[static_cast<std::size_t>(i) + 1], numbers[i])) return;
    }
    take(fields[0], numbers);
  });
  if (!whole && GetFilePresence(path.c_str()) != FilePresence::kAbsent) incomplete.Add(path);
}

// Replaces a list file by one line for each entry. False, with the old file in place, when it cannot be
// written, and for one that the list does not hold whole.
template <class Entries, class WriteLine>
bool WriteList(const std::string& path, const Entries& entries, const IncompleteFiles& incomplete,
               WriteLine writeLine) {
  if (!incomplete.MayReplace(path, "list")) return false;
  MTextFile file(false, '\0', '\0', kLineBuffer);
  if (!file.Open(path.c_str(), true)) return false;
  for (const auto& entry : entries) writeLine(file, entry);
  return file.Close();  // false as well when any line was not written
}

// The name as it can stand in front of `restLength` further characters of a line. It ends at a zero byte,
// like every text that "%s" writes.
std::string LineName(std::string name, int restLength) {
  name.resize(std::min({name.size(), name.find('\0'), kLongestLine - static_cast<std::size_t>(restLength)}));
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
  return name;
}

void WriteLine(MTextFile& file, const std::string& name, int kind, int number) {
  const int rest = std::snprintf(nullptr, 0, "\t%d\t%d", kind, number);
  file.Write("%s\t%d\t%d\n", LineName(name, rest).c_str(), kind, number);
}

// The field of a caller's identifier may be filled to its last byte, without a terminating zero.
std::string NameOf(const SSO_ID& object) { return {object.name, sizeof object.name - 1}; }

void CreateWhereAbsent(const std::string& path) {
  if (GetFilePresence(path.c_str()) == FilePresence::kAbsent) CreateEmptyFile(path.c_str());
}

// A file that is there and cannot be read is not usable: a list that starts empty would take its place.
bool MakeUsable(const std::string& path) {
  CreateWhereAbsent(path);
  MTextFile file(false, '\0', '\0', kLineBuffer);
  return file.Open(path.c_str(), false);
}

// The list replaces what the caller has, unless it is empty.
template <class Entry>
bool HandOut(const std::vector<Entry>& list, std::vector<Entry>& out) {
  if (list.empty()) return false;
  out = std::vector<Entry>(list);
  return true;
}

}  // namespace

FavouriteObjectsFile::FavouriteObjectsFile() {
  const std::string path = ZentharPath::GetWorkPath(kFavourites);
  if (MakeUsable(path)) {
    m_Path = CopyToHeap(path);
  } else {
    PrintDebugString("FavouriteObjectsFile(): cannot open the file\n \"%s\"\n",
                     path.empty() ? kFavourites : path.c_str());
  }
}

void FavouriteObjectsFile::Read() {
  if (!m_Path) return;
  std::vector<SSO_ID> objects = m_Objects;
  ReadList(m_Path.get(), 2, m_Incomplete, [&objects](const std::string& name, const int* numbers) {
    SSO_ID object(numbers[0], numbers[1]);
    SetName(name, object);
    objects.push_back(object);
  });
  m_Objects.swap(objects);
}

void FavouriteObjectsFile::Write() { Save(); }

bool FavouriteObjectsFile::Save() {
  if (!m_Path) return false;
  return WriteList(m_Path.get(), m_Objects, m_Incomplete, [](MTextFile& file, const SSO_ID& object) {
    WriteLine(file, NameOf(object), object.kind, object.number);
  });
}

bool FavouriteObjectsFile::ObjectIncluded(const SSO_ID& object) const {
  return std::find(m_Objects.begin(), m_Objects.end(), object) != m_Objects.end();
}

int FavouriteObjectsFile::AddObject(const SSO_ID& object) {
  if (!ObjectIncluded(object)) m_Objects.push_back(object);
  return GetSize();
}

int FavouriteObjectsFile::RemoveObject(const SSO_ID& object) {
  const auto found = std::find(m_Objects.begin(), m_Objects.end(), object);
  if (found == m_Objects.end()) return -1;
  m_Objects.erase(found);
  return GetSize();
}

int FavouriteObjectsFile::GetSize() const { return static_cast<int>(m_Objects.size()); }

const std::vector<SSO_ID>& FavouriteObjectsFile::GetObjects() const { return m_Objects; }

SelectedObjectsFile::SelectedObjectsFile(const char* path) : m_Path(ZentharPath::GetWorkPath(path)) {
  ReadList(m_Path, 2, m_Incomplete, [this](const std::string& name, const int* numbers) {
    m_Objects.push_back({name, numbers[0], numbers[1]});
  });
}

bool SelectedObjectsFile::GetObjects(std::vector<ObjectDesc>& out) const { return HandOut(m_Objects, out); }

bool SelectedObjectsFile::SetObjects(const std::vector<ObjectDesc>& in) {
  m_Objects = std::vector(in);
  return true;
}

bool SelectedObjectsFile::Save() {
  return WriteList(m_Path, m_Objects, m_Incomplete, [](MTextFile& file, const ObjectDesc& object) {
    WriteLine(file, object.name, object.kind, object.number);
  });
}

ChoosingObjectsFile::ChoosingObjectsFile(const char* path) : m_Path(ZentharPath::GetWorkPath(path)) {
  if (!m_Path.empty()) CreateWhereAbsent(m_Path);
  ReadList(m_Path, 3, m_Incomplete, [this](const std::string& name, const int* numbers) {
    SSO_ID object(numbers[0], numbers[1]);
    SetName(name, object);
    object.fourth = numbers[2];
    m_Objects.push_back(object);
  });
}

bool ChoosingObjectsFile::GetObjects(std::vector<SSO_ID>& out) const { return HandOut(m_Objects, out); }

bool ChoosingObjectsFile::SetObjects(const std::vector<SSO_ID>& in) {
  m_Objects = std::vector(in);
  return true;
}

bool ChoosingObjectsFile::Save() {
  return WriteList(m_Path, m_Objects, m_Incomplete, [](MTextFile& file, const SSO_ID& object) {
    // 79 bytes of name and three numbers always fit.
    file.Write("%s\t%d\t%d\t%d\n", LineName(NameOf(object), 0).c_str(), object.kind, object.number,
               object.fourth);
  });
}

}  // namespace CommonInterfaces
