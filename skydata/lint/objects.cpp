// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The objects and labels that the catalogs of a data root have, for the files that refer to them.
#include <cstdlib>
#include <string_view>

#include "skydata/files/catalog_reader.h"
#include "skydata/lint/catalog_rules.h"
#include "skydata/lint/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr std::string_view kConstellations = "constellations";

void CollectCatalog(const LintFile& file, LintRun& run) {
  const CatalogData data = ReadCatalog(SplitPlainLines(file.bytes));
  const CatalogRule* const rule = FindCatalogRule(file.name);
  if (!rule) return;
  const int number = data.FindColumn("Number"), type = data.FindColumn("Type"),
            label = data.FindColumn("Label");
  const int designation = data.FindColumn("NGC_ICnumber");
  for (const CatalogRecord& record : data.records) {
    const TextField* const cell = data.FindCell(record, number);
    const TextField* const kind = data.FindCell(record, type);
    const std::string code = rule->kind && !*rule->kind && kind ? kind->text : rule->kind ? rule->kind : "";
    if (cell && code.size() == 4) run.objects.Add(GetFOURCC(code.c_str()), std::atoi(cell->text.c_str()));
    const TextField* const text = data.FindCell(record, label);
    if (text && rule->name == kConstellations) run.labels["Label"].push_back(text->text);
    const TextField* const other = data.FindCell(record, designation);
    const auto digits = other ? other->text.find_first_of("0123456789") : std::string::npos;
    if (digits != std::string::npos) run.objects.AddDesignation(std::atoi(other->text.c_str() + digits));
  }
}

// Lines of the form "kind TAB number", whatever else is wrong with them.
void CollectBodies(const LintFile& file, LintRun& run) {
  for (const TextLine& line : SplitPlainLines(file.bytes)) {
    const auto fields = SplitAtTabs(line);
    if (fields.size() > 2 && fields[0].text.size() == 4) {
      run.objects.Add(GetFOURCC(fields[0].text.c_str()), std::atoi(fields[1].text.c_str()));
    }
  }
}

}  // namespace

void CollectObjects(const LintFile& file, LintRun& run) {
  if (file.kind == DataKind::kCatalogTable) CollectCatalog(file, run);
  if (file.kind == DataKind::kPlanets) CollectBodies(file, run);
  if (file.kind == DataKind::kTwoLineElements) CollectSatellites(file, run);
  if (file.kind == DataKind::kStarTiles) CollectStarTiles(file, run);
}

}  // namespace skydata
