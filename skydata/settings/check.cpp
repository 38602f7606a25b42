// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/check.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

#include "common_interfaces/settings_data.h"
#include "skydata/settings/block_check.h"
#include "skydata/settings/text/format.h"
#include "skydata/settings/text/values.h"
#include "utils/bytes.h"
#include "utils/text.h"

namespace skydata {
namespace {

using CommonInterfaces::SettingsData;

constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kKeySize = 8;

std::uint64_t KeyOf(const FileBlock& block) { return std::uint64_t{block.id} << 32 | block.owner; }

class FileChecker {
 public:
  FileChecker(std::string_view bytes, const SettingsFile& file, const FieldNames& names,
              std::vector<Finding>& findings)
      : m_Bytes(bytes), m_File(file), m_Names(names), m_Findings(findings) {}

  void Check(FileKind kind) {
    if (!m_File.hasHeader && kind == FileKind::kSettings && !m_Bytes.empty()) {
      Note(FindingCode::kNoHeader, 0,
           "the file does not begin with SREV: a reader of settings has version 0 and misses a block at the "
           "start");
    }
    for (const FileBlock& block : m_File.blocks) {
      CheckKey(block);
      CheckBlock(block, m_Names, m_Findings);
    }
    CheckHiddenKeys();
    for (const auto& [key, block] : m_First) {
      if (block->id != SettingsData::kDefaultsTag) CheckAgainstDefaults(*block);
    }
  }

 private:
  void Note(FindingCode code, std::size_t offset, std::string text) {
    m_Findings.push_back({code, offset, std::move(text)});
  }

  void CheckKey(const FileBlock& block) {
    const auto [first, isFirst] = m_First.emplace(KeyOf(block), &block);
    if (!isFirst)
      Note(FindingCode::kDuplicateBlock, block.offset,
           DescribeBlock(block) + " stands at offset " + std::to_string(first->second->offset) +
               " already; this one is never read");
  }

  // A reader takes the first place where the bytes of a key stand, whatever they are there.
  void CheckHiddenKeys() {
    std::set<std::uint64_t> met;
    for (std::size_t at = m_File.hasHeader ? kHeaderSize : 0; at + kKeySize <= m_Bytes.size(); ++at) {
      const auto found = m_First.find(LoadLE64(m_Bytes.data() + at));
      if (found == m_First.end() || !met.insert(found->first).second || found->second->offset == at) continue;
      Note(FindingCode::kHiddenBlock, found->second->offset,
           DescribeBlock(*found->second) + ": the bytes of its key stand at offset " + std::to_string(at) +
               " too, where a reader takes them for the block");
    }
  }

  void CheckAgainstDefaults(const FileBlock& own) {
    const auto found = m_First.find(std::uint64_t{SettingsData::kDefaultsTag} << 32 | own.owner);
    if (found == m_First.end() || !found->second->isWhole) return;
    std::map<std::pair<unsigned, int>, const FileField*> defaults;
    for (const FileField& field : found->second->fields) defaults.emplace(Id(field), &field);
    std::set<std::pair<unsigned, int>> seen;
    int dropped = 0;
    const FileField* firstDropped = nullptr;
    for (const FileField& field : own.fields) {
      if (!seen.insert(Id(field)).second) continue;
      const auto other = defaults.find(Id(field));
      if (other != defaults.end()) {
        CompareShape(own, field, *other->second);
      } else if (!IsListedObject(field) && dropped++ == 0) {
        firstDropped = &field;
      }
    }
    if (firstDropped)
      Note(FindingCode::kNoDefault, firstDropped->offset,
           DescribeBlock(own) + ": " + std::to_string(dropped) +
               " fields are not among the defaults and dropped by a reader, the first is " +
               FormatWord(firstDropped->section) + "." + firstDropped->text.name);
  }

  static std::pair<unsigned, int> Id(const FileField& field) { return {field.section, field.text.nameId}; }

  static std::string ShapeOf(const FieldText& field) {
    return std::to_string(GetElementCount(field)) + " x " + FormatType(field.type);
  }

  void CompareShape(const FileBlock& own, const FileField& field, const FileField& usual) {
    if (HasSameShape(field.text, usual.text)) return;
    Note(FindingCode::kOwnMismatch, field.offset,
         DescribeBlock(own) + ": " + FormatWord(field.section) + "." + field.text.name + " is " +
             ShapeOf(field.text) + " and the default " + ShapeOf(usual.text) +
             "; a reader keeps the default");
  }

  const std::string_view m_Bytes;
  const SettingsFile& m_File;
  const FieldNames& m_Names;
  std::vector<Finding>& m_Findings;
  std::unordered_map<std::uint64_t, const FileBlock*> m_First;  // of each key
};

}  // namespace

FileKind KindOfFile(const std::string& fileName) {
  const std::string base = fileName.substr(fileName.find_last_of("/\\") + 1);
  return base == "FilterCorrection.data" ? FileKind::kCorrection : FileKind::kSettings;
}

std::vector<Finding> CheckSettings(std::string_view bytes, const SettingsFile& file, const FieldNames& names,
                                   FileKind kind) {
  std::vector<Finding> findings = file.damage;
  FileChecker(bytes, file, names, findings).Check(kind);
  SortFindings(findings);
  return findings;
}

bool IsListedObject(const FileField& field) {
  const FieldText& text = field.text;
  if (field.section == static_cast<unsigned>(FourCC("moon"))) {
    const bool isInteger =
        text.type == CommonInterfaces::kFieldInt32 || text.type == CommonInterfaces::kFieldUInt32;
    return isInteger && GetElementCount(text) > 0 && LoadLE32(text.values.data()) == field.section;
  }
  for (const int code : {FourCC("astr"), FourCC("comt"), FourCC("scft")}) {
    if (field.section == static_cast<unsigned>(code)) return text.type == CommonInterfaces::kFieldBytes;
  }
  return false;
}

}  // namespace skydata
