// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/lint.h"

#include <algorithm>
#include <fstream>

#include "scene/catalogs/star_tile_record.h"
#include "skydata/files/object_names.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/lint/rules.h"
#include "utils/path.h"
#include "utils/text.h"

namespace skydata {
namespace {

namespace fs = std::filesystem;

struct KindRule {
  DataKind kind;
  void (*check)(const LintFile& file, LintRun& run);
};
constexpr KindRule kRules[] = {{DataKind::kStrings, LintStrings},
                               {DataKind::kSettings, LintSettings},
                               {DataKind::kYearLimits, LintYearLimits},
                               {DataKind::kCatalogTable, LintCatalog},
                               {DataKind::kTwoLineElements, LintTwoLineElements},
                               {DataKind::kStarTiles, LintStarTiles},
                               {DataKind::kSkyMap, LintSkyMap},
                               {DataKind::kPreparedSky, LintPreparedSky},
                               {DataKind::kPlanets, LintPlanets},
                               {DataKind::kObservationTimes, LintObservationTimes},
                               {DataKind::kArticles, LintArticles},
                               {DataKind::kDistances, LintDistances},
                               {DataKind::kFlightList, LintFlightList},
                               {DataKind::kConstellationImages, LintConstellationImages},
                               {DataKind::kMilkyWayImages, LintMilkyWayImages},
                               {DataKind::kDeepskyImages, LintDeepskyImages},
                               {DataKind::kPanoramas, LintPanoramas},
                               {DataKind::kFavourites, LintFavourites},
                               {DataKind::kChosen, LintChosen},
                               {DataKind::kHomes, LintHomes},
                               {DataKind::kGazetteer, LintCatalog},
                               {DataKind::kNote, LintText}};

// Points the logical paths at the root while it lives.
class RootPaths {
 public:
  explicit RootPaths(const fs::path& root) {
    ZentharPath::SetRoots(root.string().c_str(), root.string().c_str());
  }
  ~RootPaths() { ZentharPath::SetRoots(nullptr, nullptr); }
  RootPaths(const RootPaths&) = delete;
  RootPaths& operator=(const RootPaths&) = delete;
};

void AddFile(const fs::path& path, LintRun& run) {
  LintFile file;
  file.name = path.lexically_relative(run.root).generic_string();
  file.path = path.string();
  file.kind = KindOfName(file.name);
  if (file.kind == DataKind::kOthers) return;
  try {
    const bool isMapped = file.kind == DataKind::kStarTiles || file.kind == DataKind::kPreparedSky;
    if (!isMapped) {
      file.bytes = ReadFile(path);
    } else if (!std::ifstream(path)) {
      throw SourceError(file.path, 0, "cannot be read");
    }
    run.files.push_back(std::move(file));
  } catch (const SourceError& error) {
    LintReport(file.name, run.findings)
        .Add(LintCode::kUnreadable, 0, 0, DescribeRefusal(error, "cannot be read"));
  }
}

bool CanLookInto(const fs::path& folder) {
  std::error_code error;
  const fs::directory_iterator entries(folder, error);
  return !error;
}

void CheckFolder(const fs::path& path, LintRun& run) {
  if (CanLookInto(path)) return;
  const std::string name = path.lexically_relative(run.root).generic_string() + "/";
  LintReport(name, run.findings).Add(LintCode::kUnreadable, 0, 0, "the folder cannot be read");
}

// A folder, a device or a pipe where a reader wants a file; none is opened, because a pipe makes wait.
void CheckPlaceOfFile(const fs::directory_entry& entry, LintRun& run) {
  const std::string name = entry.path().lexically_relative(run.root).generic_string();
  const DataKind kind = KindOfName(name);
  const bool isRead = kind != DataKind::kUnknown && kind != DataKind::kOthers && kind != DataKind::kNote;
  if (!isRead || !IsInPlace(name)) return;
  LintReport(name, run.findings)
      .Add(LintCode::kUnreadable, 0, 0,
           entry.is_directory() ? "a folder stands in the place of the file" : "the file is no regular file");
}

void CollectFiles(LintRun& run) {
  const auto options = fs::directory_options::skip_permission_denied;
  for (const auto& entry : fs::recursive_directory_iterator(run.root, options)) {
    if (entry.is_directory() && !entry.is_symlink()) CheckFolder(entry.path(), run);
    if (entry.is_regular_file() || (entry.is_symlink() && !entry.exists())) {
      AddFile(entry.path(), run);
    } else {
      CheckPlaceOfFile(entry, run);
    }
  }
  std::sort(run.files.begin(), run.files.end(),
            [](const LintFile& a, const LintFile& b) { return a.name < b.name; });
}

void LintFileOf(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  if (file.kind == DataKind::kUnknown) {
    report.Add(LintCode::kUnknownFile, 0, 0, "nothing reads a file of this name");
  } else if (!IsInPlace(file.name)) {
    report.Add(LintCode::kUnknownFile, 0, 0,
               "nothing reads the file here: its place is " + FindPlace(file.name));
  } else {
    const auto rule = std::find_if(std::begin(kRules), std::end(kRules),
                                   [&file](const KindRule& known) { return known.kind == file.kind; });
    rule->check(file, run);
  }
}

}  // namespace

LintFindings Lint(const fs::path& root) {
  if (!fs::is_directory(root)) throw SourceError(root.string(), 0, "no such folder");
  if (!CanLookInto(root)) throw SourceError(root.string(), 0, "the folder cannot be read");
  LintRun run;
  run.root = fs::absolute(root).lexically_normal();
  const RootPaths paths(run.root);
  CollectFiles(run);
  for (const LintFile& file : run.files) CollectObjects(file, run);
  for (const LintFile& file : run.files) LintFileOf(file, run);
  CompareLanguages(run);
  LintGazetteers(run);
  SortFindings(run.findings);
  return run.findings;
}

void CheckReference(const LintRun& run, int kind, int number, int line, int column, LintReport& report) {
  const bool isImported = kind == FourCC("star") && number > scene::kImportedNumbers;
  if (isImported || !run.objects.IsMissing(kind, number)) return;
  report.Add(LintCode::kDanglingReference, line, column, "no catalog has " + NameObject(kind, number));
}

void CompareCounts(int fromReader, int wanted, LintReport& report) {
  if (fromReader == wanted) return;
  report.Add(LintCode::kReaderDiffers, 0, 0,
             "the reader has " + std::to_string(fromReader) + " records, of " + std::to_string(wanted) +
                 " that can be read");
}

}  // namespace skydata
