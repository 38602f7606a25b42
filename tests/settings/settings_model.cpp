// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/settings_model.h"

#include <algorithm>
#include <cstdio>

#include "settings/field_bytes.h"
#include "utils/text.h"

namespace test_support {

namespace {

constexpr unsigned kNothing = 0xFFFFFFFF;
constexpr int kPlntCode = 0x706C6E74, kMoonCode = 0x6D6F6F6E, kAstrCode = 0x61737472, kComtCode = 0x636F6D74;
constexpr char kNoCurrent[] = "Current section in file filters.dat not define\n";

std::string Hex(unsigned value) {
  char text[16];
  std::snprintf(text, sizeof text, "%x", value);
  return text;
}

int LoadInt(const std::string& bytes, std::size_t offset) {
  unsigned value = 0;
  for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[offset + i]);
  return static_cast<int>(value);
}

bool Describes(const ModelField& field, int kind, int number) {
  return field.type == 4 && field.Size() >= 2 && field.IntAt(0) == kind && field.IntAt(1) == number;
}

}  // namespace

bool SettingsModel::s_Modify = false;

int ModelField::Width() const {
  return type == 7 ? 8 : type >= 4 && type <= 6 ? 4 : type == 2 || type == 3 ? 2 : 1;
}

std::string ModelField::Record() const {
  return LittleEndian(section, 4) + LittleEndian(static_cast<unsigned>(nameId), 4) +
         LittleEndian(static_cast<unsigned>(type), 1) + LittleEndian(static_cast<unsigned>(Size()), 2) +
         LittleEndian(condition, 4) + LittleEndian(static_cast<unsigned>(compareStatus), 1) +
         LittleEndian(querySection, 4) + values;
}

int ModelField::IntAt(int index) const { return LoadInt(values, static_cast<std::size_t>(index) * 4); }

bool ModelField::SetValues(int offset, const std::string& bytes) {
  const auto at = static_cast<std::size_t>(offset);
  if (values.compare(at, bytes.size(), bytes) == 0) return false;
  values.replace(at, bytes.size(), bytes);
  modified = true;
  return true;
}

bool ModelField::SetStatus(int status) {
  if (compareStatus == status) return false;
  compareStatus = status;
  modified = true;
  return true;
}

// The query goes, the rest is the other's.
void ModelField::Assign(const ModelField& other) {
  *this = other;
  holdsQuery = false;
  query = nullptr;
}

void SettingsModel::Assign(const SettingsModel& other) {
  if (this == &other) return;
  m_Owner = other.m_Owner;
  m_Id = other.m_Id;
  m_OwnFile = other.m_OwnFile;
  m_Current = other.m_Current;
  sections = other.sections;
  fields.clear();
  for (const ModelField& field : other.fields) {
    fields.emplace_back();
    fields.back().Assign(field);
  }
}

int SettingsModel::FindSection(unsigned id, bool withAlias) const {
  for (std::size_t i = 0; i < sections.size(); ++i)
    if (sections[i].id == id || (withAlias && id != kNothing && sections[i].alias == id))
      return static_cast<int>(i);
  return -1;
}

SettingsModel::Run SettingsModel::RunOf(int section) const {
  const ModelSection& s = sections[Place(section)];
  const int count = static_cast<int>(fields.size());
  const int begin = std::min(static_cast<int>(s.first), count);
  const int end = s.last == 0xFFFF ? 0 : std::min(static_cast<int>(s.last) + 1, count);
  return {begin, std::max(begin, end)};
}

int SettingsModel::FindInRun(int section, int nameId) const {
  const Run run = RunOf(section);
  for (int i = run.begin; i < run.end; ++i)
    if (fields[Place(i)].nameId == nameId) return i;
  return -1;
}

int SettingsModel::FindOn(unsigned section) const {
  const int index = FindSection(section, true);
  return index >= 0 && sections[Place(index)].status != 0 ? index : -1;
}

unsigned SettingsModel::SetCurSection(unsigned section) {
  const unsigned earlier = GetCurSection();
  m_Current = FindSection(section, false);
  return earlier;
}

ModelField* SettingsModel::GetAtField(unsigned section, int nameId, bool verbose) {
  if (section != kNothing) SetCurSection(section);
  if (m_Current < 0) {
    lines.emplace_back(kNoCurrent);
    return nullptr;
  }
  const int index = FindInRun(m_Current, nameId);
  if (index >= 0) return &fields[Place(index)];
  if (verbose)
    lines.push_back("Bad field name id " + std::to_string(nameId) + " (section " + Hex(GetCurSection()) +
                    ") in SettingsData::GetAtField\n");
  if (section != kNothing) return nullptr;
  for (ModelField& field : fields)
    if (field.nameId == nameId) return &field;
  return nullptr;
}

ModelField* SettingsModel::GetAtObject(int kind, int number, bool verbose) {
  if (kind != kPlntCode && kind != kMoonCode) return nullptr;
  const unsigned earlier = SetCurSection(static_cast<unsigned>(kind));
  if (m_Current < 0) {
    if (verbose) lines.emplace_back(kNoCurrent);
    return nullptr;
  }
  ModelField* last = nullptr;
  const Run run = RunOf(m_Current);
  for (int i = run.begin; i < run.end; ++i)
    if (Describes(fields[Place(i)], kind, number)) last = &fields[Place(i)];
  if (earlier != 0 && earlier != kNothing) SetCurSection(earlier);
  return last;
}

void SettingsModel::Shift(int section, int by) {
  for (std::size_t i = Place(section) + 1; i < sections.size(); ++i) {
    sections[i].first = (sections[i].first + static_cast<unsigned>(by)) & 0xFFFF;
    sections[i].last = (sections[i].last + static_cast<unsigned>(by)) & 0xFFFF;
  }
}

int SettingsModel::CreateField(const ModelField& record, bool allowExisting) {
  const int section = FindSection(record.section, false);
  if (section < 0) {
    const auto index = static_cast<unsigned>(fields.size());
    sections.push_back({record.section, kNothing, index, index, 0});
    fields.push_back(record);
    return static_cast<int>(index);
  }
  const int existing = FindInRun(section, record.nameId);
  if (existing >= 0) {
    if (allowExisting) return -existing;
    lines.push_back("Field " + std::to_string(record.nameId) + " in section " + Hex(record.section) +
                    " already exist\n");
    return -1;
  }
  const Run run = RunOf(section);
  fields.insert(fields.begin() + run.end, record);
  sections[Place(section)].first = static_cast<unsigned>(run.begin);
  sections[Place(section)].last = static_cast<unsigned>(run.end);
  Shift(section, 1);
  return run.end;
}

bool SettingsModel::DeleteField(int nameId, unsigned section) {
  const int index = FindSection(section, false);
  const int field = index < 0 ? -1 : FindInRun(index, nameId);
  if (field < 0) return false;
  fields.erase(fields.begin() + field);
  sections[Place(index)].last = (sections[Place(index)].last - 1) & 0xFFFF;
  Shift(index, -1);
  return true;
}

void SettingsModel::Note(bool changed, unsigned section) {
  s_Modify = changed;
  if (changed) SetSectionChanged(section, true);
}

bool SettingsModel::GetField(int nameId, std::string& values) {
  const ModelField* const field = GetAtField(kNothing, nameId, true);
  if (field) values = field->values;
  return field;
}

void SettingsModel::SetField(int nameId, const std::string& values) {
  if (ModelField* const field = GetAtField(kNothing, nameId, true))
    Note(field->SetValues(0, values.substr(0, field->values.size())), GetCurSection());
}

void SettingsModel::SetFieldElement(unsigned section, int nameId, int index, const std::string& value) {
  const int current = m_Current;
  ModelField* const field = GetAtField(section, nameId, true);
  if (section != kNothing) m_Current = current;
  if (!field) return;
  bool changed = false;
  if (index < 0 || index >= field->Size()) {
    lines.push_back("Bad parameter 'inIndex = " + std::to_string(index) +
                    "' in function SettingField::GetOffset\n");
  } else {
    changed =
        field->SetValues(index * field->Width(), value.substr(0, static_cast<std::size_t>(field->Width())));
  }
  Note(changed, section != kNothing ? section : GetCurSection());
}

void SettingsModel::SetFieldStatus(unsigned section, int nameId, int status) {
  const int current = m_Current;
  ModelField* const field = GetAtField(section, nameId, true);
  if (section != kNothing) m_Current = current;
  if (field) Note(field->SetStatus(status), section != kNothing ? section : GetCurSection());
}

void SettingsModel::SetSectionStatus(unsigned section, unsigned status) {
  const int index = FindSection(section, false);
  if (index < 0) return;
  s_Modify = sections[Place(index)].status != status;
  sections[Place(index)].status = status;
}

unsigned SettingsModel::GetSectionStatus(unsigned section, bool withAlias) const {
  const int index = FindSection(section, withAlias);
  if (index < 0) return 0;
  const ModelSection& s = sections[Place(index)];
  if (s.status != 0 || !withAlias) return s.status;
  return s.id == static_cast<unsigned>(m_AimKind) ? 1 : 0;
}

bool SettingsModel::SetSectionAlias(unsigned section, unsigned alias) {
  const int index = FindSection(section, false);
  if (index >= 0) sections[Place(index)].alias = alias;
  return index >= 0;
}

void SettingsModel::SetSectionChanged(unsigned section, bool changed) {
  if (section != kNothing) {
    m_Changed[section] = changed;
  } else {
    for (auto& entry : m_Changed) entry.second = changed;
  }
}

bool SettingsModel::IsSectionChanged(unsigned section) const {
  const auto found = m_Changed.find(section);
  return found == m_Changed.end() || found->second;
}

void SettingsModel::SetAimObject(int kind, int number) {
  if (kind == m_AimKind && number == m_AimNumber) return;
  const bool isAim = kind == kPlntCode || kind == kMoonCode;
  m_AimKind = isAim ? kind : -1;
  m_AimNumber = isAim ? number : -1;
  const int section = isAim ? FindSection(static_cast<unsigned>(kind), false) : -1;
  if (section < 0) return;
  const Run run = RunOf(section);
  for (int i = run.begin; i < run.end; ++i) {
    ModelField& field = fields[Place(i)];
    if (field.Size() < 8 || !Describes(field, kind, number)) continue;
    field.SetValues(8, std::string(4, '\0'));
    field.SetStatus(1);
  }
}

bool SettingsModel::GetFavoInfo(std::map<int, unsigned char>& favourites, unsigned section) const {
  favourites.clear();
  const int index = FindOn(section);
  if (index < 0) return false;
  const Run run = RunOf(index);
  for (int i = run.begin; i < run.end; ++i) {
    const ModelField& field = fields[Place(i)];
    if (field.type != 8 || field.compareStatus == 0 || field.Size() < 9) continue;
    int flags = static_cast<unsigned char>(field.values[0]);
    if (field.values[1] != 0) flags |= 4;
    if (field.values[2] != 0) flags |= 8;
    if (field.values[3] != 0) flags |= 16;
    if (field.values[4] != 0) flags |= 32;
    favourites.insert({LoadInt(field.values, 5), static_cast<unsigned char>(flags)});
  }
  return true;
}

bool SettingsModel::GetObjectInfo(std::vector<int>& ids, unsigned section, int type) const {
  ids.clear();
  const int index = FindOn(section);
  if (index < 0) return false;
  const int key = type != -1 ? type : static_cast<int>(section);
  const Run run = RunOf(index);
  for (int i = run.begin; i < run.end; ++i) {
    const ModelField& field = fields[Place(i)];
    if (field.type == 4 && field.Size() >= 2 && field.IntAt(0) == key && field.compareStatus != 0)
      ids.push_back(field.IntAt(1));
  }
  std::sort(ids.begin(), ids.end());
  return true;
}

bool SettingsModel::GetIntegrPlnt(int& kind, int& number) const {
  kind = number = -1;
  const int index = FindOn(static_cast<unsigned>(kPlntCode));
  if (index < 0) return false;
  const Run run = RunOf(index);
  for (int i = run.begin; i < run.end; ++i) {
    const ModelField& field = fields[Place(i)];
    if (field.type != 4 || field.Size() != 9 || field.compareStatus == 0 || field.IntAt(8) == 0) continue;
    kind = field.IntAt(0);
    number = field.IntAt(1);
    return true;
  }
  return false;
}

void SettingsModel::ClearIntegrFlag() {
  for (const auto& [code, element] : {std::pair{kAstrCode, 4}, {kComtCode, 4}, {kPlntCode, 8}}) {
    const int index = FindSection(static_cast<unsigned>(code), true);
    if (index < 0) continue;
    const Run run = RunOf(index);
    for (int i = run.begin; i < run.end; ++i) {
      ModelField& field = fields[Place(i)];
      if (field.Size() == 9)
        field.SetValues(element * field.Width(), std::string(Place(field.Width()), '\0'));
    }
  }
}

bool SettingsModel::MakesQuery(ModelField& field, unsigned section, bool all, ModelQuery& query) const {
  query = {field.nameId, field.condition, field.values, field.Width(), &field, false};
  if (field.holdsQuery && !field.modified) {
    query.kept = true;
    return all || field.compareStatus != 0;
  }
  field.modified = false;
  field.holdsQuery = false;
  const bool active = field.compareStatus != 0 || (all && field.condition == 0x4000);
  const unsigned of = field.querySection == kNothing ? field.section : field.querySection;
  if (!active || of != section || field.type > 7) return false;
  if (field.type == 1 && field.condition == 0x4000 && field.Size() >= 2) {
    const std::size_t start = all ? 1 : static_cast<unsigned char>(field.values[0]) + std::size_t{1};
    if (start >= field.values.size()) return false;
    query.values = field.values.substr(start, all ? std::string::npos : 1);
  }
  field.holdsQuery = true;
  return true;
}

bool SettingsModel::CreateQueryList(unsigned section, bool all, std::vector<ModelQuery>& list) {
  list.clear();
  const int index = FindSection(section, true);
  if (index < 0) return false;
  const bool on = sections[Place(index)].status != 0;
  if (!on && static_cast<int>(section) != m_AimKind) return false;
  std::string keys;
  int aim = -1;
  const Run run = RunOf(index);
  for (int i = run.begin; i < run.end; ++i) {
    ModelField& field = fields[Place(i)];
    ModelQuery query{};
    if (field.Size() >= 8 && field.compareStatus != 0 && Describes(field, m_AimKind, m_AimNumber)) {
      if (aim >= 0) list.erase(list.begin() + aim);
      aim = static_cast<int>(list.size());
      list.push_back({field.nameId, field.condition, field.values, 4, nullptr, false});
    } else if (on && field.type == 8) {
      if (field.querySection == section && field.compareStatus != 0 && field.Size() >= 9)
        keys += field.values.substr(5, 4);
    } else if (on && MakesQuery(field, section, all, query)) {
      list.push_back(query);
    }
  }
  if (!keys.empty()) list.push_back({::GetUniqueID("QXid"), 256, keys, 4, nullptr, false});
  return true;
}

}  // namespace test_support
