// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Changes of settings as text, one a line. What was changed is written as changes that make the same of the
// defaults.
#include <string>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "scene/visibility/setting_change.h"
#include "scene/visibility/setting_values.h"
#include "support/camera_settings.h"

namespace {

using CommonInterfaces::SettingsData;
using fuzz::Require;

// A field of each type that a file may have.
void Fill(SettingsData& settings) {
  using namespace test_support;
  const auto star = static_cast<unsigned>(FourCC("star")), grid = static_cast<unsigned>(FourCC("grid"));
  AddField(settings, star, UInt8("Draw", 1));
  AddField(settings, star, Int8("Shift", -3));
  AddField(settings, star, Int16("VisMagnitude", {1, 2, 3}));
  AddField(settings, star, Float("Opacity", 0.5f));
  AddField(settings, grid, Int32("RADecGrid", 7));
  AddField(settings, grid, UInt32("Colour", 0xFF00FF00));
  AddField(settings, grid, Double("Step", 0.25));
  AddField(settings, grid, MakeField<double>("Range", CommonInterfaces::kFieldDouble, {0.0, 1.0}));
  settings.SetSectionStatus(star, 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Scratch::Get();
  fuzz::Input input(data, size);
  SettingsData settings(1, static_cast<unsigned>(FourCC("FLTR")), "absent.data"),
      defaults(1, static_cast<unsigned>(FourCC("FLTR")), "absent.data");
  Fill(settings);
  Fill(defaults);
  std::string text = input.TakeRest();
  while (!text.empty()) {
    const auto end = std::min(text.find('\n'), text.size());
    const std::string change = text.substr(0, end);
    text.erase(0, end + 1);
    const auto before = scene::FindChanges(settings, defaults);
    std::string error;
    scene::FindUndrawnReason(change);
    if (scene::ChangeSetting(change, settings, error)) continue;
    Require(!error.empty() && error.find('\n') == std::string::npos, "a change that is refused says why");
    Require(scene::FindChanges(settings, defaults) == before, "and changes nothing");
  }
  std::string error;
  for (const std::string& change : scene::FindChanges(settings, defaults))
    Require(scene::ChangeSetting(change, defaults, error), "a change that was written can be read");
  Require(scene::FindChanges(settings, defaults).empty(), "and makes the same settings");
  return 0;
}
