// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/favourite_list.h"

#include <filesystem>
#include <optional>

#include "common_interfaces/object_lists.h"
#include "scene/catalogs/name_key.h"
#include "scene/visibility/object_filter.h"
#include "skyview/reports/host_texts.h"
#include "utils/file_presence.h"
#include "utils/messages.h"
#include "utils/near_names.h"
#include "utils/path.h"
#include "utils/utf8.h"
#include "utils/whole_file.h"

namespace skyview {
namespace {

using CommonInterfaces::FavouriteObjectsFile;

constexpr const char* kFile = "catalogs:favourites.txt";

// The whole characters of the name that an identifier has room for.
void SetName(const std::string& name, SSO_ID& id) {
  const std::size_t length = FitUtf8(name, sizeof id.name - 1).copy(id.name, sizeof id.name - 1);
  id.name[length] = '\0';
}

// The changes of one run.
class ListEditor {
 public:
  ListEditor(const scene::ObjectSearch& search, const scene::SkyCatalogs& catalogs)
      : m_Search(search), m_Catalogs(catalogs) {
    m_File.Read();
  }
  ~ListEditor() {
    if (!m_Saved) RemoveEmptyFile();
  }
  ListEditor(const ListEditor&) = delete;
  ListEditor& operator=(const ListEditor&) = delete;

  // A list that is there and that nobody can read must not seem empty.
  bool IsReadable(std::string& error) const {
    std::string reason;
    if (m_WasAbsent || IsBoundedFile(m_Name.c_str(), reason)) return true;
    error = m_Name + ": " + reason;
    return false;
  }

  bool Add(const std::string& name, std::string& error) {
    const auto id = Identify(name, error);
    if (!id) {
      error = "favourites add: " + error;
      return false;
    }
    const int before = m_File.GetSize();
    m_Changed |= m_File.AddObject(*id) != before;
    return true;
  }

  bool Remove(const std::string& name, std::string& error) {
    auto id = Identify(name, error);
    if (!id) id = FindInList(name);
    if (!id) {
      error = "favourites remove: " + error;
      return false;
    }
    if (m_File.RemoveObject(*id) < 0) {
      error = "favourites remove: '" + name + "': not in the list" + DescribeNear(name);
      return false;
    }
    return m_Changed = true;
  }

  bool Save(std::string& error) {
    m_Saved = !m_Changed || m_File.Save();
    if (m_Saved) return true;
    error = m_Name + ": the list of favourites cannot be written there";
    return false;
  }

 private:
  // The list makes its file at once. One that came to nothing leaves none where none was.
  void RemoveEmptyFile() const {
    std::error_code ignored;
    if (m_WasAbsent && std::filesystem::is_empty(m_Path, ignored)) std::filesystem::remove(m_Path, ignored);
  }

  std::optional<SSO_ID> Identify(const std::string& name, std::string& error) const {
    const auto found = m_Search.FindOne(name, error);
    if (!found) return std::nullopt;
    SSO_ID id(scene::GetKind(*found, m_Catalogs), scene::GetNumber(*found, m_Catalogs));
    if (id.number == -1) {
      error = "'" + name + "': has no number in its catalog, by which the list knows objects";
      return std::nullopt;
    }
    SetName(m_Search.GetName(*found), id);
    return id;
  }

  // What the list holds need not be in the catalogs of today.
  std::optional<SSO_ID> FindInList(const std::string& name) const {
    const std::string key = scene::MakeNameKey(name);
    for (const auto& entry : m_File.GetObjects()) {
      if (scene::MakeNameKey(scene::MessageToUtf8(entry.name)) == key) return entry;
    }
    return std::nullopt;
  }

  std::string DescribeNear(const std::string& name) const {
    std::vector<std::string> names;
    for (const auto& entry : m_File.GetObjects()) names.push_back(scene::MessageToUtf8(entry.name));
    const std::string near = JoinNames(FindNearNames(name, names));
    return near.empty() ? "" : "; similar there: " + near;
  }

  const scene::ObjectSearch& m_Search;
  const scene::SkyCatalogs& m_Catalogs;
  const std::string m_Name = ZentharPath::GetWorkPath(kFile, false, false);
  const std::filesystem::path m_Path = std::u8string(m_Name.begin(), m_Name.end());
  const bool m_WasAbsent = GetFilePresence(m_Name.c_str()) == FilePresence::kAbsent;
  FavouriteObjectsFile m_File;
  bool m_Changed = false, m_Saved = false;
};

}  // namespace

std::vector<SSO_ID> ReadFavourites() {
  if (ZentharPath::GetWorkPath(kFile, true, false).empty()) return {};
  FavouriteObjectsFile file;
  file.Read();
  return file.GetObjects();
}

bool AddToFavourites(const std::vector<std::string>& names, const scene::ObjectSearch& search,
                     const scene::SkyCatalogs& catalogs, std::string& error) {
  ListEditor editor(search, catalogs);
  for (const auto& name : names) {
    if (!editor.Add(name, error)) return false;
  }
  return editor.Save(error);
}

bool RemoveFromFavourites(const std::vector<std::string>& names, const scene::ObjectSearch& search,
                          const scene::SkyCatalogs& catalogs, std::string& error) {
  ListEditor editor(search, catalogs);
  if (!editor.IsReadable(error)) return false;
  for (const auto& name : names) {
    if (!editor.Remove(name, error)) return false;
  }
  return editor.Save(error);
}

std::string FormatFavourites(const std::vector<SSO_ID>& favourites) {
  std::string text =
      scene::ToUtf8(Localize(HostText::kFavourites, {static_cast<int>(favourites.size())})) + "\n";
  for (const auto& entry : favourites) {
    text += "  " + scene::MessageToUtf8(entry.name) + " (" + scene::GetCodeText(entry.kind) + " " +
            std::to_string(entry.number) + ")\n";
  }
  return text;
}

}  // namespace skyview
