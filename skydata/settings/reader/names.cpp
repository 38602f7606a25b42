// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/reader/names.h"

#include "common_interfaces/field_names.h"
#include "skydata/settings/text/format.h"
#include "skydata/settings/text/parser.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr const char* kCameraNames[] = {
#include "camera_names.inc"
};

}  // namespace

FieldNames::FieldNames() {
  for (int i = 0; i < CommonInterfaces::kFieldNames; ++i) {
    const CommonInterfaces::FieldName& row = CommonInterfaces::GetFieldNames()[i];
    m_Names.emplace(row.id, row.name);
  }
  for (const char* const name : kCameraNames) m_Names.emplace(GetUniqueID(name), name);
}

void FieldNames::AddNamesOf(const std::filesystem::path& settingsText) {
  for (const BlockText& block : ParseSettings(settingsText).blocks) {
    for (const SectionText& section : block.sections) {
      for (const FieldText& field : section.fields) {
        if (field.name[0] != '@') m_Names.emplace(field.nameId, field.name);
      }
    }
  }
}

const std::string* FieldNames::Find(int nameId) const {
  const auto found = m_Names.find(nameId);
  return found == m_Names.end() ? nullptr : &found->second;
}

std::string FieldNames::NameOf(int nameId) const {
  const std::string* const name = Find(nameId);
  return name && !name->empty() ? *name : FormatNameId(nameId);
}

}  // namespace skydata
