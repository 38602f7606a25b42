// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "scene/catalogs/sky_catalogs.h"
#include "utils/mapped_file.h"

namespace scene {

// Names of objects, each with the key by which it is looked for (name_key.h), those of one object together
// and the best known first. An object is any number below 2^31 that its user gives it.
//
// A list is made name by name, or lies ready in a mapped file: 16 bytes a name, which are offsets, and the
// texts they lead to. Views of texts live as long as the list; it does not move. Read by any thread.
class NameIndex {
 public:
  // kPlain: one of the names of the object. kUnnumbered: how a Bayer name is looked for without its number;
  // written as the plain one.
  enum Form : std::uint32_t { kPlain = 0, kUnnumbered = 0x80000000u };
  struct Name {
    std::string_view key, written;
    std::uint32_t object;
    Form form;
  };
  static constexpr std::size_t kEntrySize = 16;

  NameIndex() = default;
  NameIndex(const NameIndex&) = delete;
  NameIndex& operator=(const NameIndex&) = delete;

  // A plain name without a key, or of the same key as one that the object has already, says nothing new.
  void Add(std::string_view written, std::uint32_t object);
  // A Bayer name, which is also found without its number.
  void AddBayer(std::string_view written, std::uint32_t object);

  // Takes the list that lies in the file: entries from one offset on, texts from another. False, with an
  // empty list, when they are not what they should be: inside the file, texts ended by zero bytes.
  bool Open(MappedFile file, std::size_t entriesAt, std::size_t count, std::size_t textsAt, std::size_t size);
  // How it lies in a file.
  std::string_view GetEntries() const;
  std::string_view GetTexts() const;

  std::size_t GetCount() const { return GetEntries().size() / kEntrySize; }
  Name operator[](std::size_t name) const;
  std::uint32_t GetObject(std::size_t name) const { return GetObjectOf(name) & ~kUnnumbered; }

  // visit(name) for every name of that form and key, in the order of the list.
  template <class Visit>
  void ForKey(std::string_view key, Form form, Visit&& visit) const {
    const std::uint32_t hash = GetHash(key);
    for (std::size_t i = 0, count = GetCount(); i < count; ++i) {
      if (GetHashOf(i) != hash) continue;
      const Name name = (*this)[i];
      if (name.form == form && name.key == key) visit(name);
    }
  }
  // visit(name, isFirst) for every name whose key begins so, in the order of the list; the first name of an
  // object is its best known one.
  template <class Visit>
  void ForPrefix(std::string_view prefix, Visit&& visit) const {
    for (std::size_t i = 0, count = GetCount(); i < count; ++i) {
      if (BeginsWith(i, prefix)) visit((*this)[i], i == 0 || GetObject(i - 1) != GetObject(i));
    }
  }
  // visit(name) for every plain name of the object.
  template <class Visit>
  void ForObject(std::uint32_t object, Visit&& visit) const {
    for (std::size_t i = 0, count = GetCount(); i < count; ++i) {
      if (GetObjectOf(i) == (object | kPlain)) visit((*this)[i]);
    }
  }

 private:
  static std::uint32_t GetHash(std::string_view key);
  bool BeginsWith(std::size_t name, std::string_view prefix) const;
  std::uint32_t GetHashOf(std::size_t name) const;
  std::uint32_t GetObjectOf(std::size_t name) const;  // with its form
  std::uint32_t AddText(std::string_view text);
  void AddEntry(std::string_view key, std::uint32_t written, std::uint32_t objectAndForm);
  bool HasKey(std::string_view key, std::uint32_t object) const;

  std::string m_OwnEntries, m_OwnTexts;
  MappedFile m_File;  // in place of them
  std::string_view m_MappedEntries, m_MappedTexts;
};

// The objects of the names of catalogs: the index of a star, that of a deep-sky object and this.
inline constexpr std::uint32_t kNamedDeepsky = 2u << 28;

// All names of the stars, of the deep-sky objects, from the tables, whose current record changes.
void AddStarNames(SkyCatalogs& catalogs, NameIndex& names);
void AddDeepskyNames(SkyCatalogs& catalogs, NameIndex& names);

}  // namespace scene
