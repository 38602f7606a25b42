// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Settings files of the input's making, merged, restored and asked for fields and objects: the container
// against the plain model of its rules, which looks through vectors from their start.
#include <array>
#include <map>
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "settings/random_settings.h"
#include "settings/settings_bytes.h"
#include "settings/settings_model.h"
#include "utils/version.h"

namespace {

using fuzz::Input;
using fuzz::Require;
using namespace test_support;

class Comparison : private RandomSettings {
 public:
  explicit Comparison(Input& input)
      : RandomSettings([&input] { return static_cast<unsigned>(input.TakeByte()); }),
        m_Input(input),
        m_OwnPath(Write("data/own.data", m_Own = RandomFile(true))),
        m_NamedPath(Write("work/named.data", m_Named = RandomFile(false))),
        m_Model(kId, kOwner, &m_Own),
        m_Real(kId, kOwner, m_OwnPath.c_str()) {}

  void Run() {
    while (m_Input.GetLeft() > 0 && m_Model.fields.size() < kMostFields) {
      Step(Random(9));
      Require(m_Real.GetCurSection() == m_Model.GetCurSection(), "the same section is current");
      ExpectSame();
    }
  }

 private:
  static constexpr std::size_t kMostFields = 200;  // merging doubles favourites

  static std::string Write(const char* name, const ModelFile& file) {
    const std::string bytes = file.Bytes();
    return fuzz::Scratch::Get().Write(name, reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                      bytes.size());
  }

  void Step(int kind) {
    const unsigned section = RandomSection();
    const int name = RandomName();
    switch (kind) {
      case 0:
        return Require(m_Real.Read(m_NamedPath.c_str()) == m_Model.Read(&m_Named), "both read the file");
      case 1:
        return Require(m_Real.Read(nullptr) == m_Model.Read(nullptr), "both read the defaults");
      case 2:
        return Require(m_Real.Restore(m_NamedPath.c_str()) == m_Model.Restore(m_Named), "both restore");
      case 3:
        return Find(Random(3) ? section : kNone, name);
      case 4:
        return Create();
      case 5: {
        const std::string text = NameOf(Random(kNames));
        const bool isDeleted = m_Model.DeleteField(::GetUniqueID(text.c_str()), section);
        return Require(m_Real.DeleteField(text.c_str(), static_cast<int>(section)) == isDeleted,
                       "both delete");
      }
      case 6:
        return FindObjects(section);
      case 7:
        return SetElement(section, name);
      default:
        return FindFavourites(section);
    }
  }

  void Find(unsigned section, int name) {
    const ModelField* const field = m_Model.GetAtField(section, name, true);
    const SettingField* const real = m_Real.GetAtField(section, name, true);
    Require((real != nullptr) == (field != nullptr), "both find the field");
    if (field) {
      const auto at = static_cast<int>(field - m_Model.fields.data());
      Require(real == m_Real.GetFieldAt(at), "at the same place");
    }
  }

  void Create() {
    const ModelField field = RandomField();
    const bool mayExist = Random(2) != 0;
    Require(test_support::Create(m_Real, field.Record(), mayExist) == m_Model.CreateField(field, mayExist),
            "both make the field");
  }

  void FindObjects(unsigned section) {
    std::vector<int> ids, expected;
    const bool isFound = m_Model.GetObjectInfo(expected, section, -1);
    Require(m_Real.GetObjectInfo(ids, static_cast<int>(section), -1) == isFound && ids == expected,
            "both list the same objects");
  }

  void FindFavourites(unsigned section) {
    std::map<int, unsigned char> favourites, expected;
    const bool isFound = m_Model.GetFavoInfo(expected, section);
    Require(m_Real.GetFavoInfo(&favourites, static_cast<int>(section)) == isFound && favourites == expected,
            "both list the same favourites");
  }

  void SetElement(unsigned section, int name) {
    const std::string value = LittleEndian(static_cast<unsigned>(Random(4)), 8) + std::string(72, '\0');
    const int index = Random(10) - 1;
    m_Model.SetFieldElement(section, name, index, value);
    m_Real.SetFieldElement(section, name, value.data(), index);
  }

  void ExpectSame() const {
    std::vector<std::string> records, sections;
    for (const ModelField& field : m_Model.fields) records.push_back(field.Record());
    for (const ModelSection& s : m_Model.sections)
      sections.push_back(Section(s.id, static_cast<int>(s.first), static_cast<int>(s.last),
                                 static_cast<int>(s.status), s.alias));
    Require(SectionsOf(m_Real) == sections, "both have the same sections");
    Require(RecordsOf(m_Real) == records, "and the same fields");
  }

  Input& m_Input;
  ModelFile m_Own, m_Named;
  std::string m_OwnPath, m_NamedPath;
  SettingsModel m_Model;
  SettingsData m_Real;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Scratch::Get();
  SetWorkspaceVersion(kWorkspaceVersion);
  Input input(data, size);
  Comparison(input).Run();
  return 0;
}
