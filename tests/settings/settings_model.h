// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A settings container as its rules describe it: plain vectors, searched from their start. It uses nothing of
// the library but the hash of a name, so that it can be held against it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "common_interfaces/queries.h"

namespace test_support {

struct ModelField {
  unsigned section = 0;
  int nameId = 0;
  int type = 0;
  unsigned condition = 0;
  int compareStatus = 0;
  unsigned querySection = 0xFFFFFFFF;
  std::string values;  // bytes, little-endian

  bool modified = false;
  bool holdsQuery = false;
  const CommonInterfaces::BaseQuery* query = nullptr;  // the one that the library gave

  int Width() const;
  int Size() const { return static_cast<int>(values.size()) / Width(); }
  std::string Record() const;
  int IntAt(int index) const;  // of a field of 32-bit elements
  bool SetValues(int offset, const std::string& bytes);
  bool SetStatus(int status);
  void Assign(const ModelField& other);
};

struct ModelSection {
  unsigned id = 0, alias = 0xFFFFFFFF, first = 0, last = 0, status = 0;
};

struct ModelBlock {
  unsigned owner = 0, id = 0;
  std::vector<ModelSection> sections;
  std::vector<ModelField> fields;

  std::string Bytes() const;
};

struct ModelFile {
  unsigned version = 0;
  std::vector<ModelBlock> blocks;

  std::string Bytes() const;
  const ModelBlock* Find(unsigned owner, unsigned id) const;
};

// What a query in a list must be. `kept`: the same object as before.
struct ModelQuery {
  int nameId;
  unsigned condition;
  std::string values;
  int width;
  ModelField* field;  // whose query it is; null for the aim query and the identifier query
  bool kept;
};

class SettingsModel {
 public:
  SettingsModel(unsigned id, unsigned owner, const ModelFile* ownFile)
      : m_Id(id), m_Owner(owner), m_OwnFile(ownFile) {}
  void Assign(const SettingsModel& other);

  ModelField* GetAtField(unsigned section, int nameId, bool verbose);
  ModelField* GetAtObject(int kind, int number, bool verbose);
  int CreateField(const ModelField& record, bool allowExisting);
  bool DeleteField(int nameId, unsigned section);
  bool GetField(int nameId, std::string& values);
  void SetField(int nameId, const std::string& values);
  // With 0xFFFFFFFF: the field is looked up without a section.
  void SetFieldElement(unsigned section, int nameId, int index, const std::string& value);
  void SetFieldStatus(unsigned section, int nameId, int status);
  void SetSectionStatus(unsigned section, unsigned status);
  unsigned GetSectionStatus(unsigned section, bool withAlias) const;
  bool SetSectionAlias(unsigned section, unsigned alias);
  unsigned GetCurSection() const { return m_Current < 0 ? 0 : sections[Place(m_Current)].id; }
  unsigned SetCurSection(unsigned section);
  void SetSectionChanged(unsigned section, bool changed);
  bool IsSectionChanged(unsigned section) const;
  void SetAimObject(int kind, int number);
  bool GetFavoInfo(std::map<int, unsigned char>& favourites, unsigned section) const;
  bool GetObjectInfo(std::vector<int>& ids, unsigned section, int type) const;
  bool GetIntegrPlnt(int& kind, int& number) const;
  void ClearIntegrFlag();
  bool CreateQueryList(unsigned section, bool all, std::vector<ModelQuery>& list);

  bool Read(const ModelFile* file);  // null: without a name
  bool Restore(const ModelFile& file);
  void Write(ModelFile& file, unsigned workspaceVersion);
  void SetId(unsigned id) { m_Id = id; }
  unsigned GetVersion() const { return m_Version; }

  std::vector<ModelSection> sections;
  std::vector<ModelField> fields;
  std::vector<std::string> lines;  // what was printed
  static bool s_Modify;

 private:
  struct Run {
    int begin, end;
  };
  static std::size_t Place(int index) { return static_cast<std::size_t>(index); }
  int FindSection(unsigned id, bool withAlias) const;
  Run RunOf(int section) const;
  int FindInRun(int section, int nameId) const;
  int FindOn(unsigned section) const;
  void Shift(int section, int by);
  void Note(bool changed, unsigned section);
  bool ReadFrom(const ModelFile* file, bool loadingDefaults);
  void Merge(std::size_t fieldCount, std::size_t sectionCount);
  bool MakesQuery(ModelField& field, unsigned section, bool all, ModelQuery& query) const;

  unsigned m_Id, m_Owner, m_Version = 0;
  const ModelFile* m_OwnFile;
  int m_Current = -1;
  int m_AimKind = -1, m_AimNumber = -1;
  std::map<unsigned, bool> m_Changed;
};

}  // namespace test_support
