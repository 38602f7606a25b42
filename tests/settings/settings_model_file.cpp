// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the model knows of settings files.
#include <algorithm>

#include "settings/field_bytes.h"
#include "settings/settings_model.h"

namespace test_support {

namespace {

constexpr unsigned kNothing = 0xFFFFFFFF;
constexpr unsigned kDefaultsId = 0x44464C54;
constexpr int kMoonCode = 0x6D6F6F6E, kAstrCode = 0x61737472, kComtCode = 0x636F6D74, kScftCode = 0x73636674;

}  // namespace

std::string ModelBlock::Bytes() const {
  std::string bytes = LittleEndian(owner, 4) + LittleEndian(id, 4) + LittleEndian(sections.size(), 2);
  for (const ModelSection& s : sections)
    bytes += LittleEndian(s.id, 4) + LittleEndian(s.alias, 4) + LittleEndian(s.first, 2) +
             LittleEndian(s.last, 2) + LittleEndian(s.status, 1);
  bytes += LittleEndian(fields.size(), 4);
  for (const ModelField& field : fields) bytes += WithLength(field.Record());
  return bytes;
}

std::string ModelFile::Bytes() const {
  std::string bytes = "SREV" + LittleEndian(version, 4);
  for (const ModelBlock& block : blocks) bytes += block.Bytes();
  return bytes;
}

const ModelBlock* ModelFile::Find(unsigned owner, unsigned id) const {
  for (const ModelBlock& block : blocks)
    if (block.owner == owner && block.id == id) return &block;
  return nullptr;
}

bool SettingsModel::Read(const ModelFile* file) {
  const bool hadCurrent = m_Current >= 0;
  const unsigned current = GetCurSection();
  const bool result = ReadFrom(file, false);
  if (hadCurrent) SetCurSection(current);
  return result;
}

bool SettingsModel::ReadFrom(const ModelFile* file, bool loadingDefaults) {
  fields.clear();
  sections.clear();
  m_Current = -1;
  if (!loadingDefaults) ReadFrom(nullptr, true);
  const std::size_t fieldCount = fields.size(), sectionCount = sections.size();
  if (!file && fieldCount > 0) return true;
  if (file) m_Version = file->version;
  const ModelFile& from = file ? *file : *m_OwnFile;
  const ModelBlock* block = loadingDefaults ? nullptr : from.Find(m_Owner, m_Id);
  if (!block) block = from.Find(m_Owner, kDefaultsId);
  if (!block) return false;
  sections.insert(sections.end(), block->sections.begin(), block->sections.end());
  fields.insert(fields.end(), block->fields.begin(), block->fields.end());
  if (block->id == kDefaultsId) {
    fields.erase(fields.begin(), fields.begin() + static_cast<std::ptrdiff_t>(fieldCount));
    sections.erase(sections.begin(), sections.begin() + static_cast<std::ptrdiff_t>(sectionCount));
  } else {
    Merge(fieldCount, sectionCount);
  }
  if (m_Changed.empty()) {
    for (const ModelSection& section : sections) {
      m_Changed[section.id] = true;
      if (section.alias != kNothing) m_Changed[section.alias] = true;
    }
  }
  return true;
}

void SettingsModel::Merge(std::size_t fieldCount, std::size_t sectionCount) {
  for (std::size_t i = 0; i < fieldCount; ++i) {
    for (std::size_t own = fieldCount; own < fields.size(); ++own) {
      if (fields[own].nameId != fields[i].nameId || fields[own].section != fields[i].section) continue;
      if (fields[own].type == fields[i].type && fields[own].Size() == fields[i].Size())
        fields[i].Assign(fields[own]);
      break;
    }
  }
  std::vector<bool> justRead(fields.size());
  for (std::size_t i = fieldCount; i < fields.size(); ++i) justRead[i] = true;
  for (const int code : {kAstrCode, kComtCode, kScftCode, kMoonCode}) {
    const int index = FindSection(static_cast<unsigned>(code), false);
    if (index < 0) continue;
    std::vector<ModelField> copies;
    for (const ModelField& field : fields) {
      if (field.section != static_cast<unsigned>(code)) continue;
      if (code == kMoonCode
              ? (field.type == 4 || field.type == 5) && field.Size() > 0 && field.IntAt(0) == kMoonCode
              : field.type == 8)
        copies.push_back(field);
    }
    ModelSection& section = sections[Place(index)];
    const bool isDefault = Place(index) < sectionCount;
    const auto place = static_cast<std::ptrdiff_t>(
        std::min<std::size_t>(section.first + (isDefault ? 0 : fieldCount), fields.size()));
    fields.insert(fields.begin() + place, copies.begin(), copies.end());
    justRead.insert(justRead.begin() + place, copies.size(), false);
    section.last = (section.last + static_cast<unsigned>(copies.size())) & 0xFFFF;
    Shift(index, static_cast<int>(copies.size()));
  }
  for (std::size_t i = fields.size(); i-- > 0;)
    if (justRead[i]) fields.erase(fields.begin() + static_cast<std::ptrdiff_t>(i));
  for (std::size_t own = sectionCount; own < sections.size(); ++own)
    for (std::size_t i = 0; i < sectionCount; ++i)
      if (sections[i].id == sections[own].id) sections[i].status = sections[own].status;
  sections.resize(sectionCount);
}

bool SettingsModel::Restore(const ModelFile& file) {
  if (file.version != m_Version) return false;
  const ModelBlock* const block = file.Find(m_Owner, m_Id);
  if (!block) return false;
  for (const ModelSection& section : block->sections) SetSectionStatus(section.id, section.status);
  for (const ModelField& saved : block->fields)
    if (ModelField* const field = GetAtField(saved.section, saved.nameId, false)) field->Assign(saved);
  return true;
}

void SettingsModel::Write(ModelFile& file, unsigned workspaceVersion) {
  m_Version = std::max(m_Version, workspaceVersion);
  file.version = m_Version;
  file.blocks.push_back({m_Owner, m_Id, sections, fields});
  for (ModelField& field : file.blocks.back().fields) {
    field.modified = field.holdsQuery = false;
    field.query = nullptr;
  }
}

}  // namespace test_support
