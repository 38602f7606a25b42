// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/defaults.h"

#include "common_interfaces/settings_data.h"
#include "utils/text.h"

namespace skyview {
namespace {

using CommonInterfaces::SettingsData;

constexpr const char* kFile = "filters.data";

// Of an own block the reader says whether it came to its end: here the defaults are the own block.
std::string FindFault(unsigned owner, const std::string& whose) {
  SettingsData block(SettingsData::kDefaultsTag, owner, kFile);
  if (block.Read(kFile)) return "";
  return std::string(kFile) + ": the defaults of the " + whose + " are missing or damaged";
}

void Tell(const std::string& fault, Diagnostics& diagnostics) {
  if (!fault.empty()) diagnostics.lines.push_back(fault + "\n");
}

}  // namespace

std::string FindFaultOfViewDefaults() { return FindFault(FourCC("CAMR"), "view"); }

void TellFaultsOfDefaults(Diagnostics& diagnostics) {
  Tell(FindFault(FourCC("FLTR"), "settings"), diagnostics);
  Tell(FindFaultOfViewDefaults(), diagnostics);
}

}  // namespace skyview
