// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Long random sequences of every operation of a container, held against the model of its rules.
#include <array>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "common_interfaces/queries.h"
#include "settings/random_settings.h"
#include "settings/settings_bytes.h"
#include "settings/settings_model.h"
#include "utils/version.h"

namespace test_support {
namespace {

using CommonInterfaces::BaseQuery;
using CommonInterfaces::TBaseList;

constexpr std::size_t kMostFields = 120;  // merging doubles favourites

// A container and its model, a second pair to assign from, and the two files that they read and write.
class SettingsRandom : public SettingsTest,
                       public testing::WithParamInterface<unsigned>,
                       protected RandomSettings {
 protected:
  struct Pair {
    std::unique_ptr<SettingsData> real;
    std::unique_ptr<SettingsModel> model;
  };

  SettingsRandom() : RandomSettings(GetParam()) {
    SetWorkspaceVersion(kWorkspaceVersion);
    SettingsData::SetModifyFlag(false);
    SettingsModel::s_Modify = false;
    m_OwnPath = WriteFile("");
    m_NamedPath = roots.dir.Path("work/other.data");
    ReplaceFile(m_OwnFile, m_OwnPath, true);
    ReplaceFile(m_NamedFile, m_NamedPath, false);
    for (Pair& pair : m_Pairs) {
      pair.real = std::make_unique<SettingsData>(kId, kOwner, m_OwnPath.c_str());
      pair.model = std::make_unique<SettingsModel>(kId, kOwner, &m_OwnFile);
    }
  }
  ~SettingsRandom() override { SetWorkspaceVersion(0); }

  void ReplaceFile(ModelFile& file, const std::string& path, bool defaults);
  void Values(Pair& pair);
  void Structure(Pair& pair);
  void Lookup(Pair& pair);
  void Objects(Pair& pair);
  void Query(Pair& pair);
  void Files(Pair& pair);
  void Step();
  void ExpectSame(const Pair& pair);

  std::array<Pair, 2> m_Pairs;
  ModelFile m_OwnFile, m_NamedFile;
  std::string m_OwnPath, m_NamedPath;
};

void SettingsRandom::ReplaceFile(ModelFile& file, const std::string& path, bool defaults) {
  file = RandomFile(defaults);
  std::ofstream(path, std::ios::binary) << file.Bytes();
}

void SettingsRandom::Values(Pair& pair) {
  const int nameId = RandomName();
  const unsigned section = RandomSection();
  const std::string in =
      LittleEndian(static_cast<unsigned>(Random(2) * Random(4)), 8) + std::string(72, '\0');
  switch (Random(9)) {
    case 0: {
      std::string out(80, '#'), expected;
      const bool found = pair.model->GetField(nameId, expected);
      ASSERT_EQ(pair.real->GetField(nameId, out.data()), found);
      ASSERT_EQ(out.substr(0, expected.size()), expected);
      ASSERT_EQ(out[expected.size()], '#');
      break;
    }
    case 1:
      pair.model->SetField(nameId, in);
      pair.real->SetField(nameId, in.data());
      break;
    case 2: {
      const int index = Random(10) - 1;
      pair.model->SetFieldElement(section, nameId, index, in);
      pair.real->SetFieldElement(section, nameId, in.data(), index);
      break;
    }
    case 3: {
      const int index = Random(3);
      pair.model->SetFieldElement(kNone, nameId, index, in);
      pair.real->SetFieldElement(nameId, in.data(), index);
      break;
    }
    case 4: {
      const int status = Random(2);
      pair.model->SetFieldStatus(section, nameId, status);
      pair.real->SetFieldStatus(section, nameId, static_cast<unsigned char>(status));
      break;
    }
    case 5: {
      const int status = Random(2);
      pair.model->SetFieldStatus(kNone, nameId, status);
      pair.real->SetFieldStatus(nameId, static_cast<unsigned char>(status));
      break;
    }
    case 6: {
      const ModelField* const field = pair.model->GetAtField(kNone, nameId, true);
      ASSERT_EQ(pair.real->GetFieldType(nameId), field ? static_cast<unsigned>(field->type) : 0xFFFFFFFFu);
      pair.model->GetAtField(kNone, nameId, true);
      ASSERT_EQ(pair.real->GetFieldStatus(nameId), field ? field->compareStatus : 0);
      break;
    }
    case 7: {
      const unsigned status = static_cast<unsigned>(Random(3));
      pair.model->SetSectionStatus(section, status);
      pair.real->SetSectionStatus(section, static_cast<unsigned char>(status));
      break;
    }
    default: {
      const bool alias = Random(2);
      ASSERT_EQ(pair.real->GetSectionStatus(section, alias), pair.model->GetSectionStatus(section, alias));
    }
  }
}

void SettingsRandom::Structure(Pair& pair) {
  const unsigned section = RandomSection();
  switch (Random(12)) {
    case 0:
    case 1:
    case 2: {
      const std::string name = NameOf(Random(kNames));
      const bool found = pair.model->DeleteField(::GetUniqueID(name.c_str()), section);
      ASSERT_EQ(pair.real->DeleteField(name.c_str(), static_cast<int>(section)), found);
      break;
    }
    case 3: {
      const unsigned alias = Random(3) ? RandomSection() : kNone;
      ASSERT_EQ(pair.real->SetSectionAlias(section, alias), pair.model->SetSectionAlias(section, alias));
      break;
    }
    case 4: {  // a caller that holds a field gives it another name
      const int nameId = RandomName(), newName = RandomName();
      ModelField* const field = pair.model->GetAtField(section, nameId, false);
      SettingField* const real = pair.real->GetAtField(section, nameId, false);
      ASSERT_EQ(real != nullptr, field != nullptr);
      if (!field) break;
      field->nameId = newName;
      real->SetNameId(newName);
      break;
    }
    case 5: {  // or another record
      const ModelField other = RandomField();
      const int nameId = RandomName();
      ModelField* const field = pair.model->GetAtField(section, nameId, false);
      SettingField* const real = pair.real->GetAtField(section, nameId, false);
      ASSERT_EQ(real != nullptr, field != nullptr);
      if (!field) break;
      field->Assign(other);
      *real = FieldOf(other.Record());
      break;
    }
    default: {
      if (pair.model->fields.size() >= kMostFields) break;
      const ModelField field = RandomField();
      const bool allow = Random(2);
      ASSERT_EQ(Create(*pair.real, field.Record(), allow), pair.model->CreateField(field, allow));
    }
  }
}

void SettingsRandom::Lookup(Pair& pair) {
  const unsigned section = RandomSection();
  switch (Random(4)) {
    case 0:
      ASSERT_EQ(pair.real->SetCurSection(section), pair.model->SetCurSection(section));
      break;
    case 1: {
      const bool changed = Random(2);
      const unsigned which = Random(6) ? section : kNone;
      pair.model->SetSectionChanged(which, changed);
      pair.real->SetSectionChanged(which, changed);
      break;
    }
    default: {
      const int nameId = RandomName();
      const unsigned in = Random(3) ? section : kNone;
      const bool verbose = Random(2);
      const ModelField* const field = pair.model->GetAtField(in, nameId, verbose);
      const SettingField* const real = pair.real->GetAtField(in, nameId, verbose);
      ASSERT_EQ(real != nullptr, field != nullptr);
      // The very field: the one at the same place.
      if (field) {
        ASSERT_EQ(real, pair.real->GetFieldAt(static_cast<int>(field - pair.model->fields.data())));
      }
    }
  }
}

void SettingsRandom::Objects(Pair& pair) {
  const unsigned section = RandomSection();
  switch (Random(6)) {
    case 0: {
      const int number = Random(3);
      const bool verbose = Random(2);
      const ModelField* const field = pair.model->GetAtObject(static_cast<int>(section), number, verbose);
      const SettingField* const real =
          pair.real->GetAtField(SSO_ID(static_cast<int>(section), number), verbose);
      ASSERT_EQ(real != nullptr, field != nullptr);
      if (field) {
        ASSERT_EQ(real, pair.real->GetFieldAt(static_cast<int>(field - pair.model->fields.data())));
      }
      break;
    }
    case 1: {
      const int number = Random(3);
      pair.model->SetAimObject(static_cast<int>(section), number);
      pair.real->SetAimObject(SSO_ID(static_cast<int>(section), number));
      break;
    }
    case 2: {
      std::map<int, unsigned char> favourites{{9, '\x9'}}, expected;
      const bool found = pair.model->GetFavoInfo(expected, section);
      ASSERT_EQ(pair.real->GetFavoInfo(&favourites, static_cast<int>(section)), found);
      ASSERT_EQ(favourites, expected);
      break;
    }
    case 3: {
      std::vector<int> ids{9}, expected;
      const int type = Random(2) ? -1 : static_cast<int>(RandomSection());
      const bool found = pair.model->GetObjectInfo(expected, section, type);
      ASSERT_EQ(pair.real->GetObjectInfo(ids, static_cast<int>(section), type), found);
      ASSERT_EQ(ids, expected);
      break;
    }
    case 4: {
      SSO_ID planet(1, 1);
      int kind = 0, number = 0;
      const bool found = pair.model->GetIntegrPlnt(kind, number);
      ASSERT_EQ(pair.real->GetIntegrPlnt(&planet), found);
      ASSERT_EQ(planet.kind, kind);
      ASSERT_EQ(planet.number, number);
      break;
    }
    default:
      pair.model->ClearIntegrFlag();
      pair.real->ClearIntegrFlag();
  }
}

void SettingsRandom::Query(Pair& pair) {
  const unsigned section = RandomSection();
  const bool all = Random(2);
  std::vector<ModelQuery> expected;
  const bool made = pair.model->CreateQueryList(section, all, expected);
  const std::unique_ptr<TBaseList<BaseQuery*>> list(
      static_cast<TBaseList<BaseQuery*>*>(pair.real->CreateQueryList(static_cast<int>(section), all)));
  ASSERT_EQ(list != nullptr, made);
  if (!made) return;
  std::unique_ptr<BaseQuery> identifiers;
  if (!list->empty() && CommonInterfaces::IsIdentifierQuery(*list->back())) identifiers.reset(list->back());
  ASSERT_EQ(list->size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const BaseQuery* const query = (*list)[i];
    if (expected[i].kept) {  // the very object, which keeps the name that the field had when it was made
      ASSERT_EQ(query, expected[i].field->query);
      continue;
    }
    ASSERT_EQ(query->m_NameId, expected[i].nameId);
    ASSERT_EQ(query->m_Condition, expected[i].condition);
    const auto width = static_cast<std::size_t>(expected[i].width);
    std::string values;
    for (unsigned index = 0; const void* value = query->GetValue(index); ++index)
      values.append(static_cast<const char*>(value), width);
    ASSERT_EQ(values, expected[i].values);
    if (expected[i].field) expected[i].field->query = query;
  }
}

void SettingsRandom::Files(Pair& pair) {
  switch (Random(8)) {
    case 0:
      ReplaceFile(m_OwnFile, m_OwnPath, Random(4) > 0);
      break;
    case 1:
      ReplaceFile(m_NamedFile, m_NamedPath, false);
      break;
    case 2: {
      const unsigned id = kIds[static_cast<std::size_t>(Random(kIds.size()))];
      pair.model->SetId(id);
      pair.real->SetID(id);
      ASSERT_EQ(pair.real->GetID(), id);
      break;
    }
    case 3: {
      const bool named = Random(4) > 0;
      const bool read = pair.model->Read(named ? &m_NamedFile : nullptr);
      ASSERT_EQ(pair.real->Read(named ? m_NamedPath.c_str() : nullptr), read);
      break;
    }
    case 4: {
      const bool restored = pair.model->Restore(m_NamedFile);
      ASSERT_EQ(pair.real->Restore(m_NamedPath.c_str()), restored);
      break;
    }
    case 5: {
      const Pair& other = m_Pairs[static_cast<std::size_t>(Random(2))];
      if (other.model->fields.size() > kMostFields) break;
      pair.model->Assign(*other.model);
      *pair.real = *other.real;
      break;
    }
    default:
      if (m_NamedFile.blocks.size() > 4 || pair.model->fields.size() > kMostFields) break;
      pair.model->Write(m_NamedFile, kWorkspaceVersion);
      ASSERT_TRUE(pair.real->Write(m_NamedPath.c_str()));
      ASSERT_EQ(roots.dir.Read("work/other.data"), m_NamedFile.Bytes());
  }
  ASSERT_EQ(pair.real->GetVersion(), pair.model->GetVersion());
}

void SettingsRandom::Step() {
  Pair& pair = m_Pairs[static_cast<std::size_t>(Random(2))];
  const int kind = Random(100);
  if (kind < 35) {
    Values(pair);
  } else if (kind < 65) {
    Structure(pair);
  } else if (kind < 80) {
    Lookup(pair);
  } else if (kind < 88) {
    Objects(pair);
  } else if (kind < 95) {
    Query(pair);
  } else {
    Files(pair);
  }
  if (HasFatalFailure()) return;
  ASSERT_EQ(pair.real->GetCurSection(), pair.model->GetCurSection());
  ASSERT_EQ(SettingsData::GetModifyFlag(), SettingsModel::s_Modify);
  const unsigned section = RandomSection();
  ASSERT_EQ(pair.real->IsSectionChanged(section), pair.model->IsSectionChanged(section));
  ASSERT_EQ(debug.lines, pair.model->lines);
  debug.lines.clear();
  pair.model->lines.clear();
}

void SettingsRandom::ExpectSame(const Pair& pair) {
  std::vector<std::string> records, sections;
  for (const ModelField& field : pair.model->fields) records.push_back(field.Record());
  for (const ModelSection& s : pair.model->sections)
    sections.push_back(Section(s.id, static_cast<int>(s.first), static_cast<int>(s.last),
                               static_cast<int>(s.status), s.alias));
  ASSERT_EQ(SectionsOf(*pair.real), sections);
  ASSERT_EQ(RecordsOf(*pair.real), records);
}

TEST_P(SettingsRandom, TenThousandOperationsAgreeWithTheRules) {
  std::printf("seed %u\n", GetParam());
  for (int i = 0; i < 10000; ++i) {
    SCOPED_TRACE("operation " + std::to_string(i) + ", seed " + std::to_string(GetParam()));
    Step();
    if (i % 25 == 0)
      for (const Pair& pair : m_Pairs) ExpectSame(pair);
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SettingsRandom, testing::Range(1u, 11u));

}  // namespace
}  // namespace test_support
