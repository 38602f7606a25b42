// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A map of the sky of any bytes, read and looked at in all directions. So that mutations reach what stands
// behind the sum, the bytes are read a second time with the sum and the length mended.
#include <cmath>
#include <cstring>
#include <string>

#include "fuzz/scratch.h"
#include "scene/catalogs/sky_map.h"
#include "utils/bytes.h"
#include "utils/checksum.h"

namespace {

using fuzz::Require;

void LookEverywhere(const std::string& bytes) {
  scene::SkyMap map;
  std::string reason;
  if (!map.Read(bytes, reason)) {
    Require(map.IsEmpty() && !reason.empty() && reason.find('\n') == std::string::npos,
            "a map that is refused is empty, for a reason");
    return;
  }
  const auto cells = static_cast<std::size_t>(map.GetSide()) * static_cast<std::size_t>(map.GetSide());
  Require(cells + map.GetOrigin().size() + 24 == bytes.size(), "cells are bytes of the file");
  constexpr int kDirections = 500;
  for (int i = 0; i < kDirections; ++i) {
    const float found = map.Find(scene::MakeDirection(2.4 * i, std::asin(1.0 - 2.0 * i / (kDirections - 1))));
    Require(found >= 0.0f && found <= 255.01f, "a mean of bytes");
  }
}

void Mend(std::string& bytes) {
  if (bytes.size() < 28) return;
  std::memcpy(bytes.data(), "SKYLIGHT", 8);
  StoreLE32(&bytes[8], 1);
  const std::size_t size = 24 + LoadLE32(&bytes[12]) % 32, side = 2 + LoadLE32(&bytes[20]) % 8 * 2;
  StoreLE32(&bytes[12], static_cast<std::uint32_t>(size));
  StoreLE32(&bytes[20], static_cast<std::uint32_t>(side));
  bytes.resize(size + side * side, 'x');
  StoreLE32(&bytes[16], 0);
  StoreLE32(&bytes[16], GetCrc32(bytes));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  LookEverywhere(bytes);
  Mend(bytes);
  LookEverywhere(bytes);
  return 0;
}
