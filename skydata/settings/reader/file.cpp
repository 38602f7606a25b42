// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/reader/file.h"

#include <algorithm>

#include "skydata/settings/text/format.h"

namespace skydata {

const FileField* FindField(const FileBlock& block, unsigned section, int nameId) {
  for (const FileSection& found : block.sections) {
    if (found.text.id != section) continue;
    for (int i = found.begin; i < found.end; ++i) {
      const FileField& field = block.fields[static_cast<std::size_t>(i)];
      if (field.text.nameId == nameId) return &field;
    }
    return nullptr;
  }
  return nullptr;
}

const FileField* FindOwnField(const FileBlock& block, unsigned section, int nameId) {
  const auto found = std::find_if(block.fields.begin(), block.fields.end(), [=](const FileField& field) {
    return field.section == section && field.text.nameId == nameId;
  });
  return found == block.fields.end() ? nullptr : &*found;
}

std::size_t GetElementCount(const FieldText& field) {
  return CommonInterfaces::FieldElementWidth(field.type) == 0 ? field.size : CountValues(field);
}

bool HasSameShape(const FieldText& own, const FieldText& usual) {
  return own.type == usual.type && GetElementCount(own) == GetElementCount(usual);
}

const FileBlock* FindBlock(const SettingsFile& file, unsigned owner, unsigned id) {
  const auto found = std::find_if(file.blocks.begin(), file.blocks.end(), [=](const FileBlock& block) {
    return block.owner == owner && block.id == id;
  });
  return found == file.blocks.end() ? nullptr : &*found;
}

std::string DescribeBlock(const FileBlock& block) {
  return "block " + FormatWord(block.owner) + " " + FormatWord(block.id);
}

}  // namespace skydata
