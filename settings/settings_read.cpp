// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Reading settings files. What becomes of a block beside the defaults is in settings_merge.cpp.
#include "common_interfaces/settings_data.h"
#include "settings/block_walk.h"
#include "settings/settings_block.h"
#include "settings/settings_tables.h"
#include "utils/bytes.h"
#include "utils/file.h"
#include "utils/one_thread.h"
#include "utils/path.h"

namespace CommonInterfaces {

// Sections are known by their id across a read: indices mean something else afterwards.
bool SettingsData::Read(const char* fileName) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  const bool hadCurrent = m_CurSection >= 0;
  const unsigned current = GetCurSection();
  SetAside earlier(*this);
  const bool result = ReadFrom(fileName);
  m_Tables->index.Forget();
  if (hadCurrent) SetCurSection(current);
  earlier.Drop();
  return result;
}

bool SettingsData::ReadFrom(const char* fileName) {
  DeleteFields();
  if (!m_bLoadingDefaults) ReadDefaults();
  // Of an own block only what there are defaults for is kept.
  if (fileName && !m_Tables->incomplete.IsEmpty()) NoteIncomplete(fileName);
  const int fieldCount = GetFieldCount();
  const int sectionCount = GetSectionCount();
  if (!fileName && fieldCount > 0) return true;

  MFile file;
  if (!OpenForReading(fileName, file)) return false;
  // Without a name the search starts at the tag: neither it nor the version looks like a key.
  if (fileName) m_Version = ReadSettingsHeader(file).version;
  bool isDefaults = false;
  const bool found = FindOwnOrDefaultsBlock(file, isDefaults);
  const bool whole = found && ReadSectionRecords(file, m_Sections) &&
                     ReadFieldRecords(file, m_Tables->arenas.emplace_back(), m_Fields);
  if (found != whole || file.HasReadFailed()) NoteIncomplete(fileName);
  if (!whole) return false;

  std::vector<FieldArena>& arenas = m_Tables->arenas;
  if (isDefaults) {
    ReplaceDefaults(fieldCount, sectionCount);
    arenas.erase(arenas.begin(), arenas.end() - 1);
  } else {
    Merge(fieldCount, sectionCount);
    arenas.pop_back();
  }
  MarkAllSectionsChanged();
  return true;
}

// Whatever happens while they are read, what was read of the defaults stays.
void SettingsData::ReadDefaults() {
  const CurrentLayout always;
  m_bLoadingDefaults = true;
  ReadFrom(nullptr);
  m_bLoadingDefaults = false;
}

// A path is given for what is there, or may be: not to open it is a failure, not a missing file.
bool SettingsData::OpenForReading(const char* fileName, MFile& file) const {
  const std::string path = GetPathOf(fileName);
  if (path.empty()) return false;
  const int length = file.Open(path.c_str(), MFile::kRead) ? file.GetLength() : -1;
  if (length < 0) NoteIncomplete(fileName);
  return length > 0;
}

std::string SettingsData::GetPathOf(const char* fileName) const {
  return fileName ? ZentharPath::GetPath(fileName) : m_FileName;
}

void SettingsData::NoteIncomplete(const char* fileName) const {
  m_Tables->incomplete.Add(GetPathOf(fileName));
}

bool SettingsData::FindOwnOrDefaultsBlock(MFile& file, bool& isDefaults) const {
  // Among the defaults the own block is not looked for: in the container's own file it would hide them.
  if (!m_bLoadingDefaults && FindBlock(file, m_Owner, m_ID)) {
    isDefaults = m_ID == kDefaultsTag;
    return true;
  }
  isDefaults = true;
  return FindBlock(file, m_Owner, kDefaultsTag);
}

void SettingsData::MarkAllSectionsChanged() {
  if (!m_SectionChanged.empty()) return;
  for (const SectionRecord& section : m_Sections) {
    // By copy: no reference may be bound to a member of a packed record.
    const unsigned id = section.id, alias = section.alias;
    m_SectionChanged[id] = true;
    if (alias != kNoSection) m_SectionChanged[alias] = true;
  }
}

bool SettingsData::HoldsBlock(const char* fileName, unsigned owner, unsigned id) {
  const std::string path = ZentharPath::GetPath(fileName);
  MFile file;
  if (path.empty() || !file.Open(path.c_str(), MFile::kRead)) return false;
  ReadSettingsHeader(file);
  Bytes bytes;
  return FindBlock(file, owner, id) && !(LoadFile(path, bytes) && IsWholeWithout(bytes, owner, id));
}

unsigned SettingsData::GetNumberParts(const char* fileName, unsigned code) const {
  const std::string path = ZentharPath::GetPath(fileName);
  MFile file;
  if (path.empty() || !file.Open(path.c_str(), MFile::kRead)) return 0;

  // Byte by byte over blocks: a search from match to match would read the file again for each of them.
  unsigned parts = 0, last = 0, since = 0;
  unsigned char bytes[4096];
  while (const unsigned size = file.Read(bytes, sizeof bytes)) {
    for (unsigned i = 0; i < size; ++i) {
      last = last >> 8 | static_cast<unsigned>(bytes[i]) << 24;
      if (++since < sizeof code || last != code) continue;
      ++parts;
      since = 0;
    }
  }
  return parts;
}

}  // namespace CommonInterfaces
