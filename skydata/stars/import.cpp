// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/import.h"

#include <cstdlib>
#include <stdexcept>

#include "astro/healpix.h"
#include "scene/catalogs/star_tiles.h"
#include "skydata/files/catalog_reader.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/stars/known_stars.h"
#include "skydata/stars/motion.h"
#include "skydata/stars/star_input.h"
#include "utils/numbers.h"

namespace skydata {
namespace {

namespace fs = std::filesystem;

double ReadCell(const CatalogData& data, const CatalogRecord& record, const char* column, double missing) {
  const TextField* const cell = data.FindCell(record, data.FindColumn(column));
  std::string_view text = cell ? std::string_view(cell->text) : std::string_view();
  double value = missing;
  TakeNumber(text, value);
  return value;
}

void AddBrightStars(const fs::path& dataRoot, KnownStars& known) {
  const CatalogData data = ReadCatalog(SplitPlainLines(ReadFile(dataRoot / "catalogs" / "stars.txt")));
  constexpr double kMissing = 1e9;
  for (const CatalogRecord& record : data.records) {
    const double ra = ReadCell(data, record, "RA", kMissing), dec = ReadCell(data, record, "Dec", kMissing);
    const double magnitude = ReadCell(data, record, "VisMagnitude", kMissing);
    if (!(ra < kMissing && dec < kMissing && magnitude < kMissing)) continue;
    const double east = ReadCell(data, record, "PropMotionRA", 0.0);
    const double north = ReadCell(data, record, "PropMotionDec", 0.0);
    known.Add(scene::MakeDirection(ra, dec), MakeMotion(ra, dec, east, north), magnitude, false);
  }
}

void AddTiles(const fs::path& dataRoot, KnownStars& known) {
  const fs::path path = dataRoot / "catalogs" / "stars.tiles";
  if (!fs::exists(path)) return;
  scene::StarTiles tiles;
  std::string error;
  if (!tiles.Open(path.string().c_str(), error)) throw std::runtime_error(error);
  for (int band = 0; band < tiles.GetBandCount(); ++band) {
    for (std::uint32_t cell = 0; cell < astro::GetHealpixCellCount(tiles.GetBand(band).order); ++cell) {
      const scene::StarTileRecords stars = tiles.GetStars(band, cell);
      for (std::uint32_t i = 0; i < stars.GetCount(); ++i)
        known.Add(stars[i].GetDirection(), stars[i].GetMotion(), stars[i].GetMillimagnitudes() / 1000.0,
                  false);
    }
  }
}

// So often that the bar moves, so seldom that it costs nothing.
bool IsTimeToShow(std::uint64_t stars) { return stars % 16384 == 0; }

}  // namespace

StarImport ImportStars(const fs::path& file, const fs::path& dataRoot, const fs::path& output,
                       ProgressBar& progress) {
  KnownStars known;
  AddBrightStars(dataRoot, known);
  AddTiles(dataRoot, known);
  known.Sort();
  const std::unique_ptr<StarInput> input = OpenStarInput(file);
  StarImport counts;
  scene::TileStar star;
  for (; input->Take(star); ++counts.read) {
    known.NoteNear(scene::MakeDirection(star.ra, star.dec));
    if (IsTimeToShow(counts.read)) progress.Show("looking for known stars", input->GetShare());
  }
  std::error_code ignored;
  fs::create_directories(fs::absolute(output).parent_path(), ignored);
  scene::StarTileWriter writer;
  bool isWritten = writer.Open(output.string().c_str(), input->GetOrigin());
  std::uint64_t taken = 0;
  for (input->Rewind(); isWritten && input->Take(star); ++taken) {
    if (known.Has(scene::MakeDirection(star.ra, star.dec), star.magnitude)) {
      ++counts.known;
    } else {
      isWritten = writer.Add(star);
    }
    if (IsTimeToShow(taken)) progress.Show("reading", input->GetShare());
  }
  if (isWritten && taken != counts.read) throw SourceError(file.string(), 0, "it changed while it was read");
  if (!isWritten || !writer.Commit([&](double share) { progress.Show("writing", share); }))
    throw std::runtime_error(writer.GetError());
  counts.placeless = input->GetPlaceless();
  return counts;
}

}  // namespace skydata
