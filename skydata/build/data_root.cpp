// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/data_root.h"

#include <map>
#include <stdexcept>

#include "scene/catalogs/prepared_sky.h"
#include "skydata/build/catalog_files.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/milky_way_map.h"
#include "skydata/build/star_tiles.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/files/year_limits.h"
#include "skydata/settings/text/compiler.h"
#include "skydata/settings/text/parser.h"
#include "skydata/strings/table.h"

namespace skydata {
namespace {

namespace fs = std::filesystem;

// Name below the data root, bytes; the order of the names is the order of writing.
using Files = std::map<fs::path, std::string>;

constexpr char kStringTable[] = "qxstrings.txt";

struct Catalog {
  const char* name;
  const char* origin;  // below the source folder
  std::string (*make)(const fs::path& source);
};
constexpr Catalog kCatalogs[] = {
    {"stars", "stars/SOURCE.md", MakeStarCatalog},
    {"deepsky", "deepsky/SOURCE.md", MakeDeepskyCatalog},
    {"ngc_ic", "deepsky/openngc.source.md", MakeNgcCatalog},
    {"nebula_outlines", "deepsky/outlines.source.md", MakeNebulaOutlines},
    {"constellations", "constellations/SOURCE.md", MakeConstellationCatalog},
    {"constellation_lines", "constellations/SOURCE.md", MakeConstellationLines},
    {"constellation_bounds", "constellations/SOURCE.md", MakeConstellationBounds},
    {"saturn_ring", "maps/SOURCE.md", MakeSaturnRing},
    {"names", "names/SOURCE.md", MakeObjectNames},
    {"asterisms", "names/SOURCE.md", MakeAsterisms},
    {"asterism_lines", "names/SOURCE.md", MakeAsterismLines},
    {"cities", "cities/SOURCE.md", MakeCities},
    {"double_stars", "doubles/SOURCE.md", MakeDoubleStars},
    {"asteroids", "orbits/SOURCE.md", MakeAsteroidCatalog},
    {"comets", "orbits/SOURCE.md", MakeCometCatalog}};

void AddCatalogs(const fs::path& source, Files& files) {
  for (const Catalog& catalog : kCatalogs) {
    const fs::path base = fs::path("catalogs") / catalog.name;
    files[base.string() + ".txt"] = catalog.make(source);
    files[base.string() + ".source.md"] = ReadFile(source / catalog.origin);
  }
}

// The files that the library's own readers open, each beside the origin of its data.
struct CatalogFile {
  const char* folder;  // below the data root
  const char* name;
  const char* extension;
  std::string (*make)(const fs::path& source);
  const char* origin;  // below the source folder
};
constexpr CatalogFile kCatalogFiles[] = {
    {"catalogs", "milkyway", ".map", MakeMilkyWayMap, "milkyway/SOURCE.md"},
    {"catalogs", "satellites", ".tle", MakeSatellites, "orbits/SOURCE.md"},
    {"catalogs/comets", "best_observation_time", ".ini", MakeObservationTimes, "comets/SOURCE.md"},
    {"catalogs/planets&moons", "planets&moons", ".txt", MakePlanetsAndMoons, "bodies/SOURCE.md"},
    {"media/find", "object_articles_table", ".bin", MakeArticles, "find/SOURCE.md"},
    {"media/find", "object_distances_table", ".bin", MakeDistances, "find/SOURCE.md"},
    {"media/find", "3d_flight_to_objects", ".txt", MakeFlightObjects, "find/SOURCE.md"},
    {"media/surface", "panoramas", ".ini", MakePanoramas, "surface/SOURCE.md"},
    {"media/skyobjects/constell_images", "constell", ".dat", MakeConstellationImages, "skyobjects/SOURCE.md"},
    {"media/skyobjects/mway_images", "mway", ".dat", MakeMilkyWayImages, "skyobjects/SOURCE.md"},
    {"media/skyobjects/dso_images", "dsoimagestrue", ".txt", MakeDeepskyImages,
     "skyobjects/dso_images.source.md"}};

void AddCatalogFiles(const fs::path& source, Files& files) {
  for (const CatalogFile& file : kCatalogFiles) {
    const std::string base = std::string(file.folder) + "/" + file.name;
    files[base + file.extension] = file.make(source);
    files[base + ".source.md"] = ReadFile(source / file.origin);
  }
}

// Pictures, as they stand.
void AddPictures(const fs::path& folder, const char* extension, const fs::path& to, Files& files) {
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == extension) files[to / entry.path().filename()] = ReadFile(entry.path());
  }
}

// The names on the surfaces of bodies, a file for each.
void AddGazetteers(const fs::path& folder, Files& files) {
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".tsv") continue;
    files[fs::path("gazetteers") / (entry.path().stem().string() + "_features.txt")] =
        MakeGazetteer(entry.path());
  }
  files["gazetteers/gazetteers.source.md"] = ReadFile(folder / "SOURCE.md");
}

// The string table of every language, and that of the default one where programs without a language look.
void AddStrings(const fs::path& folder, const std::string& language, Files& files) {
  files[kStringTable] = MakeStringTable(folder / language / kStringTable);
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (!entry.is_directory()) continue;
    files[fs::path("languages") / entry.path().filename() / kStringTable] =
        MakeStringTable(entry.path() / kStringTable);
  }
}

// Every settings text of a folder becomes the settings file of that name.
void AddSettings(const fs::path& folder, const fs::path& to, const fs::path& scratch, Files& files) {
  if (!fs::is_directory(folder)) throw SourceError(folder.string(), 0, "no such folder");
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".ini") continue;
    const fs::path name = entry.path().stem().string() + ".data";
    files[to / name] = CompileSettings(ParseSettings(entry.path()), scratch);
  }
}

// What programs would make of the tables at every start; how many files.
int PrepareCatalogs(const fs::path& out) {
  int count = 0;
  for (const auto& [part, name] : {std::pair(scene::PreparedSky::kStars, "stars.prepared"),
                                   std::pair(scene::PreparedSky::kDeepsky, "ngc_ic.prepared")}) {
    std::string failure;
    const std::string prepared = scene::PrepareSky(part, out.string(), failure);
    if (prepared.empty()) throw std::runtime_error(failure);
    ReplaceFile(out / "catalogs" / name, prepared);
    ++count;
  }
  return count;
}

}  // namespace

int BuildDataRoot(const fs::path& source, const fs::path& out, const std::string& language) {
  std::error_code error;
  if (!fs::is_directory(source)) throw SourceError(source.string(), 0, "no such folder");
  fs::create_directories(out, error);
  if (!fs::is_directory(out)) throw SourceError(out.string(), 0, "cannot be made");
  Files files;
  AddStrings(source / "strings", language, files);
  AddSettings(source / "settings", "", out, files);
  AddSettings(source / "views", "views", out, files);
  AddCatalogs(source, files);
  AddCatalogFiles(source, files);
  files["catalogs/stars.tiles"] = MakeStarTiles(source, out).bytes;  // its origin: stars.source.md
  AddPictures(source / "surface", ".svg", "media/surface", files);
  AddPictures(source / "maps", ".jpg", "media/maps", files);
  files["media/maps/maps.source.md"] = ReadFile(source / "maps" / "SOURCE.md");
  AddGazetteers(source / "gazetteers", files);
  files["media/time_interval.ini"] = CheckYearLimits(source / "media" / "time_interval.ini");
  for (const auto& [name, bytes] : files) ReplaceFile(out / name, bytes);
  return static_cast<int>(files.size()) + PrepareCatalogs(out);
}

}  // namespace skydata
