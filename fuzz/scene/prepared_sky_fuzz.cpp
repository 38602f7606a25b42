// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Prepared catalogs of any bytes. So that mutations reach what stands behind the fingerprint, the bytes are
// read a second time with one that fits.
#include <string>

#include "fuzz/scratch.h"
#include "scene/catalogs/name_index.h"
#include "scene/catalogs/prepared_parts.h"
#include "utils/bytes.h"
#include "utils/checksum.h"

namespace {

using fuzz::Require;

constexpr std::size_t kCheckAt = 80, kPartsAt = 88;  // docs/formats/prepared_sky.md

void Take(const std::string& bytes, scene::PreparedSky part, const char* file) {
  fuzz::Scratch::Get().Write(file, reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  scene::SkyCatalogs catalogs;
  if (!scene::TakePreparedSky(part, catalogs)) return;
  Require(scene::PreparedParts::AreSound(catalogs), "what is taken is sound");
  const bool isStars = part == scene::PreparedSky::kStars;
  const auto count = isStars ? static_cast<std::size_t>(catalogs.stars.GetCount()) : catalogs.deepsky.size();
  const scene::NameIndex& names = isStars ? *catalogs.starNames : *catalogs.deepskyNames;
  constexpr std::size_t kMost = 16;  // names to be looked for
  for (std::size_t i = 0; i < names.GetCount(); ++i) {
    const scene::NameIndex::Name name = names[i];
    Require((name.object & ~scene::kNamedDeepsky) < count, "a name is that of an object");
    if (i < kMost) names.ForKey(name.key, name.form, [](const auto&) {});
  }
}

void TakeBoth(const std::string& bytes) {
  Take(bytes, scene::PreparedSky::kStars, "data/catalogs/stars.prepared");
  Take(bytes, scene::PreparedSky::kDeepsky, "data/catalogs/ngc_ic.prepared");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  TakeBoth(bytes);
  if (size < kPartsAt) return 0;
  StoreLE64(bytes.data() + kCheckAt, GetFingerprint(std::string_view(bytes).substr(kPartsAt)));
  TakeBoth(bytes);
  return 0;
}
