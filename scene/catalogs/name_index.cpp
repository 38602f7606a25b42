// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/name_index.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "scene/catalogs/name_key.h"
#include "utils/bytes.h"

namespace scene {
namespace {

// An entry: the hash of the key, where key and name begin in the texts, the object with the form.
constexpr std::size_t kKeyAt = 4, kWrittenAt = 8, kObjectAt = 12;

// "alpha1cen" is "alphacen".
std::string WithoutDigits(std::string key) {
  std::erase_if(key, [](char c) { return c >= '0' && c <= '9'; });
  return key;
}

}  // namespace

// FNV-1a: files keep it.
std::uint32_t NameIndex::GetHash(std::string_view key) {
  constexpr std::uint32_t kBasis = 0x811C9DC5u, kPrime = 0x01000193u;
  std::uint32_t hash = kBasis;
  for (const char c : key) hash = (hash ^ static_cast<unsigned char>(c)) * kPrime;
  return hash;
}

std::string_view NameIndex::GetEntries() const {
  return m_File.GetBytes() ? m_MappedEntries : std::string_view(m_OwnEntries);
}
std::string_view NameIndex::GetTexts() const {
  return m_File.GetBytes() ? m_MappedTexts : std::string_view(m_OwnTexts);
}

std::uint32_t NameIndex::GetHashOf(std::size_t name) const {
  return LoadLE32(GetEntries().data() + name * kEntrySize);
}
std::uint32_t NameIndex::GetObjectOf(std::size_t name) const {
  return LoadLE32(GetEntries().data() + name * kEntrySize + kObjectAt);
}

// A key ends with a zero byte inside the texts, which no prefix has.
bool NameIndex::BeginsWith(std::size_t name, std::string_view prefix) const {
  const char* const key = GetTexts().data() + LoadLE32(GetEntries().data() + name * kEntrySize + kKeyAt);
  return std::strncmp(key, prefix.data(), prefix.size()) == 0;
}

NameIndex::Name NameIndex::operator[](std::size_t name) const {
  const char* const entry = GetEntries().data() + name * kEntrySize;
  const char* const texts = GetTexts().data();
  const std::uint32_t object = LoadLE32(entry + kObjectAt);
  return {texts + LoadLE32(entry + kKeyAt), texts + LoadLE32(entry + kWrittenAt), object & ~kUnnumbered,
          static_cast<Form>(object & kUnnumbered)};
}

std::uint32_t NameIndex::AddText(std::string_view text) {
  const auto begin = static_cast<std::uint32_t>(m_OwnTexts.size());
  m_OwnTexts.append(text).push_back('\0');
  return begin;
}

void NameIndex::AddEntry(std::string_view key, std::uint32_t written, std::uint32_t objectAndForm) {
  unsigned char entry[kEntrySize];
  StoreLE32(entry, GetHash(key));
  StoreLE32(entry + kKeyAt, AddText(key));
  StoreLE32(entry + kWrittenAt, written);
  StoreLE32(entry + kObjectAt, objectAndForm);
  m_OwnEntries.append(reinterpret_cast<const char*>(entry), kEntrySize);
}

bool NameIndex::HasKey(std::string_view key, std::uint32_t object) const {
  for (std::size_t i = GetCount(); i-- > 0;) {
    const Name name = (*this)[i];
    if (name.object != object) return false;
    if (name.form == kPlain && name.key == key) return true;
  }
  return false;
}

void NameIndex::Add(std::string_view written, std::uint32_t object) {
  const std::string key = MakeNameKey(written);
  if (!key.empty() && !HasKey(key, object)) AddEntry(key, AddText(written), object | kPlain);
}

void NameIndex::AddBayer(std::string_view written, std::uint32_t object) {
  Add(written, object);
  const std::string key = MakeNameKey(written), unnumbered = WithoutDigits(key);
  if (unnumbered != key) AddEntry(unnumbered, AddText(written), object | kUnnumbered);
}

bool NameIndex::Open(MappedFile file, std::size_t entriesAt, std::size_t count, std::size_t textsAt,
                     std::size_t size) {
  const std::size_t whole = file.GetSize();
  if (entriesAt > whole || count > (whole - entriesAt) / kEntrySize || textsAt > whole ||
      size > whole - textsAt || (count > 0 && (size == 0 || file.GetBytes()[textsAt + size - 1] != 0))) {
    return false;
  }
  const unsigned char* const entries = file.GetBytes() + entriesAt;
  for (std::size_t i = 0; i < count; ++i) {
    const unsigned char* const entry = entries + i * kEntrySize;
    if (LoadLE32(entry + kKeyAt) >= size || LoadLE32(entry + kWrittenAt) >= size) return false;
  }
  m_MappedEntries = {reinterpret_cast<const char*>(entries), count * kEntrySize};
  m_MappedTexts = {reinterpret_cast<const char*>(file.GetBytes()) + textsAt, size};
  m_File = std::move(file);
  return true;
}

}  // namespace scene
