// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/start.h"

#include "common_interfaces/string_table.h"
#include "scene/catalogs/data_root.h"
#include "scene/catalogs/language.h"
#include "skyview/options/stop.h"
#include "skyview/reports/host_texts.h"

namespace skyview {
namespace {

std::string FindData(const RootOptions& root, const std::string& programFolder) {
  if (root.data) return *root.data;
  std::string data, error;
  const bool found = scene::FindDataRoot(programFolder, data, error);
  Require(found, error + "; --data FOLDER names another data root");
  return data;
}

}  // namespace

void Require(bool done, const std::string& error) {
  if (!done) throw Stop{kBadData, error};
}

void Require(const ViewResult& result) {
  if (result.failure == Failure::kNone) return;
  throw Stop{result.failure == Failure::kBadOption ? kBadOption : kBadData, result.message};
}

RootOptions ParseRoots(const Call& call) {
  RootOptions root;
  CommandLine line(call.command.name, call.command.purpose);
  line.Take(kRootGroup, root);
  line.Parse(call.arguments);
  return root;
}

std::string EnterRoots(const RootOptions& root, const std::string& programFolder) {
  const std::string data = FindData(root, programFolder), language = root.GetLanguage();
  std::string error;
  Require(scene::SetSkyRoots(data, root.work.value_or(""), error), error);
  const auto fetchNothing = [] {};  // nobody has taken a text yet
  if (!scene::SwitchLanguage(data, language, fetchNothing, error))
    throw Stop{kBadOption, "--language '" + language + "': " + error};
  CommonInterfaces::QX4Strings::SetProgrmaNameId(static_cast<int>(HostText::kProgramName));
  return data;
}

std::optional<scene::SessionCapsule> ReadSession(const ViewOptions& view) {
  if (!view.session) return std::nullopt;
  scene::SessionCapsule session;
  std::string error;
  Require(LoadSession(*view.session, session, error), error);
  return session;
}

void ReportChangedData(const scene::SessionCapsule& session, const std::string& language,
                       Diagnostics& diagnostics) {
  for (const auto& line : scene::FindChangedData(session, language)) diagnostics.lines.push_back(line + "\n");
}

}  // namespace skyview
