// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/reader/block_fields.h"

#include <algorithm>
#include <numeric>

#include "skydata/settings/reader/record_reader.h"

namespace skydata {
namespace {

void ChooseLayout(const std::vector<RawRecord>& records, RecordLayout undecided, FileBlock& block) {
  const auto all = [&](auto test) { return std::all_of(records.begin(), records.end(), test); };
  const auto fits = [&](RecordLayout layout) {
    return all([&](const RawRecord& record) { return FitsLayout(record.bytes, layout); });
  };
  if (fits(RecordLayout::kCurrent)) return;
  block.isLayoutCertain = fits(RecordLayout::kOld);
  const bool canBeOld = all(
      [](const RawRecord& record) { return record.bytes.size() >= GetRecordHeaderSize(RecordLayout::kOld); });
  if (block.isLayoutCertain || (undecided == RecordLayout::kOld && canBeOld))
    block.layout = RecordLayout::kOld;
}

// Each field to the first section whose run holds it; every field is looked at once, however the runs
// overlap.
void AssignRuns(FileBlock& block) {
  const int count = static_cast<int>(block.fields.size());
  std::vector<int> next(block.fields.size() + 1);  // the next field without a section, itself included
  std::iota(next.begin(), next.end(), 0);
  const auto free = [&next](int i) {
    while (next[static_cast<std::size_t>(i)] != i)
      i = next[static_cast<std::size_t>(i)] =
          next[static_cast<std::size_t>(next[static_cast<std::size_t>(i)])];
    return i;
  };
  for (std::size_t s = 0; s < block.sections.size(); ++s) {
    FileSection& section = block.sections[s];
    section.begin = std::min(section.first, count);
    section.end = std::max(section.begin, section.last == 0xFFFF ? 0 : std::min(section.last + 1, count));
    for (int i = free(section.begin); i < section.end; i = free(i)) {
      block.fields[static_cast<std::size_t>(i)].run = static_cast<int>(s);
      next[static_cast<std::size_t>(i)] = i + 1;
    }
  }
}

}  // namespace

void AddFields(const std::vector<RawRecord>& records, const FieldNames& names, RecordLayout undecided,
               FileBlock& block) {
  ChooseLayout(records, undecided, block);
  for (const RawRecord& record : records) {
    FileField field;
    field.offset = record.offset;
    field.size = static_cast<int>(record.bytes.size());
    field.text = DecodeRecord(record.bytes, block.layout, names, field.section);
    block.fields.push_back(std::move(field));
  }
  AssignRuns(block);
}

}  // namespace skydata
