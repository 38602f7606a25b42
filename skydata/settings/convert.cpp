// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/convert.h"

#include <tuple>
#include <vector>

#include "common_interfaces/field_data.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/reader/file_reader.h"
#include "skydata/settings/reader/record_reader.h"
#include "utils/bytes.h"
#include "utils/file.h"
#include "utils/text.h"

namespace skydata {
namespace {

using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

// The layout that the library reads fields in, while it lives.
class FieldLayout {
 public:
  explicit FieldLayout(RecordLayout layout) { SettingField::SetOldSettings(layout == RecordLayout::kOld); }
  ~FieldLayout() { SettingField::SetOldSettings(m_WasOld); }
  FieldLayout(const FieldLayout&) = delete;
  FieldLayout& operator=(const FieldLayout&) = delete;

 private:
  const bool m_WasOld = SettingField::IsOldSettings();
};

std::string StoredWord(unsigned word) {
  std::string bytes(4, '\0');
  StoreLE32(bytes.data(), word);
  return bytes;
}

std::string ConvertRecord(std::string_view record) {
  const std::string name(GetOldName(record));
  std::string bytes(record.substr(0, kOldNameOffset));
  bytes += StoredWord(static_cast<unsigned>(GetUniqueID(name.c_str())));
  bytes += record.substr(kOldNameOffset + kOldNameSize);
  return StoredWord(static_cast<unsigned>(bytes.size())) + bytes;
}

// A whole block; everything before its first field stays as it is.
std::string ConvertBlock(std::string_view bytes, const FileBlock& block) {
  if (block.layout == RecordLayout::kCurrent)
    return std::string(bytes.substr(block.offset, block.end - block.offset));
  std::string converted(bytes.substr(block.offset, block.fields.front().offset - block.offset));
  for (const FileField& field : block.fields)
    converted +=
        ConvertRecord(bytes.substr(field.offset + kRecordLengthSize, static_cast<std::size_t>(field.size)));
  return converted;
}

bool IsSameField(const SettingField& one, const SettingField& other) {
  const auto header = [](const SettingField& field) {
    return std::tuple(field.GetSection(), field.GetNameId(), field.GetType(), field.GetSize(),
                      field.GetCondition(), field.GetCompareStatus(), field.GetQuerySection());
  };
  if (!one.IsOk() || !other.IsOk() || header(one) != header(other)) return false;
  std::vector<char> values(one.GetSize() * CommonInterfaces::FieldElementWidth(one.GetType())),
      others(values.size());
  one.GetData(values.data());
  other.GetData(others.data());
  return values == others;
}

// Compares what the library reads in two files, field by field.
class Comparison {
 public:
  Comparison(const std::filesystem::path& file, const std::filesystem::path& converted)
      : m_File(file.string()), m_Path(std::filesystem::absolute(converted).string()) {
    if (!m_Old.Open(m_File.c_str(), MFile::kRead) || !m_New.Open(m_Path.c_str(), MFile::kRead))
      throw SourceError(m_File, 0, "cannot be read again");
  }

  // Both describe one file, before and after.
  void Check(const SettingsFile& before, const SettingsFile& after) {
    if (!after.damage.empty() || before.blocks.size() != after.blocks.size()) Fail(0);
    for (std::size_t i = 0; i < before.blocks.size(); ++i) {
      const FileBlock &was = before.blocks[i], &is = after.blocks[i];
      if (was.fields.size() != is.fields.size() || is.layout != RecordLayout::kCurrent ||
          !SettingsData::HoldsBlock(m_Path.c_str(), was.owner, was.id))
        Fail(was.offset);
      for (std::size_t k = 0; k < was.fields.size(); ++k) CheckField(was, was.fields[k], is.fields[k]);
    }
  }

 private:
  void CheckField(const FileBlock& block, const FileField& was, const FileField& is) {
    const auto one = ReadField(m_Old, was, block.layout),
               other = ReadField(m_New, is, RecordLayout::kCurrent);
    if (!IsSameField(one, other)) Fail(was.offset);
  }

  static SettingField ReadField(MFile& file, const FileField& field, RecordLayout layout) {
    const FieldLayout use(layout);
    file.Seek(0, static_cast<int>(field.offset));
    return SettingField(&file, nullptr, 0);
  }

  [[noreturn]] void Fail(std::size_t offset) const {
    throw SourceError(
        m_File, 0, "what stands at offset " + std::to_string(offset) + " reads differently when converted");
  }

  const std::string m_File, m_Path;
  MFile m_Old, m_New;
};

// The layout of every block must be beyond doubt, and one of them at least the old one.
void RequireOldLayout(const ConvertRequest& request, const SettingsFile& file) {
  const std::string name = request.file.string();
  if (!file.damage.empty()) {
    const Finding& first = file.damage.front();
    throw SourceError(name, 0, "offset " + std::to_string(first.offset) + ": " + first.text);
  }
  bool hasOld = false;
  for (const FileBlock& block : file.blocks) {
    hasOld = hasOld || block.layout == RecordLayout::kOld;
    if (block.isLayoutCertain || block.layout == RecordLayout::kOld) continue;
    throw SourceError(
        name, 0,
        "offset " + std::to_string(block.offset) + ": the fields of " + DescribeBlock(block) +
            (request.undecided == RecordLayout::kOld ? " cannot be in the old layout"
                                                     : " fit neither layout (--from old decides)"));
  }
  if (!hasOld) throw SourceError(name, 0, "is in the current layout already");
}

}  // namespace

int ConvertSettings(const ConvertRequest& request) {
  const FieldNames names;
  const std::string bytes = ReadFile(request.file);
  const SettingsFile before = ReadSettingsFile(bytes, names, request.undecided);
  RequireOldLayout(request, before);
  std::string converted = bytes.substr(0, before.blocks.front().offset);
  int count = 0;
  for (const FileBlock& block : before.blocks) {
    converted += ConvertBlock(bytes, block);
    if (block.layout == RecordLayout::kOld) count += static_cast<int>(block.fields.size());
  }
  ReplaceFile(request.out, converted, [&](const std::filesystem::path& beside) {
    Comparison(request.file, beside).Check(before, ReadSettingsFile(converted, names));
    std::filesystem::permissions(beside, std::filesystem::status(request.file).permissions());
  });
  return count;
}

}  // namespace skydata
