// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/set.h"

#include "skydata/files/source_error.h"
#include "skydata/settings/explain_choice.h"
#include "skydata/settings/reader/file_reader.h"
#include "skydata/settings/reader/record_reader.h"
#include "skydata/settings/text/format.h"
#include "skydata/settings/text/values.h"

namespace skydata {
namespace {

std::string EncodeValues(const std::vector<std::string>& values, const FieldText& field,
                         const std::string& name, const std::string& fileName) {
  std::string encoded;
  for (const std::string& value : values) {
    if (AppendValue(field.type, TrimBlanks(value), encoded)) continue;
    throw SourceError(fileName, 0, name + ": '" + value + "' is no " + FormatType(field.type));
  }
  if (encoded.size() == field.values.size()) return encoded;
  throw SourceError(fileName, 0,
                    name + ": wants " + std::to_string(field.size) + " of " + FormatType(field.type) +
                        ", given " + std::to_string(values.size()));
}

}  // namespace

std::string SetFieldValues(const ExplainRequest& request, const std::vector<std::string>& values,
                           const std::string& bytes, const FieldNames& names) {
  const SettingsFile file = ReadSettingsFile(bytes, names);
  const auto fail = [&request](const std::string& why) { throw SourceError(request.fileName, 0, why); };
  if (!file.damage.empty()) {
    const Finding& first = file.damage.front();
    fail("offset " + std::to_string(first.offset) + ": " + first.text);
  }
  const FieldChoice choice = ChooseField(request, file, file, names);
  if (!choice.problem.empty()) fail(choice.problem);
  const Candidate& candidate = choice.IsOfDefaults() ? choice.usual : choice.own;
  const std::string name = FormatWord(request.section) + "." + choice.name;
  if (!candidate.field)
    fail("block " + FormatWord(choice.key.first) + " " + FormatWord(choice.key.second) + " takes " + name +
         " from the defaults; --block " + FormatWord(choice.key.first) + "," +
         FormatWord(DefaultsOf(choice.key).second) + " sets them");
  if (candidate.block->layout != RecordLayout::kCurrent)
    fail(DescribeBlock(*candidate.block) + " is in the old layout (skydata settings convert)");
  const std::string encoded = EncodeValues(values, candidate.field->text, name, request.fileName);
  std::string changed = bytes;
  changed.replace(candidate.field->offset + kRecordLengthSize + GetRecordHeaderSize(RecordLayout::kCurrent),
                  encoded.size(), encoded);
  return changed;
}

}  // namespace skydata
