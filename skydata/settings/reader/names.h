// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace skydata {

// The names that field ids are shown by: the library's vocabulary, those of the camera record
// (data/source/settings/camera_record.inc, taken in when skydata is built) and those of settings texts.
class FieldNames {
 public:
  FieldNames();

  // Takes the names of a settings text as well. Throws SourceError when the text is wrong.
  void AddNamesOf(const std::filesystem::path& settingsText);

  // Null for an id that no known name has. The empty name has the id 0.
  const std::string* Find(int nameId) const;

  // The name, or "@" and the id where it is not known or empty.
  std::string NameOf(int nameId) const;

  const std::map<int, std::string>& GetAll() const { return m_Names; }

 private:
  std::map<int, std::string> m_Names;
};

}  // namespace skydata
