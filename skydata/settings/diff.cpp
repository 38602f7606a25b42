// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/diff.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <utility>

#include "skydata/settings/text/format.h"

namespace skydata {
namespace {

// Two words that name a block, a section or a field where it stands, and which one of that name it is.
struct Key {
  unsigned first = 0, second = 0;
  int ordinal = 0;
  auto operator<=>(const Key&) const = default;
};

Key KeyOf(const FileBlock& block) { return {block.owner, block.id}; }
Key KeyOf(const FileSection& section) { return {section.text.id}; }
Key KeyOf(const FileField& field) { return {field.section, static_cast<unsigned>(field.text.nameId)}; }

template <class Item>
std::vector<Key> KeysOf(const std::vector<Item>& items) {
  std::map<Key, int> counts;
  std::vector<Key> keys;
  for (const Item& item : items) {
    keys.push_back(KeyOf(item));
    keys.back().ordinal = counts[KeyOf(item)]++;
  }
  return keys;
}

// Calls visit(first, second) for the items of each key, in the order of `first`, then of `second`; null for
// the one that a side lacks.
template <class Item, class Visit>
void VisitPairs(const std::vector<Item>& first, const std::vector<Item>& second, Visit visit) {
  const std::vector<Key> firstKeys = KeysOf(first), secondKeys = KeysOf(second);
  std::map<Key, const Item*> partners;
  for (std::size_t i = 0; i < second.size(); ++i) partners.emplace(secondKeys[i], &second[i]);
  for (std::size_t i = 0; i < first.size(); ++i) {
    const auto partner = partners.find(firstKeys[i]);
    visit(&first[i], partner == partners.end() ? nullptr : partner->second);
    if (partner != partners.end()) partners.erase(partner);
  }
  for (std::size_t i = 0; i < second.size(); ++i) {
    if (partners.count(secondKeys[i]) != 0) visit(static_cast<const Item*>(nullptr), &second[i]);
  }
}

class Differ {
 public:
  explicit Differ(std::ostream& output) : m_Output(output) {}

  bool Compare(const SettingsFile& first, const SettingsFile& second) {
    CompareTexts(HeaderOf(first), HeaderOf(second));
    VisitPairs(first.blocks, second.blocks,
               [this](const FileBlock* a, const FileBlock* b) { CompareBlocks(a, b); });
    if (!m_IsDifferent) CompareOrder(first, second);
    return m_IsDifferent;
  }

 private:
  static std::string HeaderOf(const SettingsFile& file) {
    return file.hasHeader ? "header " + std::to_string(file.version) : "header none";
  }
  static std::string HeadingOf(const FileBlock& block) { return FormatBlockHeading(block.owner, block.id); }
  static std::string TextOf(const FileSection* section) {
    return section ? FormatSectionHeading(section->text) : "";
  }

  void Say(char mark, const std::string& text) {
    m_IsDifferent = true;
    if (!m_Heading.empty()) m_Output << "  " << std::exchange(m_Heading, "") << '\n';
    m_Output << mark << ' ' << text << '\n';
  }

  // "" stands for what a side lacks.
  void CompareTexts(const std::string& first, const std::string& second) {
    if (first == second) return;
    if (!first.empty()) Say('-', first);
    if (!second.empty()) Say('+', second);
  }

  void CompareBlocks(const FileBlock* first, const FileBlock* second) {
    static const FileBlock kNone;
    m_Heading.clear();
    if (first && second) {
      m_Heading = HeadingOf(*first);
    } else {
      Say(first ? '-' : '+', HeadingOf(first ? *first : *second));
    }
    const FileBlock &a = first ? *first : kNone, &b = second ? *second : kNone;
    VisitPairs(a.sections, b.sections, [this](const FileSection* one, const FileSection* other) {
      CompareTexts(TextOf(one), TextOf(other));
    });
    VisitPairs(a.fields, b.fields,
               [this](const FileField* one, const FileField* other) { CompareFields(one, other); });
  }

  void CompareFields(const FileField* first, const FileField* second) {
    if (first && second && FormatFieldContent(first->text) == FormatFieldContent(second->text)) return;
    if (first) Say('-', TextOf(*first));
    if (second) Say('+', TextOf(*second));
  }

  static std::string TextOf(const FileField& field) {
    return FormatWord(field.section) + "." + FormatField(field.text);
  }

  void CompareOrder(const SettingsFile& first, const SettingsFile& second) {
    m_Heading.clear();
    if (KeysOf(first.blocks) != KeysOf(second.blocks)) Say('~', "the blocks stand in another order");
    VisitPairs(first.blocks, second.blocks, [this](const FileBlock* a, const FileBlock* b) {
      m_Heading = HeadingOf(*a);
      if (KeysOf(a->sections) != KeysOf(b->sections)) Say('~', "the sections stand in another order");
      const auto before = FieldsBySection(*a), after = FieldsBySection(*b);
      for (const auto& [section, keys] : before) {
        if (keys != after.at(section))
          Say('~', "the fields of section " + FormatWord(section) + " stand in another order");
      }
    });
  }

  static std::map<unsigned, std::vector<Key>> FieldsBySection(const FileBlock& block) {
    std::map<unsigned, std::vector<Key>> keys;
    for (const Key& key : KeysOf(block.fields)) keys[key.first].push_back(key);
    return keys;
  }

  std::ostream& m_Output;
  std::string m_Heading;  // of the block being compared, until it is written
  bool m_IsDifferent = false;
};

}  // namespace

bool DiffSettings(const SettingsFile& first, const SettingsFile& second, std::ostream& output) {
  return Differ(output).Compare(first, second);
}

}  // namespace skydata
