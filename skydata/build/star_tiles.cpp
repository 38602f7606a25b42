// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/star_tiles.h"

#include <set>
#include <stdexcept>
#include <vector>

#include "scene/catalogs/star_tile_record.h"
#include "scene/catalogs/star_tile_writer.h"
#include "skydata/build/source_table.h"
#include "skydata/build/star_catalog.h"
#include "skydata/files/whole_file.h"
#include "skydata/stars/known_stars.h"
#include "skydata/stars/motion.h"

namespace skydata {
namespace {

enum Column { kHip, kRA, kDec, kMagnitude, kColour };

const std::vector<std::string> kColumns = {"HIP", "RA_deg", "Dec_deg", "V_mag", "B-V_mag"};
constexpr int kMostHip = 999999;

constexpr char kOrigin[] =
    "Hipparcos stars that are not in the Bright Star Catalogue. XHIP (Anderson & Francis 2012, CDS V/137D), "
    "from "
    "d3-celestial 0.7.35, BSD-3-Clause, (c) 2015 Olaf Frohn; licence in stars.source.md.";

std::vector<scene::TileStar> ReadStars(const std::filesystem::path& path, std::set<int>& brightHip,
                                       StarTilesFile& made) {
  const SourceTable table(path, kColumns);
  std::vector<scene::TileStar> stars;
  std::set<int> numbers;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const int hip = table.GetInteger(row, kHip, 1, kMostHip);
    if (!numbers.insert(hip).second) table.Fail(row, kHip, std::to_string(hip) + " stands above already");
    scene::TileStar star;
    star.number = scene::kHipparcosNumbers + hip;
    star.ra = table.GetNumber(row, kRA, 0.0, 360.0) * scene::kRadiansPerDegree;
    star.dec = table.GetNumber(row, kDec, -90.0, 90.0) * scene::kRadiansPerDegree;
    star.magnitude = table.GetNumber(row, kMagnitude, -2.0, 30.0);
    star.colour = table.FindNumber(row, kColour, -2.0, 10.0).value_or(scene::TileStar::kUnknown);
    if (brightHip.count(hip) > 0) {
      ++made.knownByNumber;
    } else {
      stars.push_back(star);
    }
  }
  return stars;
}

}  // namespace

StarTilesFile MakeStarTiles(const std::filesystem::path& source, const std::filesystem::path& folder) {
  StarTilesFile made;
  KnownStars bright;
  std::set<int> brightHip;
  for (const BrightStar& star : ReadBrightStars(source)) {
    bright.Add(scene::MakeDirection(star.ra, star.dec),
               MakeMotion(star.ra, star.dec, star.motionEast, star.motionNorth), star.magnitude,
               star.hip > 0);
    if (star.hip > 0) brightHip.insert(star.hip);
  }
  bright.Sort();
  const auto stars = ReadStars(source / "stars" / "hipparcos.tsv", brightHip, made);
  for (const auto& star : stars) bright.NoteNear(scene::MakeDirection(star.ra, star.dec));
  const ScratchFile scratch(folder);
  const std::string path = scratch.GetPath().string();
  scene::StarTileWriter writer;
  bool isWritten = writer.Open(path.c_str(), kOrigin);
  for (const auto& star : stars) {
    if (bright.Has(scene::MakeDirection(star.ra, star.dec), star.magnitude)) {
      ++made.knownByPlace;
    } else {
      isWritten = isWritten && writer.Add(star);
    }
  }
  if (!isWritten || !writer.Commit()) throw std::runtime_error(writer.GetError());
  made.stars = static_cast<int>(writer.GetCount());
  made.bytes = ReadFile(scratch.GetPath());
  return made;
}

}  // namespace skydata
