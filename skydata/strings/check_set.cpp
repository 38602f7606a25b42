// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <map>

#include "common_interfaces/text_formats.h"
#include "skydata/files/object_names.h"
#include "skydata/strings/rules.h"

namespace skydata {
namespace {

using CommonInterfaces::TextUse;
using FirstEntries = std::map<unsigned, const StringsEntry*>;

FirstEntries CheckDoubles(StringsReport& report) {
  FirstEntries firsts;
  for (const StringsEntry& entry : report.GetSource().entries) {
    const auto [place, isNew] = firsts.emplace(entry.identifier, &entry);
    if (isNew) continue;
    const bool isSame = place->second->text == entry.text;
    report.AddError(entry.line, isSame ? "duplicate" : "conflict",
                    NameIdentifier(entry.identifier) + " stands in line " +
                        std::to_string(place->second->line) + " already" +
                        (isSame ? "" : ", with another text"));
  }
  return firsts;
}

void CheckUsed(const StringsEntry& entry, StringsReport& report) {
  if (IsOfApplications(entry.identifier) || CommonInterfaces::FindTextUse(entry.identifier)) return;
  report.AddWarning(entry.line, "unused", "nothing uses " + NameIdentifier(entry.identifier));
}

void CheckMissing(const TextUse& use, const FirstEntries& firsts, StringsReport& report) {
  if (!use.isRequired) return;
  for (unsigned identifier = use.first; identifier <= use.last; ++identifier) {
    if (firsts.count(identifier)) continue;
    report.AddError(report.GetLastLine(), "missing",
                    NameIdentifier(identifier) + " is missing (" + use.use + ")");
  }
}

}  // namespace

void CheckSet(StringsReport& report) {
  const FirstEntries firsts = CheckDoubles(report);
  for (const StringsEntry& entry : report.GetSource().entries) CheckUsed(entry, report);
  int count = 0;
  const TextUse* const uses = CommonInterfaces::GetTextUses(&count);
  for (int i = 0; i < count; ++i) CheckMissing(uses[i], firsts, report);
}

}  // namespace skydata
