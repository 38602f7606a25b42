// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Homes, read by a camera, gone to and written again.
#include <cmath>
#include <cstring>

#include "common_interfaces/camera.h"
#include "fuzz/scratch.h"
#include "utils/text.h"

namespace {

bool IsTerminated(const char* text, std::size_t size) { return std::memchr(text, 0, size) != nullptr; }

void CheckHome(const CommonInterfaces::Camera& camera, const SSO_ID& observer) {
  const auto* home = camera.FindHome(observer);
  if (!home) return;
  fuzz::Require(home->observer == observer, "a home stands under its observer");
  fuzz::Require(IsTerminated(home->locationName, sizeof home->locationName), "a name ends");
  fuzz::Require(IsTerminated(home->timeZoneName, sizeof home->timeZoneName), "a zone ends");
  fuzz::Require(std::isfinite(home->location.lat) && std::isfinite(home->zoom), "numbers are finite");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Scratch::Get().Write("work/home_params.ini", data, size);
  const SSO_ID observers[] = {SSO_ID(), SSO_ID(FourCC("plnt"), 3), SSO_ID(FourCC("plnt"), 4)};
  CommonInterfaces::Camera camera(1);
  for (const SSO_ID& observer : observers) CheckHome(camera, observer);
  camera.GoHome(true);
  camera.IsHome(1.0f);
  camera.StoreParams(15);
  // Homes that were damaged in the file are not saved over it.
  if (!camera.StoreHomeParams()) {
    fuzz::Scratch::Get().Remove("work/home_params.ini");
    fuzz::Require(camera.StoreHomeParams(), "homes can be saved where no file is");
  }
  // What was written is never damaged.
  CommonInterfaces::Camera later(1);
  for (const SSO_ID& observer : observers) {
    CheckHome(later, observer);
    const auto* home = camera.FindHome(observer);
    if (home && (home->flags & CommonInterfaces::kHomeLocation) != 0)
      fuzz::Require(later.FindHome(observer) != nullptr, "a home with a place comes back");
  }
  fuzz::Scratch::Get().Remove("work/home_params.ini");
  return 0;
}
