// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/prepared_sky.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <memory>
#include <string_view>
#include <utility>

#include "scene/catalogs/name_index.h"
#include "scene/catalogs/prepared_parts.h"
#include "utils/bytes.h"
#include "utils/checksum.h"
#include "utils/debug.h"
#include "utils/mapped_file.h"

namespace scene {
namespace {

// The file: magic, version, the texts, the fingerprint of what follows.
constexpr std::string_view kMagic = "SKYREADY";
constexpr std::uint32_t kVersion = 2;
constexpr char kDamaged[] = "the prepared catalogs are damaged";
constexpr std::size_t kTextEntrySize = 16;  // size and fingerprint
constexpr std::size_t kPartAt = 12, kTextsAt = 16, kMostTexts = 4;
constexpr std::size_t kCheckAt = kTextsAt + kMostTexts * kTextEntrySize, kPartsAt = kCheckAt + 8;

// What a part is made of; null where it is of less.
struct PartFiles {
  const char* name;
  const char* texts[kMostTexts];
};
constexpr PartFiles kFiles[] = {
    {"catalogs:stars.prepared",
     {"catalogs:stars.txt", "catalogs:constellations.txt", "catalogs:constellation_lines.txt",
      "catalogs:constellation_bounds.txt"}},
    {"catalogs:ngc_ic.prepared",
     {"catalogs:deepsky.txt", "catalogs:ngc_ic.txt", "catalogs:nebula_outlines.txt", nullptr}}};

const PartFiles& GetFiles(PreparedSky part) { return kFiles[static_cast<std::size_t>(part)]; }

std::string_view GetView(const MappedFile& file) {
  return {reinterpret_cast<const char*>(file.GetBytes()), file.GetSize()};
}

// What stands in the file for a text: its size and fingerprint, zeros for one that is not there.
std::string MakeTextEntry(const char* name, const std::string& root = "") {
  std::string entry(kTextEntrySize, '\0');
  const std::string path = name ? FindCatalog(name, root) : "";
  MappedFile file;
  std::string ignored;
  if (path.empty() || !file.Open(path.c_str(), ignored)) return entry;
  StoreLE64(entry.data(), file.GetSize());
  StoreLE64(entry.data() + 8, GetFingerprint(GetView(file)));
  return entry;
}

// The texts that are others by now than those which the file was made of.
std::vector<std::string> FindChangedTexts(PreparedSky part, std::string_view file) {
  std::vector<std::string> changed;
  for (std::size_t i = 0; i < kMostTexts; ++i) {
    const char* const name = GetFiles(part).texts[i];
    if (name && file.substr(kTextsAt + i * kTextEntrySize, kTextEntrySize) != MakeTextEntry(name))
      changed.push_back(name);
  }
  return changed;
}

// Whether the names are those of objects of the part that are there.
bool AreNamesSound(const NameIndex& names, PreparedSky part, const SkyCatalogs& catalogs) {
  const std::uint32_t first = part == PreparedSky::kStars ? 0 : kNamedDeepsky;
  const std::size_t count = part == PreparedSky::kStars ? static_cast<std::size_t>(catalogs.stars.GetCount())
                                                        : catalogs.deepsky.size();
  for (std::size_t i = 0; i < names.GetCount(); ++i) {
    if (names.GetObject(i) - first >= count) return false;
  }
  return true;
}

bool Fail(std::string& error, const char* text) {
  error = text;
  return false;
}

// False with one line when the bytes are no such file.
bool ReadHeader(std::string_view bytes, PreparedSky& part, std::string& error) {
  if (bytes.size() < kPartsAt || !bytes.starts_with(kMagic))
    return Fail(error, "these are no prepared catalogs");
  if (LoadLE32(bytes.data() + kMagic.size()) != kVersion)
    return Fail(error, "these are prepared catalogs of another version");
  const std::uint32_t number = LoadLE32(bytes.data() + kPartAt);
  if (number >= std::size(kFiles)) return Fail(error, kDamaged);
  part = static_cast<PreparedSky>(number);
  return true;
}

// Takes everything but the texts; the names keep the file.
bool ReadParts(MappedFile file, PreparedSky part, SkyCatalogs& catalogs, std::string& error) {
  const std::string_view bytes = GetView(file), parts = bytes.substr(kPartsAt);
  if (GetFingerprint(parts) != LoadLE64(bytes.data() + kCheckAt)) return Fail(error, kDamaged);
  PreparedReader reader(parts);
  PreparedParts::Read(part, catalogs, reader);
  const std::size_t count = reader.TakeCount(NameIndex::kEntrySize);
  const std::size_t entriesAt = kPartsAt + reader.GetPlace();
  reader.TakeBytes(count * NameIndex::kEntrySize);
  const std::size_t size = reader.TakeCount(1);
  const std::size_t textsAt = kPartsAt + reader.GetPlace();
  reader.TakeBytes(size);
  const auto names = std::make_shared<NameIndex>();
  if (!reader.IsDone() || !PreparedParts::AreSound(catalogs) ||
      !names->Open(std::move(file), entriesAt, count, textsAt, size) ||
      !AreNamesSound(*names, part, catalogs)) {
    return Fail(error, kDamaged);
  }
  (part == PreparedSky::kStars ? catalogs.starNames : catalogs.deepskyNames) = names;
  return true;
}

// Puts the part, whose tables are read when they are asked for, among the catalogs.
void MovePart(PreparedSky part, SkyCatalogs& from, SkyCatalogs& to) {
  if (part == PreparedSky::kStars) {
    to.stars = std::move(from.stars);
    to.figurePoints = std::move(from.figurePoints);
    to.figures = std::move(from.figures);
    to.constellations = std::move(from.constellations);
    to.bounds = std::move(from.bounds);
    to.starNames = std::move(from.starNames);
    to.starTable.Defer(FindCatalog("catalogs:stars.txt").c_str());
  } else {
    to.deepsky = std::move(from.deepsky);
    to.nebulaOutlines = std::move(from.nebulaOutlines);
    to.deepskyNames = std::move(from.deepskyNames);
    to.deepsky.tables[kMessierTable].Defer(FindCatalog("catalogs:deepsky.txt").c_str());
    to.deepsky.tables[kNgcTable].Defer(FindCatalog("catalogs:ngc_ic.txt").c_str());
  }
}

}  // namespace

const char* GetPreparedName(PreparedSky part) { return GetFiles(part).name; }

std::string PrepareSky(PreparedSky part, const std::string& root, std::string& error) {
  SkyCatalogs catalogs;
  if (!LoadCatalogTexts(part, catalogs, error, root)) return {};
  NameIndex names;
  part == PreparedSky::kStars ? AddStarNames(catalogs, names) : AddDeepskyNames(catalogs, names);
  PreparedWriter parts;
  PreparedParts::Write(part, catalogs, parts);
  parts.Value(static_cast<std::uint32_t>(names.GetCount()));
  parts.Bytes(names.GetEntries());
  parts.Value(std::string(names.GetTexts()));
  PreparedWriter file;
  file.Bytes(kMagic);
  file.Value(kVersion);
  file.Value(static_cast<std::uint32_t>(part));
  for (const char* text : GetFiles(part).texts) file.Bytes(MakeTextEntry(text, root));
  file.Value(GetFingerprint(parts.GetBytes()));
  file.Bytes(parts.GetBytes());
  return file.GetBytes();
}

bool InspectPreparedSky(const char* path, PreparedSkySummary& summary, std::string& error) {
  MappedFile file;
  if (!file.Open(path, error) || !ReadHeader(GetView(file), summary.part, error)) return false;
  summary.changedTexts = FindChangedTexts(summary.part, GetView(file));
  SkyCatalogs catalogs;
  if (!ReadParts(std::move(file), summary.part, catalogs, error)) return false;
  if (summary.part == PreparedSky::kStars) {
    summary.counts = {{"stars", static_cast<std::size_t>(catalogs.stars.GetCount())},
                      {"strokes of figures", catalogs.figures.size()},
                      {"constellations", catalogs.constellations.size()},
                      {"boundaries", catalogs.bounds.GetEdges().size()},
                      {"names", catalogs.starNames->GetCount()}};
  } else {
    summary.counts = {{"deep-sky objects", catalogs.deepsky.size()},
                      {"outlines of nebulae", catalogs.nebulaOutlines.outlines.size()},
                      {"points of outlines", catalogs.nebulaOutlines.points.size()},
                      {"names", catalogs.deepskyNames->GetCount()}};
  }
  return true;
}

bool TakePreparedSky(PreparedSky part, SkyCatalogs& catalogs) {
  const std::string path = FindCatalog(GetPreparedName(part));
  if (path.empty()) return false;
  MappedFile file;
  std::string error;
  PreparedSky found = part;
  bool isTaken = file.Open(path.c_str(), error) && ReadHeader(GetView(file), found, error) &&
                 (found == part || Fail(error, kDamaged));
  if (isTaken && !FindChangedTexts(part, GetView(file)).empty()) return false;
  SkyCatalogs read;
  isTaken = isTaken && ReadParts(std::move(file), part, read, error);
  if (isTaken) {
    MovePart(part, read, catalogs);
  } else {
    PrintDebugString("%s: %s; the tables are read instead\n", path.c_str(), error.c_str());
  }
  return isTaken;
}

}  // namespace scene
