// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/explain.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <set>

#include "common_interfaces/settings_data.h"
#include "skydata/settings/check.h"
#include "skydata/settings/format.h"
#include "skydata/settings/values.h"
#include "utils/near_names.h"
#include "utils/text.h"

namespace skydata {
namespace {

using CommonInterfaces::SettingsData;
using Key = std::pair<unsigned, unsigned>;  // owner and id

constexpr unsigned kDefaults = SettingsData::kDefaultsTag;

// One of the two values that a container may take, with the block that it comes from.
struct Candidate {
  std::string fileName;
  const FileBlock* block = nullptr;
  const FileField* field = nullptr;
};

std::string At(std::size_t offset) { return " at offset " + std::to_string(offset); }

class Explainer {
 public:
  Explainer(const ExplainRequest& request, const SettingsFile& file, const SettingsFile& defaults,
            const FieldNames& names)
      : m_Request(request),
        m_File(file),
        m_Defaults(defaults),
        m_Names(names),
        m_NameId(NameIdOf(request.field)) {}

  bool Explain(std::ostream& output, std::ostream& errors) {
    const std::string problem = ChooseKey();
    if (!problem.empty()) {
      errors << m_Request.fileName << ": " << problem << '\n';
      return false;
    }
    output << FormatWord(m_Request.section) << '.' << ShownName() << '\n';
    Show(output, "default", m_Default, {m_Key.first, kDefaults});
    if (m_Key.second != kDefaults) Show(output, "own", m_Own, m_Key);
    output << Label("value") << Decide() << '\n';
    ShowSection(output);
    for (const std::string& note : m_Notes) output << Label("note") << note << '\n';
    return true;
  }

 private:
  static int NameIdOf(const std::string& name) {
    const auto id = name[0] == '@' ? ParseUnsigned("0x" + name.substr(1), 0xFFFFFFFFu) : std::nullopt;
    return id ? static_cast<int>(*id) : GetUniqueID(name.c_str());
  }

  std::string ShownName() const {
    return m_Request.field[0] == '@' ? m_Names.NameOf(m_NameId) : m_Request.field;
  }

  static std::string Label(std::string text) {
    text += ':';
    text.resize(std::max<std::size_t>(text.size() + 1, 10), ' ');
    return text;
  }

  // The containers of the file that may have the field, by owner and id.
  std::set<Key> FindKeys() const {
    std::set<Key> keys;
    for (const FileBlock& block : m_File.blocks) {
      const FileBlock* const defaults = FindBlock(m_Defaults, block.owner, kDefaults);
      if (Has(block) || (defaults && Has(*defaults))) keys.insert({block.owner, block.id});
    }
    return keys;
  }
  bool Has(const FileBlock& block) const {
    return FindOwnField(block, m_Request.section, m_NameId) != nullptr;
  }

  // Chooses the container and finds its fields; what is in the way, or "".
  std::string ChooseKey() {
    std::set<Key> keys = m_Request.key ? std::set<Key>{*m_Request.key} : FindKeys();
    // Where a container has a block of its own, nobody asks for the defaults alone.
    std::set<Key> own;
    std::copy_if(keys.begin(), keys.end(), std::inserter(own, own.end()),
                 [](const Key& key) { return key.second != kDefaults; });
    if (!own.empty()) keys = own;
    if (keys.empty()) return DescribeMissing();
    if (keys.size() > 1) {
      std::string choice = "several containers have it; choose with";
      for (const Key& key : keys)
        choice += " --block " + FormatWord(key.first) + "," + FormatWord(key.second);
      return choice;
    }
    m_Key = *keys.begin();
    m_Default.fileName = m_Request.defaultsName;
    m_Own.fileName = m_Request.fileName;
    m_Default.block = FindBlock(m_Defaults, m_Key.first, kDefaults);
    if (m_Default.block) m_Default.field = FindField(*m_Default.block, m_Request.section, m_NameId);
    if (m_Key.second != kDefaults) m_Own.block = FindBlock(m_File, m_Key.first, m_Key.second);
    if (m_Own.block) m_Own.field = FindOwnField(*m_Own.block, m_Request.section, m_NameId);
    return m_Default.field || m_Own.field ? "" : DescribeMissing();
  }

  std::string DescribeMissing() const {
    std::string text = "has no field " + FormatWord(m_Request.section) + "." + ShownName();
    if (m_Request.key)
      text += " in block " + FormatWord(m_Request.key->first) + " " + FormatWord(m_Request.key->second);
    std::vector<std::string> known;
    std::set<std::string> sections;
    for (const SettingsFile* file : {&m_File, &m_Defaults}) {
      for (const FileBlock& block : file->blocks) {
        for (const FileField& field : block.fields) {
          sections.insert(FormatWord(field.section));
          if (field.section == m_Request.section) known.push_back(field.text.name);
        }
      }
    }
    if (known.empty()) return text + List("; its sections are", {sections.begin(), sections.end()});
    return text + List("; did you mean", FindNearNames(m_Request.field, known));
  }

  static std::string List(const char* what, const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? what + std::string(" ") : ", ") + name;
    return text;
  }

  void Show(std::ostream& output, const char* what, const Candidate& candidate, const Key& key) {
    output << Label(what);
    const std::string block = "block " + FormatWord(key.first) + " " + FormatWord(key.second);
    if (!candidate.block) {
      output << "none: " << candidate.fileName << " has no " << block << '\n';
      return;
    }
    const std::string where = block + At(candidate.block->offset) + " of " + candidate.fileName;
    if (!candidate.field) {
      output << "none in " << where << '\n';
      return;
    }
    output << FormatFieldContent(candidate.field->text) << "\n          from " << where << ", record"
           << At(candidate.field->offset) << '\n';
    Note(candidate);
  }

  void Note(const Candidate& candidate) {
    const FileBlock& block = *candidate.block;
    if (block.layout == RecordLayout::kOld)
      m_Notes.push_back(DescribeBlock(block) + " is in the old layout: read it with SetOldSettings(true)");
    for (const FileField& field : block.fields) {
      if (field.section == m_Request.section && field.text.nameId == m_NameId && &field != candidate.field)
        m_Notes.push_back("the record" + At(field.offset) +
                          " has the same section and name; the first counts");
    }
    const SettingsFile& file = &candidate == &m_Own ? m_File : m_Defaults;
    for (const FileBlock& other : file.blocks) {
      if (other.owner == block.owner && other.id == block.id && &other != &block)
        m_Notes.push_back(DescribeBlock(other) + At(other.offset) +
                          " is never read: the first with this key counts");
    }
  }

  std::string Decide() const {
    if (m_Key.second == kDefaults) return "the default";
    const bool isListed = m_Own.field && IsListedObject(*m_Own.field);
    if (!m_Default.block) {
      return isListed ? "none: a listed object is copied, but without defaults no section holds it"
                      : "none: without defaults a reader keeps no field of an own block";
    }
    if (!m_Default.field) {
      return isListed ? "the own one: listed objects are copied to the front of their section"
                      : "none: a reader drops a field that is not among the defaults";
    }
    if (!m_Own.field) return "the default: there is no own value";
    if (!HasSameShape(m_Own.field->text, m_Default.field->text))
      return "the default: the own value has another type or number of elements and is ignored";
    return "the own one: it has the type and number of elements of the default";
  }

  static const FileSection* FindSection(const Candidate& candidate, unsigned id) {
    if (!candidate.block) return nullptr;
    const auto& sections = candidate.block->sections;
    const auto found = std::find_if(sections.begin(), sections.end(),
                                    [id](const auto& section) { return section.text.id == id; });
    return found == sections.end() ? nullptr : &*found;
  }

  void ShowSection(std::ostream& output) const {
    const FileSection* const usual = FindSection(m_Default, m_Request.section);
    const FileSection* const own = FindSection(m_Own, m_Request.section);
    if (!usual) return;
    const FileSection& used = own ? *own : *usual;
    output << Label("section") << "status " << std::to_string(used.text.status)
           << (used.text.status ? "" : " (off)")
           << (own ? " from the own block; the default is " + std::to_string(usual->text.status)
                   : " from the defaults")
           << '\n';
  }

  const ExplainRequest& m_Request;
  const SettingsFile& m_File;
  const SettingsFile& m_Defaults;
  const FieldNames& m_Names;
  const int m_NameId;
  Key m_Key;
  Candidate m_Default, m_Own;
  std::vector<std::string> m_Notes;
};

}  // namespace

bool ExplainField(const ExplainRequest& request, const SettingsFile& file, const SettingsFile& defaults,
                  const FieldNames& names, std::ostream& output, std::ostream& errors) {
  return Explainer(request, file, defaults, names).Explain(output, errors);
}

}  // namespace skydata
