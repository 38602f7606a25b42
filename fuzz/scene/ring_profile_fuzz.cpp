// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The profile of Saturn's ring, a catalog table of any bytes.
#include <cmath>
#include <string>

#include "fuzz/scratch.h"
#include "scene/bodies/body_globes.h"

namespace {
using fuzz::Require;
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Scratch::Get().Write("data/catalogs/saturn_ring.txt", data, size);
  const scene::BodyList bodies;
  const scene::BodyGlobes globes(bodies);
  if (globes.GetRing().empty()) return 0;
  Require(globes.GetRingInner() > 1.0f, "a ring lies outside its planet");
  Require(globes.GetRingOuter() > globes.GetRingInner(), "and has a breadth");
  Require(std::isfinite(globes.GetRingOuter()), "that can be drawn");
  return 0;
}
