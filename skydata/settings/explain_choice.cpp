// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/explain_choice.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "common_interfaces/settings_data.h"
#include "skydata/settings/text/format.h"
#include "skydata/settings/text/values.h"
#include "utils/near_names.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr unsigned kDefaults = CommonInterfaces::SettingsData::kDefaultsTag;

int NameIdOf(const std::string& name) {
  const auto id = name[0] == '@' ? ParseUnsigned("0x" + name.substr(1), 0xFFFFFFFFu) : std::nullopt;
  return id ? static_cast<int>(*id) : GetUniqueID(name.c_str());
}

std::string List(const char* what, const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? what + std::string(" ") : ", ") + name;
  return text;
}

class Chooser {
 public:
  Chooser(const ExplainRequest& request, const SettingsFile& file, const SettingsFile& defaults,
          const FieldNames& names)
      : m_Request(request), m_File(file), m_Defaults(defaults) {
    m_Choice.nameId = NameIdOf(request.field);
    m_Choice.name = request.field[0] == '@' ? names.NameOf(m_Choice.nameId) : request.field;
  }

  FieldChoice Choose() {
    const std::set<BlockKey> keys = m_Request.key ? std::set<BlockKey>{*m_Request.key} : FindKeys();
    if (keys.empty()) {
      m_Choice.problem = DescribeMissing();
    } else if (keys.size() > 1) {
      m_Choice.problem = DescribeSeveral(keys);
    } else {
      m_Choice.key = *keys.begin();
      FindCandidates();
      if (!m_Choice.usual.field && !m_Choice.own.field) m_Choice.problem = DescribeMissing();
    }
    return std::move(m_Choice);
  }

 private:
  // The containers of the file that may have the field. Where one has a block of its own, nobody asks for the
  // defaults alone.
  std::set<BlockKey> FindKeys() const {
    std::set<BlockKey> keys, own;
    for (const FileBlock& block : m_File.blocks) {
      const FileBlock* const defaults = FindBlock(m_Defaults, block.owner, kDefaults);
      if (Has(block) || (defaults && Has(*defaults))) keys.insert({block.owner, block.id});
    }
    std::copy_if(keys.begin(), keys.end(), std::inserter(own, own.end()),
                 [](const BlockKey& key) { return key.second != kDefaults; });
    return own.empty() ? keys : own;
  }

  bool Has(const FileBlock& block) const {
    return FindOwnField(block, m_Request.section, m_Choice.nameId) != nullptr;
  }

  void FindCandidates() {
    Candidate& usual = m_Choice.usual;
    Candidate& own = m_Choice.own;
    usual = {m_Request.defaultsName, &m_Defaults, FindBlock(m_Defaults, m_Choice.key.first, kDefaults),
             nullptr};
    own = {m_Request.fileName, &m_File, nullptr, nullptr};
    if (usual.block) usual.field = FindField(*usual.block, m_Request.section, m_Choice.nameId);
    if (!m_Choice.IsOfDefaults()) own.block = FindBlock(m_File, m_Choice.key.first, m_Choice.key.second);
    if (own.block) own.field = FindOwnField(*own.block, m_Request.section, m_Choice.nameId);
  }

  static std::string DescribeSeveral(const std::set<BlockKey>& keys) {
    std::string choice = "several containers have it; choose with";
    for (const BlockKey& key : keys)
      choice += " --block " + FormatWord(key.first) + "," + FormatWord(key.second);
    return choice;
  }

  std::string DescribeMissing() const {
    std::string text = "has no field " + FormatWord(m_Request.section) + "." + m_Choice.name;
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

  const ExplainRequest& m_Request;
  const SettingsFile& m_File;
  const SettingsFile& m_Defaults;
  FieldChoice m_Choice;
};

}  // namespace

bool FieldChoice::IsOfDefaults() const { return key.second == kDefaults; }

BlockKey DefaultsOf(const BlockKey& key) { return {key.first, kDefaults}; }

FieldChoice ChooseField(const ExplainRequest& request, const SettingsFile& file, const SettingsFile& defaults,
                        const FieldNames& names) {
  return Chooser(request, file, defaults, names).Choose();
}

}  // namespace skydata
