// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Replacing the container's block in a settings file, so that the file holds it once.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "common_interfaces/settings_data.h"
#include "settings/settings_block.h"
#include "settings/settings_tables.h"
#include "utils/bytes.h"
#include "utils/contained_call.h"
#include "utils/debug.h"
#include "utils/file.h"
#include "utils/one_thread.h"
#include "utils/path.h"
#include "utils/replace_file.h"

namespace CommonInterfaces {

namespace {

using Bytes = std::vector<unsigned char>;

// What stays of a file, to both sides of the place where the new block goes.
struct KeptBytes {
  Bytes before, behind;
};

void Append(Bytes& to, const Bytes& from, std::size_t begin, std::size_t end) {
  to.insert(to.end(), from.begin() + static_cast<std::ptrdiff_t>(begin),
            from.begin() + static_cast<std::ptrdiff_t>(end));
}

// False for a file that exists and cannot be read whole: what cannot be read cannot be kept.
bool LoadFile(const std::string& path, Bytes& bytes) {
  if (path.empty()) return true;
  MFile file;
  if (!file.Open(path.c_str(), MFile::kRead)) return false;
  const int length = file.GetLength();
  if (length < 0) return false;
  bytes.resize(static_cast<std::size_t>(length));
  const auto size = static_cast<unsigned>(length);
  return file.Read(bytes.data(), size) == size;
}

// Whether a whole block begins at `begin`, and where it ends. Both layouts of field records have one framing.
bool FindEndOfBlock(const Bytes& bytes, std::size_t begin, std::size_t& end) {
  std::size_t place = begin;
  const auto has = [&](std::size_t count) { return bytes.size() - place >= count; };
  if (!has(kBlockKeySize + 2)) return false;
  const int sections = static_cast<short>(LoadLE16(bytes.data() + place + kBlockKeySize));
  place += kBlockKeySize + 2;
  if (sections < 0 || !has(static_cast<std::size_t>(sections) * kSectionRecordSize + 4)) return false;
  place += static_cast<std::size_t>(sections) * kSectionRecordSize;
  const int fields = static_cast<int>(LoadLE32(bytes.data() + place));
  place += 4;
  for (int i = 0; i < fields; ++i) {
    if (!has(kFieldLengthSize)) return false;
    const unsigned length = LoadLE32(bytes.data() + place);
    place += kFieldLengthSize;
    if (length > kMaxFieldRecordSize || !has(length)) return false;
    place += length;
  }
  end = place;
  return fields >= 0;
}

// Drops the header and every block with that key. The new block takes the place of the first one, or stands
// behind the last whole block: bytes that are no block are kept, and never before one that is.
KeptBytes DropBlock(const Bytes& bytes, unsigned owner, unsigned id) {
  KeptBytes kept;
  const bool hasHeader =
      bytes.size() >= sizeof kSettingsFileTag && LoadLE32(bytes.data()) == LoadLE32(kSettingsFileTag);
  std::size_t place = hasHeader ? std::min<std::size_t>(kSettingsHeaderSize, bytes.size()) : 0;
  bool dropped = false;
  for (std::size_t end = 0; FindEndOfBlock(bytes, place, end); place = end) {
    if (LoadLE32(bytes.data() + place) == owner && LoadLE32(bytes.data() + place + 4) == id) {
      dropped = true;
    } else {
      Append(dropped ? kept.behind : kept.before, bytes, place, end);
    }
  }
  Append(kept.behind, bytes, place, bytes.size());
  return kept;
}

template <class Sink>
bool WriteBytes(const Sink& sink, const Bytes& bytes) {
  return sink(bytes.data(), static_cast<unsigned>(bytes.size()));
}

}  // namespace

// What could not be read in the work area may be found in the data root now, where it was all the time.
bool SettingsData::HasReadWhole(const char* fileName) const {
  const std::string source = ZentharPath::GetPath(fileName);
  IncompleteFiles incomplete = m_Tables->incomplete;
  if (incomplete.Has(ZentharPath::GetWorkPath(fileName, false, false))) incomplete.Add(source);
  return incomplete.MayReplace(source, "settings");
}

// Makes the new content from what the file holds now, and again when somebody else replaced it meanwhile.
bool SettingsData::WriteReplacement(const char* fileName) {
  constexpr int kTries = 1000;
  for (int i = 0; i < kTries; ++i) {
    FileReplacement file;
    if (TryReplacement(fileName, file)) return true;
    if (!file.IsOvertaken()) return false;
  }
  return false;
}

bool SettingsData::TryReplacement(const char* fileName, FileReplacement& file) {
  const std::string target = ZentharPath::GetWorkPath(fileName), source = ZentharPath::GetPath(fileName);
  Bytes old;
  if (target.empty() || !LoadFile(source, old)) return false;
  // A file of the data root becomes one of the work area, where none is so far.
  const std::string_view content(reinterpret_cast<const char*>(old.data()), old.size());
  RaiseVersion();
  const KeptBytes kept = DropBlock(old, m_Owner, m_ID);
  const std::vector<unsigned char> head = MakeBlockHead();
  const Sink sink = [&file](const void* bytes, unsigned size) {
    return file.Write({static_cast<const char*>(bytes), size});
  };
  return file.Open(target.c_str()) && WriteHeader(sink) && WriteBytes(sink, kept.before) &&
         WriteBlock(sink, head) && WriteBytes(sink, kept.behind) &&
         file.CommitOver(source == target ? &content : nullptr);
}

bool SettingsData::Save(const char* fileName) {
  const ChangesObject use(&s_ModifyFlag, "SettingsData");
  bool isIncomplete = false, isSaved = false;  // without memory neither
  static_cast<void>(RunsThrough([&] {
    isIncomplete = !HasReadWhole(fileName);
    isSaved = !isIncomplete && WriteReplacement(fileName);
  }));
  if (isSaved || isIncomplete) return isSaved;
  PrintDebugString("Settings cannot be saved in file %s\n", fileName ? fileName : "");
  return false;
}

}  // namespace CommonInterfaces
