// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The file of magnitude corrections that every settings container loads when it is made, and never releases.
#include <cstdint>

#include "common_interfaces/settings_data.h"
#include "fuzz/scratch.h"
#include "fuzz/settings_walk.h"
#include "utils/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Scratch::Get().Write("data/FilterCorrection.data", data, size);
  CommonInterfaces::SettingsData settings(1, static_cast<unsigned>(FourCC("FLTR")), "absent.data");
  for (int i = 0; i < settings.GetCorrectionCount(); ++i) {
    fuzz::Require(settings.GetCorrectionAt(i) != nullptr, "every counted correction is there");
    fuzz::WalkField(*settings.GetCorrectionAt(i));
  }
  return 0;
}
