// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/defaults.h"

#include <string_view>
#include <vector>

#include "common_interfaces/settings_data.h"
#include "utils/bytes.h"
#include "utils/path.h"
#include "utils/text.h"
#include "utils/whole_file.h"

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

// Of the blocks of defaults that begin in the file, as far as it can be read.
std::vector<unsigned> FindOwners() {
  constexpr std::string_view kTag = "TLFD";
  std::vector<unsigned> owners;
  std::string bytes, reason;
  if (!ReadWholeFile(ZentharPath::GetPath(kFile).c_str(), bytes, reason)) return owners;
  for (auto at = bytes.find(kTag, 4); at != std::string::npos; at = bytes.find(kTag, at + 1)) {
    owners.push_back(LoadLE32(bytes.data() + at - 4));
  }
  return owners;
}

// Moving types without a block of their own keep the view as it is: no fault.
std::string FindFaultOfMovingTypes() {
  for (const unsigned owner : FindOwners()) {
    if (owner == FourCC("FLTR") || owner == FourCC("CAMR")) continue;
    if (std::string fault = FindFault(owner, "moving types"); !fault.empty()) return fault;
  }
  return "";
}

void Tell(const std::string& fault, Diagnostics& diagnostics) {
  if (!fault.empty()) diagnostics.lines.push_back(fault + "\n");
}

}  // namespace

std::string FindFaultOfViewDefaults() { return FindFault(FourCC("CAMR"), "view"); }

void TellFaultsOfDefaults(Diagnostics& diagnostics) {
  Tell(FindFault(FourCC("FLTR"), "settings"), diagnostics);
  Tell(FindFaultOfViewDefaults(), diagnostics);
  Tell(FindFaultOfMovingTypes(), diagnostics);
}

}  // namespace skyview
