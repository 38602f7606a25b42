// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What can be wrong with a settings file. The codes are stable: scripts test for them. docs/settings_tool.md
// explains each.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "skydata/files/severity.h"

namespace skydata {

enum class FindingCode {
  kUnreadable,
  kEmptyFile,
  kHeaderCut,
  kNoHeader,
  kNoBlock,
  kStrayBytes,
  kBlockCut,
  kSectionCount,
  kFieldCount,
  kFieldsMissing,
  kRecordLength,
  kRecordCut,
  kOldLayout,
  kDuplicateBlock,
  kHiddenBlock,
  kDuplicateSection,
  kSectionRun,
  kRunOverlap,
  kRunOrder,
  kEmptyRun,
  kFieldOutside,
  kFieldSection,
  kDuplicateField,
  kRepeatedObject,
  kUnknownType,
  kValuesMissing,
  kValuesExtra,
  kBadNameId,
  kUnknownName,
  kOwnMismatch,
  kNoDefault,
};

struct FindingKind {
  const char* code;
  Severity severity;
  bool keepsFromText;  // a file with such a finding cannot be written as a settings text to the byte
};

struct Finding {
  FindingCode code;
  std::size_t offset = 0;  // in the file
  std::string text;        // without the file's name, no line end
};

const FindingKind& KindOf(FindingCode code);

// "file:offset: severity: text [code]".
std::string FormatFinding(const std::string& file, const Finding& finding);

// {"file": ..., "offset": ..., "code": ..., "severity": ..., "text": ...}
std::string FormatFindingAsJson(const std::string& file, const Finding& finding);

// By offset; those of one offset stay in their order.
void SortFindings(std::vector<Finding>& findings);

}  // namespace skydata
