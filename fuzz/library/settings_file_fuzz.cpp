// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Settings files: reading with and without defaults, in both layouts, restoring, and writing again what was
// read.
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "fuzz/scratch.h"
#include "fuzz/settings_walk.h"
#include "utils/text.h"

using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

namespace {

constexpr unsigned kId = 1;
const unsigned kOwner = static_cast<unsigned>(FourCC("FLTR"));

void WalkSection(SettingsData& settings, unsigned section) {
  for (bool all : {false, true}) fuzz::WalkQueries(settings, section, all);
  std::map<int, unsigned char> favourites;
  settings.GetFavoInfo(&favourites, static_cast<int>(section));
  std::vector<int> ids;
  settings.GetObjectInfo(ids, static_cast<int>(section), -1);
  for (int id : ids) {
    const SSO_ID object(static_cast<int>(section), id);
    settings.GetAtField(object, true);
    settings.SetAimObject(object);
  }
  settings.GetSectionStatus(section, true);
}

void Walk(SettingsData& settings) {
  for (int i = 0; i < settings.GetFieldCount(); ++i) {
    const SettingField& field = *settings.GetFieldAt(i);
    fuzz::Require(field.IsOk(), "a container holds sound fields only");
    fuzz::WalkField(field);
    settings.GetAtField(field.GetSection(), field.GetNameId(), true);
  }
  std::vector<unsigned> sections;
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    const unsigned id =
        settings.GetSectionAt(i)->id;  // a member of a packed record: no reference may bind to it
    sections.push_back(id);
  }
  for (unsigned section : sections) WalkSection(settings, section);
  SSO_ID planet;
  settings.GetIntegrPlnt(&planet);
  settings.ClearIntegrFlag();
}

// What was read, damaged or not, must make a file with its block in it.
void WriteAgain(SettingsData& settings) {
  fuzz::Scratch::Get().Remove("work/again.data");
  fuzz::Require(settings.Write("again.data"), "the container can be written");
  fuzz::Require(SettingsData::HoldsBlock("again.data", kOwner, settings.GetID()), "a written block is found");
  fuzz::Require(settings.Save("again.data"), "the container can be saved over its own block");
  fuzz::Require(SettingsData::HoldsBlock("again.data", kOwner, settings.GetID()), "a saved block is found");
}

void ReadBothWays(const std::string& path, bool oldLayout) {
  SettingsData settings(kId, kOwner, path.c_str());
  settings.Read(nullptr);
  Walk(settings);
  SettingField::SetOldSettings(oldLayout);
  settings.Read(path.c_str());
  SettingField::SetOldSettings(false);
  Walk(settings);
  settings.Restore(path.c_str());
  Walk(settings);
  WriteAgain(settings);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string path = fuzz::Scratch::Get().Write("data/filters.data", data, size);
  ReadBothWays(path, false);
  ReadBothWays(path, true);
  // Alone, without defaults of its own.
  SettingsData settings(kId, kOwner, "absent.data");
  settings.Read(path.c_str());
  Walk(settings);
  settings.GetNumberParts(path.c_str(), kOwner);
  return 0;
}
