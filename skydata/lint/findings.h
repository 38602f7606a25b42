// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What `skydata lint` can find in a file of a data root. Codes are stable, scripts test for them;
// docs/lint.md explains each and how to mend it. Settings files and string tables also have the codes of
// their own commands.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "skydata/files/severity.h"

namespace skydata {

enum class LintCode {
  kUnreadable,
  kUnknownFile,
  kEmptyFile,
  kByteOrderMark,
  kCrLf,
  kNoLastLineEnd,
  kLongLine,
  kZeroByte,
  kEncoding,
  kTooFewFields,
  kTooManyFields,
  kNotANumber,
  kNumberRest,
  kOutOfRange,
  kUnit,
  kBadCode,
  kUnknownKind,
  kEmptyName,
  kLongName,
  kAngleMark,
  kBadDate,
  kDuplicate,
  kGap,
  kUnsorted,
  kNeverFound,
  kDanglingReference,
  kMissingFile,
  kMissingGazetteer,
  kFlatImage,
  kFileSize,
  kCount,
  kTrailingBytes,
  kBadHeader,
  kMissingColumn,
  kTwoLineElements,
  kDamagedCell,
  kOutdated,
  kYearLimits,
  kReaderMessage,
  kReaderDiffers,
};

struct LintKind {
  const char* code;
  Severity severity;  // kError or kWarning
};

const LintKind& KindOf(LintCode code);

// All codes, in the order of LintCode.
const std::vector<LintKind>& GetLintKinds();

// One thing that is wrong. Line and column count from 1; the column counts bytes. In binary files the line is
// the number of the record (group, picture, block) and the column that of the field in it. 0: the whole file,
// or the whole line.
struct LintFinding {
  std::string file;  // below the data root, with '/'
  int line = 0;
  int column = 0;
  Severity severity = Severity::kError;
  std::string code;
  std::string text;  // one line
};
using LintFindings = std::vector<LintFinding>;

// By file, line, column; those of one place stay in their order.
void SortFindings(LintFindings& findings);

// "ROOT/file:line:column: severity: code: text" and a line feed; without a root "file:line:...".
std::string FormatFinding(const std::string& root, const LintFinding& finding);

// One JSON array (RFC 8259) of objects with "file", "line", "column", "severity", "code", "text", ended by a
// line feed.
std::string FormatFindingsAsJson(const std::string& root, const LintFindings& findings);

// Takes the findings about one file.
class LintReport {
 public:
  LintReport(std::string file, LintFindings& findings) : m_File(std::move(file)), m_Findings(findings) {}

  const std::string& GetFile() const { return m_File; }
  void Add(LintCode code, int line, int column, const std::string& text);
  // A finding of another command, with that command's code.
  void Add(Severity severity, const char* code, int line, int column, const std::string& text);

  bool HasFindings() const;
  bool HasErrors() const;
  bool HasFindingAt(int line) const;
  std::set<int> GetLines() const;  // that findings are about

 private:
  std::string m_File;
  LintFindings& m_Findings;
};

}  // namespace skydata
