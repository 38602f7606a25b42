// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Random fields and settings files for the model of a container: few sections and names, so that they meet.
#pragma once

#include <array>
#include <functional>
#include <random>
#include <string>
#include <utility>

#include "settings/settings_bytes.h"
#include "settings/settings_model.h"

namespace test_support {

constexpr unsigned kWorkspaceVersion = 5;
constexpr std::array kSections = {kPlnt, kMoon, kAstr, kComt, kScft, kStar, 0x636C7374u};
constexpr std::array kIds = {1u, 1u, 2u, kDefaults};
constexpr int kNames = 12;

inline std::string NameOf(int number) { return "Name" + std::to_string(number); }

class RandomSettings {
 public:
  explicit RandomSettings(unsigned seed)
      : m_Next([random = std::mt19937(seed)]() mutable { return static_cast<unsigned>(random()); }) {}
  // Of numbers that come from elsewhere.
  explicit RandomSettings(std::function<unsigned()> next) : m_Next(std::move(next)) {}

  int Random(int below) { return static_cast<int>(m_Next() % static_cast<unsigned>(below)); }
  unsigned RandomSection() { return kSections[static_cast<std::size_t>(Random(kSections.size()))]; }
  int RandomName() { return ::GetUniqueID(NameOf(Random(kNames)).c_str()); }
  ModelField RandomField();
  ModelBlock RandomBlock(bool defaults);
  // With an own block, and with the defaults before it, always or at times.
  ModelFile RandomFile(bool defaults);

 private:
  std::function<unsigned()> m_Next;
};

inline ModelField RandomSettings::RandomField() {
  ModelField field;
  field.section = RandomSection();
  field.nameId = RandomName();
  field.compareStatus = Random(3) > 0;
  field.condition = Random(4) == 0 ? 0x4000u : static_cast<unsigned>(Random(3));
  field.querySection = Random(2) ? kNone : RandomSection();
  switch (Random(6)) {
    case 0:
      field.type = 8;
      field.values = Bytes({Random(3), Random(2), Random(2), Random(2), Random(2), Random(3), 0, 0, 0});
      if (Random(8) == 0) field.values.resize(4);
      break;
    case 1:
      field.type = 1;
      field.values = Bytes({Random(4), 7, 8, 9}).substr(0, static_cast<std::size_t>(1 + Random(4)));
      break;
    case 2:
      field.type = 7;
      field.values = LittleEndian(static_cast<unsigned>(Random(3)), 8);
      break;
    case 3:
      field.type = 4;
      field.values = Int32s({Random(3)});
      break;
    default:
      field.type = 4;
      field.values = Int32s({static_cast<int>(Random(4) ? field.section : RandomSection()), Random(3),
                             Random(2), 0, Random(2), 0, 0, 4});
      if (Random(2)) field.values += Int32s({Random(2)});
  }
  return field;
}

// Sections one behind the other, or, as damage may leave them, anywhere.
inline ModelBlock RandomSettings::RandomBlock(bool defaults) {
  ModelBlock block{kOwner, defaults ? kDefaults : kIds[static_cast<std::size_t>(Random(2)) * 2], {}, {}};
  const bool damaged = Random(3) == 0;
  const int sections = Random(6);
  for (int i = 0; i < sections; ++i) {
    ModelSection section;
    section.id = RandomSection();
    section.alias = Random(3) ? kNone : RandomSection();
    section.status = static_cast<unsigned>(Random(2));
    section.first = static_cast<unsigned>(block.fields.size());
    for (int count = Random(6); count > 0; --count) {
      block.fields.push_back(RandomField());
      if (Random(8) > 0) block.fields.back().section = section.id;
    }
    section.last = (static_cast<unsigned>(block.fields.size()) - 1) & 0xFFFF;
    if (damaged) {
      section.first =
          Random(9) ? static_cast<unsigned>(Random(20)) : 0xFFFFu - static_cast<unsigned>(Random(3));
      section.last =
          Random(9) ? static_cast<unsigned>(Random(20)) : 0xFFFFu - static_cast<unsigned>(Random(3));
    }
    block.sections.push_back(section);
  }
  return block;
}

inline ModelFile RandomSettings::RandomFile(bool defaults) {
  ModelFile file;
  file.version = kWorkspaceVersion + static_cast<unsigned>(Random(2));
  if (defaults || Random(2)) file.blocks.push_back(RandomBlock(true));
  file.blocks.push_back(RandomBlock(false));
  return file;
}

}  // namespace test_support
