// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/block_walk.h"

#include <algorithm>

#include "settings/settings_block.h"
#include "utils/bytes.h"
#include "utils/file.h"

namespace CommonInterfaces {

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

std::size_t FindFirstBlock(const Bytes& bytes) {
  const bool hasHeader =
      bytes.size() >= sizeof kSettingsFileTag && LoadLE32(bytes.data()) == LoadLE32(kSettingsFileTag);
  return hasHeader ? std::min<std::size_t>(kSettingsHeaderSize, bytes.size()) : 0;
}

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

bool HasKey(const Bytes& bytes, std::size_t begin, unsigned owner, unsigned id) {
  return LoadLE32(bytes.data() + begin) == owner && LoadLE32(bytes.data() + begin + 4) == id;
}

bool IsWholeWithout(const Bytes& bytes, unsigned owner, unsigned id) {
  std::size_t place = FindFirstBlock(bytes);
  for (std::size_t end = 0; FindEndOfBlock(bytes, place, end); place = end)
    if (HasKey(bytes, place, owner, id)) return false;
  return place == bytes.size();
}

}  // namespace CommonInterfaces
