// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/language.h"

#include <algorithm>
#include <filesystem>

#include "common_interfaces/string_table.h"
#include "utils/file_presence.h"
#include "utils/locale.h"
#include "utils/path.h"

namespace scene {
namespace {

namespace fs = std::filesystem;
using CommonInterfaces::QX4Strings;

constexpr const char* kFolder = "languages";
constexpr const char* kTextFile = "qxstrings.txt";

std::string ListOf(const std::vector<std::string>& languages) {
  if (languages.empty()) return kDefaultLanguage;
  std::string list;
  for (const auto& language : languages) list += (list.empty() ? "" : ", ") + language;
  return list;
}

}  // namespace

std::vector<std::string> FindLanguages(const std::string& dataRoot) {
  const fs::path folder = fs::path(dataRoot) / kFolder;
  std::vector<std::string> languages = ListFolder(folder.string().c_str());
  std::erase_if(languages, [&folder](const std::string& language) {
    return !IsRegularFile((folder / language / kTextFile).string().c_str());
  });
  std::sort(languages.begin(), languages.end());
  return languages;
}

std::vector<std::string> ListLanguages(const std::string& dataRoot) {
  auto languages = FindLanguages(dataRoot);
  const auto place = std::lower_bound(languages.begin(), languages.end(), kDefaultLanguage);
  if (place == languages.end() || *place != kDefaultLanguage) languages.insert(place, kDefaultLanguage);
  return languages;
}

bool SwitchLanguage(const std::string& dataRoot, const std::string& language,
                    const std::function<void()>& fetchTexts, std::string& error) {
  const auto languages = FindLanguages(dataRoot);
  const bool hasFolder = std::find(languages.begin(), languages.end(), language) != languages.end();
  if (!hasFolder && language != kDefaultLanguage) {
    error = "wants one of " + ListOf(languages);
    return false;
  }
  QX4Strings::StartLocaleUpdate();
  SetSystemLocale(language.c_str());
  const std::string folder = (fs::path(dataRoot) / kFolder / language).string();
  ZentharPath::SetLanguageRoot(hasFolder ? GetAbsolutePath(folder.c_str()).c_str() : nullptr);
  const QX4Strings reloaded;
  fetchTexts();
  QX4Strings::FinishLocaleUpdate();
  return true;
}

}  // namespace scene
