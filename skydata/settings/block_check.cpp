// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/block_check.h"

#include <algorithm>
#include <map>
#include <utility>

#include "skydata/settings/check.h"
#include "skydata/settings/text/format.h"
#include "skydata/settings/text/values.h"

namespace skydata {
namespace {

using CommonInterfaces::FieldElementWidth;

class BlockChecker {
 public:
  BlockChecker(const FileBlock& block, const FieldNames& names, std::vector<Finding>& findings)
      : m_Block(block), m_Names(names), m_Findings(findings) {}

  void Check() {
    CheckLayout();
    CheckSections();
    if (m_Block.isWhole) CheckRuns();  // else they end at fields that were lost
    CheckPlaces();
    CheckNames();
    for (const FileField& field : m_Block.fields) CheckRecord(field);
  }

 private:
  void Note(FindingCode code, std::size_t offset, const std::string& text) {
    m_Findings.push_back({code, offset, DescribeBlock(m_Block) + ": " + text});
  }
  static std::string Name(const FileField& field) {
    return FormatWord(field.section) + "." + field.text.name;
  }
  static std::string Name(const FileSection& section) { return "section " + FormatWord(section.text.id); }
  static std::string At(std::size_t offset) { return " at offset " + std::to_string(offset); }

  void CheckLayout() {
    if (m_Block.layout == RecordLayout::kOld)
      Note(FindingCode::kOldLayout, m_Block.offset,
           "its fields are in the old layout; a reader needs SetOldSettings(true) or a converted file");
  }

  void CheckSections() {
    std::map<unsigned, std::size_t> seen;
    for (const FileSection& section : m_Block.sections) {
      const auto [first, isFirst] = seen.emplace(section.text.id, section.offset);
      if (!isFirst)
        Note(FindingCode::kDuplicateSection, section.offset,
             Name(section) + " stands" + At(first->second) + " already, which is the one that is found");
    }
  }

  void CheckRuns() {
    const int count = static_cast<int>(m_Block.fields.size());
    std::vector<int> held(m_Block.sections.size());  // fields that no earlier section has
    for (const FileField& field : m_Block.fields) {
      if (field.run >= 0) ++held[static_cast<std::size_t>(field.run)];
    }
    int expected = 0;
    for (std::size_t i = 0; i < m_Block.sections.size(); ++i) {
      const FileSection& section = m_Block.sections[i];
      const std::string run =
          Name(section) + ": run " + std::to_string(section.first) + " to " + std::to_string(section.last);
      if (section.begin == section.end && section.last >= section.first && section.last != 0xFFFF) {
        Note(FindingCode::kSectionRun, section.offset,
             run + " lies past the " + std::to_string(count) + " fields");
      } else if (section.begin == section.end) {
        if (section.first != expected || section.last != (expected + 0xFFFF) % 0x10000)
          Note(FindingCode::kEmptyRun, section.offset,
               run + " is empty, which is usually written another way");
        continue;
      } else if (section.last >= count) {
        Note(FindingCode::kSectionRun, section.offset,
             run + " reaches past the " + std::to_string(count) + " fields");
      }
      if (held[i] < section.end - section.begin) {
        Note(FindingCode::kRunOverlap, section.offset, run + " overlaps that of an earlier section");
      } else if (section.begin < expected) {
        Note(FindingCode::kRunOrder, section.offset, run + " stands before that of an earlier section");
      }
      expected = std::max(expected, section.end);
    }
  }

  void CheckPlaces() {
    const auto& fields = m_Block.fields;
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const FileField& field = fields[i];
      if (field.run < 0) {
        std::size_t last = i;
        while (last + 1 < fields.size() && fields[last + 1].run < 0) ++last;
        Note(FindingCode::kFieldOutside, field.offset,
             "fields " + std::to_string(i) + " to " + std::to_string(last) + " are in the run of no section");
        i = last;
        continue;
      }
      const FileSection& section = m_Block.sections[static_cast<std::size_t>(field.run)];
      if (section.text.id != field.section)
        Note(FindingCode::kFieldSection, field.offset,
             Name(field) + " is in the run of " + Name(section) + " and found there");
    }
  }

  void CheckNames() {
    std::map<std::pair<int, int>, std::size_t> seen;
    int unknown = 0;
    const FileField* firstUnknown = nullptr;
    for (const FileField& field : m_Block.fields) {
      const auto [first, isFirst] = seen.emplace(std::pair(field.run, field.text.nameId), field.offset);
      if (!isFirst) NoteDuplicate(field, first->second);
      if (field.text.nameId < 0)
        Note(FindingCode::kBadNameId, field.offset, Name(field) + ": no name has a negative id");
      if (m_Names.Find(field.text.nameId) || m_Block.layout == RecordLayout::kOld) continue;
      if (unknown++ == 0) firstUnknown = &field;
    }
    if (firstUnknown)
      Note(FindingCode::kUnknownName, firstUnknown->offset,
           std::to_string(unknown) + " of " + std::to_string(m_Block.fields.size()) +
               " names are not known, the first is " + Name(*firstUnknown));
  }

  void NoteDuplicate(const FileField& field, std::size_t first) {
    const std::string text = Name(field) + " stands" + At(first) + " already";
    if (IsListedObject(field)) {
      Note(FindingCode::kRepeatedObject, field.offset, text + "; readers take the first");
    } else {
      Note(FindingCode::kDuplicateField, field.offset, text + "; this one is never found");
    }
  }

  void CheckRecord(const FileField& field) {
    const std::size_t width = FieldElementWidth(field.text.type), bytes = field.text.values.size();
    const std::string claim =
        Name(field) + ": " + std::to_string(field.text.size) + " x " + FormatType(field.text.type);
    const std::string held = std::to_string(bytes) + " bytes of values";
    if (width == 0) {
      Note(FindingCode::kUnknownType, field.offset, claim + " is no element type; the values cannot be read");
    } else if (bytes < width * field.text.size) {
      Note(FindingCode::kValuesMissing, field.offset,
           claim + " in " + held + "; a reader takes " + std::to_string(bytes / width));
    } else if (bytes > width * field.text.size) {
      Note(FindingCode::kValuesExtra, field.offset,
           claim + " in " + held + "; the rest is kept and never read");
    }
  }

  const FileBlock& m_Block;
  const FieldNames& m_Names;
  std::vector<Finding>& m_Findings;
};

}  // namespace

void CheckBlock(const FileBlock& block, const FieldNames& names, std::vector<Finding>& findings) {
  BlockChecker(block, names, findings).Check();
}

}  // namespace skydata
