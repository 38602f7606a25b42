// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/language.h"

#include <algorithm>

#include "skyview/commands/command.h"
#include "skyview/commands/start.h"

namespace skyview {
namespace {

// The default language needs no folder of its own.
std::vector<std::string> ListLanguages(const std::string& data) {
  auto languages = scene::FindLanguages(data);
  const auto place = std::lower_bound(languages.begin(), languages.end(), scene::kDefaultLanguage);
  if (place == languages.end() || *place != scene::kDefaultLanguage)
    languages.insert(place, scene::kDefaultLanguage);
  return languages;
}

}  // namespace

std::string RunLanguages(const Call& call) {
  const RootOptions root = ParseRoots(call);
  const std::string data = EnterRoots(root, call.programFolder);
  std::string text;
  for (const auto& language : ListLanguages(data)) text += language + "\n";
  return text;
}

}  // namespace skyview
