// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Files of two-line elements, and the satellites of them.
#include <set>
#include <string>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "scene/catalogs/satellites.h"
#include "utils/text.h"

using fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string path = fuzz::Scratch::Get().Write("data/satellites.tle", data, size);
  scene::BodyList bodies(1);
  bodies[0].id = SSO_ID(FourCC("plnt"), 10);
  std::string error;
  if (!scene::LoadSatellites(path, bodies, error)) {
    Require(bodies.size() == 1, "a file without satellites adds none");
    Require(fuzz::IsOneLine(error) && error.find(path) != std::string::npos, "one line names it");
    return 0;
  }
  Require(bodies.size() > 1 && bodies.size() <= 1 + size / 138, "each satellite has its two lines");
  std::set<int> numbers;
  for (std::size_t i = 1; i < bodies.size(); ++i) {
    Require(bodies[i].hasElements && !bodies[i].names.empty() && !bodies[i].names[0].empty(),
            "a satellite has elements and a name");
    Require(numbers.insert(bodies[i].id.number).second, "and a number of its own");
  }
  scene::SkyMoment moment{};
  moment.day = 2461056;
  scene::ReportLostSatellites(path, bodies, moment);
  return 0;
}
