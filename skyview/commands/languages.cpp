// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/language.h"

#include "skyview/commands/command.h"
#include "skyview/commands/start.h"

namespace skyview {
std::string RunLanguages(const Call& call) {
  const RootOptions root = ParseRoots(call);
  const std::string data = EnterRoots(root, call.programFolder);
  std::string text;
  for (const auto& language : scene::ListLanguages(data)) text += language + "\n";
  return text;
}

}  // namespace skyview
