// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The rules behind lint.h, a source for each family of files. Each reads one file, adds what is wrong with
// it, lets the library's own reader read it too and compares. While they run, the logical paths lead to the
// data root.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "skydata/files/catalog_reader.h"
#include "skydata/files/data_kinds.h"
#include "skydata/lint/fields.h"
#include "skydata/lint/object_index.h"
#include "skydata/lint/reader_watch.h"

namespace skydata {

struct LintFile {
  std::string name;  // below the root, with '/'
  std::string path;  // for readers
  DataKind kind = DataKind::kUnknown;
  std::string
      bytes;  // not of tile catalogs, which may be larger than the memory, nor of what its reader maps
};

struct LintRun {
  std::filesystem::path root;
  std::vector<LintFile> files;
  ObjectIndex objects;
  // Texts of catalogs that others refer to, by column name.
  std::map<std::string, std::vector<std::string>> labels;
  LintFindings findings;
};

void LintCatalog(const LintFile& file, LintRun& run);
void LintTwoLineElements(const LintFile& file, LintRun& run);
void LintStarTiles(const LintFile& file, LintRun& run);
void LintSkyMap(const LintFile& file, LintRun& run);
void LintPreparedSky(const LintFile& file, LintRun& run);
void LintPlanets(const LintFile& file, LintRun& run);
void LintObservationTimes(const LintFile& file, LintRun& run);
void LintArticles(const LintFile& file, LintRun& run);
void LintDistances(const LintFile& file, LintRun& run);
void LintFlightList(const LintFile& file, LintRun& run);
void LintConstellationImages(const LintFile& file, LintRun& run);
void LintMilkyWayImages(const LintFile& file, LintRun& run);
void LintDeepskyImages(const LintFile& file, LintRun& run);
void LintPanoramas(const LintFile& file, LintRun& run);
void LintFavourites(const LintFile& file, LintRun& run);
void LintChosen(const LintFile& file, LintRun& run);
void LintStrings(const LintFile& file, LintRun& run);
void LintSettings(const LintFile& file, LintRun& run);
void LintYearLimits(const LintFile& file, LintRun& run);
void LintHomes(const LintFile& file, LintRun& run);
void LintText(const LintFile& file, LintRun& run);  // for people, and gazetteers: nothing but text

// The elements of an orbit around the Sun, where the record has them: units, and that they fit one another.
void CheckOrbit(const CatalogData& data, const CatalogRecord& record, LintReport& report);

// Of the string tables as a whole: languages that differ. Of the gazetteers: those that are missing.
void CompareLanguages(LintRun& run);
void LintGazetteers(LintRun& run);

// Puts the objects and labels of a catalog into the run, for those that refer to them.
void CollectObjects(const LintFile& file, LintRun& run);
void CollectSatellites(const LintFile& file, LintRun& run);
void CollectStarTiles(const LintFile& file, LintRun& run);

// A finding when a catalog of that kind is there and has no such object.
void CheckReference(const LintRun& run, int kind, int number, int line, int column, LintReport& report);

// A finding when the reader's number of records is another than that of the lines without a fault.
void CompareCounts(int fromReader, int wanted, LintReport& report);

// Where each key stands first.
template <class Key>
class FirstLines {
 public:
  // 0 for a new key, else the line where it stands already.
  int Note(const Key& key, int line) {
    const auto [place, isNew] = m_Lines.emplace(key, line);
    return isNew ? 0 : place->second;
  }
  int GetCount() const { return static_cast<int>(m_Lines.size()); }

 private:
  std::map<Key, int> m_Lines;
};

}  // namespace skydata
