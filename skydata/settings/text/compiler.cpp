// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/compiler.h"

#include <algorithm>
#include <set>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "utils/version.h"

namespace skydata {
namespace {

using CommonInterfaces::FieldData;
using CommonInterfaces::kFieldHeaderSize;
using CommonInterfaces::SectionRecord;
using CommonInterfaces::SettingsData;

constexpr std::size_t kFileHeaderSize = 8;    // tag and version
constexpr std::size_t kBlockHeaderSize = 14;  // key, number of sections, number of fields
constexpr std::size_t kMaxSections = 32767;   // a signed 16-bit number

[[noreturn]] void Fail(const TextPlace& place, const std::string& message) {
  throw SourceError(place.file, place.line, message);
}

std::string MakeRecord(unsigned section, const FieldText& field) {
  FieldData header = {};
  header.section = section;
  header.nameId = field.nameId;
  header.type = field.type;
  header.size = field.size;
  header.condition = field.condition;
  header.compareStatus = field.compareStatus;
  header.querySection = field.querySection;
  std::string record(reinterpret_cast<const char*>(&header), kFieldHeaderSize);
  return record + field.values;
}

int CreateField(SettingsData& settings, unsigned section, const FieldText& field) {
  const std::string record = MakeRecord(section, field);
  return settings.CreateField(reinterpret_cast<const FieldData*>(record.data()),
                              static_cast<int>(record.size()), false);
}

// A container makes no second field of one name: it is made under an id that the section does not have, and
// renamed.
class SpareNames {
 public:
  explicit SpareNames(const SectionText& section) {
    const auto& fields = section.fields;
    if (std::none_of(fields.begin(), fields.end(), [](const FieldText& field) { return field.isAgain; }))
      return;
    for (const FieldText& field : fields) m_Taken.insert(field.nameId);
  }
  int Take() {
    while (!m_Taken.insert(m_Next).second) --m_Next;
    return m_Next;
  }

 private:
  std::set<int> m_Taken;
  int m_Next = -1;
};

int CreateAgain(SettingsData& settings, unsigned section, FieldText field, SpareNames& spareNames) {
  const int nameId = field.nameId;
  field.nameId = spareNames.Take();
  const int index = CreateField(settings, section, field);
  if (index >= 0) settings.GetFieldAt(index)->SetNameId(nameId);
  return index;
}

void AddSection(SettingsData& settings, const SectionText& section) {
  SpareNames spareNames(section);
  for (const FieldText& field : section.fields) {
    const int index = field.isAgain ? CreateAgain(settings, section.id, field, spareNames)
                                    : CreateField(settings, section.id, field);
    if (index < 0) Fail(field.place, "field " + field.name + " cannot be created");
  }
  if (section.fields.empty()) {
    // A container makes a section with its first field, and keeps it when the field goes.
    CreateField(settings, section.id, FieldText());
    settings.DeleteField("", static_cast<int>(section.id));
  }
  settings.SetSectionStatus(section.id, section.status);
  settings.SetSectionAlias(section.id, section.alias);
}

std::size_t GetBlockSize(const BlockText& block) {
  std::size_t size = kBlockHeaderSize + block.sections.size() * sizeof(SectionRecord);
  for (const SectionText& section : block.sections) {
    for (const FieldText& field : section.fields)
      size += sizeof(int) + kFieldHeaderSize + field.values.size();
  }
  return size;
}

void AppendBlock(const BlockText& block, const std::string& path) {
  if (block.sections.size() > kMaxSections) Fail(block.place, "has more than 32767 sections");
  SettingsData settings(block.id, block.owner, path.c_str());
  for (const SectionText& section : block.sections) AddSection(settings, section);
  settings.Write(path.c_str());
}

}  // namespace

std::string CompileSettings(const SettingsDocument& document, const std::filesystem::path& folder) {
  const ScratchFile scratch(std::filesystem::absolute(folder));
  const std::string path = scratch.GetPath().string();
  std::size_t size = kFileHeaderSize;
  SetWorkspaceVersion(document.version);
  for (const BlockText& block : document.blocks) {
    AppendBlock(block, path);
    size += GetBlockSize(block);
  }
  // The library does not report errors while it writes a block.
  std::string bytes = ReadFile(path);
  if (bytes.size() != size) Fail(document.place, "could not be written whole to " + path);
  return document.hasHeader ? bytes : bytes.substr(kFileHeaderSize);
}

}  // namespace skydata
