// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Replacing the container's block in a settings file, so that the file holds it once.
#include <string>
#include <string_view>
#include <vector>

#include "common_interfaces/settings_data.h"
#include "settings/block_walk.h"
#include "settings/settings_block.h"
#include "settings/settings_tables.h"
#include "utils/contained_call.h"
#include "utils/debug.h"
#include "utils/one_thread.h"
#include "utils/path.h"
#include "utils/replace_file.h"

namespace CommonInterfaces {

namespace {

// What stays of a file, to both sides of the place where the new block goes.
struct KeptBytes {
  Bytes before, behind;
};

void Append(Bytes& to, const Bytes& from, std::size_t begin, std::size_t end) {
  to.insert(to.end(), from.begin() + static_cast<std::ptrdiff_t>(begin),
            from.begin() + static_cast<std::ptrdiff_t>(end));
}

// Drops the header and every block with that key. The new block takes the place of the first one, or stands
// behind the last whole block: bytes that are no block are kept, and never before one that is.
KeptBytes DropBlock(const Bytes& bytes, unsigned owner, unsigned id) {
  KeptBytes kept;
  std::size_t place = FindFirstBlock(bytes);
  bool dropped = false;
  for (std::size_t end = 0; FindEndOfBlock(bytes, place, end); place = end) {
    if (HasKey(bytes, place, owner, id)) {
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
