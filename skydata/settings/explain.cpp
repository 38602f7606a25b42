// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/explain.h"

#include <algorithm>
#include <ostream>
#include <vector>

#include "skydata/settings/check.h"
#include "skydata/settings/explain_choice.h"
#include "skydata/settings/text/format.h"

namespace skydata {
namespace {

std::string At(std::size_t offset) { return " at offset " + std::to_string(offset); }

std::string Label(std::string text) {
  text += ':';
  text.resize(std::max<std::size_t>(text.size() + 1, 10), ' ');
  return text;
}

// Which of the values counts, and why.
std::string Decide(const FieldChoice& choice) {
  if (choice.IsOfDefaults()) return "the default";
  const bool isListed = choice.own.field && IsListedObject(*choice.own.field);
  if (!choice.usual.block) {
    return isListed ? "none: a listed object is copied, but without defaults no section holds it"
                    : "none: without defaults a reader keeps no field of an own block";
  }
  if (!choice.usual.field) {
    return isListed ? "the own one: listed objects are copied to the front of their section"
                    : "none: a reader drops a field that is not among the defaults";
  }
  if (!choice.own.field) return "the default: there is no own value";
  if (!HasSameShape(choice.own.field->text, choice.usual.field->text))
    return "the default: the own value has another type or number of elements and is ignored";
  return "the own one: it has the type and number of elements of the default";
}

const FileSection* FindSection(const Candidate& candidate, unsigned id) {
  if (!candidate.block) return nullptr;
  const auto& sections = candidate.block->sections;
  const auto found = std::find_if(sections.begin(), sections.end(),
                                  [id](const auto& section) { return section.text.id == id; });
  return found == sections.end() ? nullptr : &*found;
}

// Prints a choice.
class Explainer {
 public:
  Explainer(const FieldChoice& choice, unsigned section) : m_Choice(choice), m_Section(section) {}

  void Explain(std::ostream& output) {
    output << FormatWord(m_Section) << '.' << m_Choice.name << '\n';
    Show(output, "default", m_Choice.usual, DefaultsOf(m_Choice.key));
    if (!m_Choice.IsOfDefaults()) Show(output, "own", m_Choice.own, m_Choice.key);
    output << Label("value") << Decide(m_Choice) << '\n';
    ShowSection(output);
    for (const std::string& note : m_Notes) output << Label("note") << note << '\n';
  }

 private:
  void Show(std::ostream& output, const char* what, const Candidate& candidate, const BlockKey& key) {
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
      if (field.section == m_Section && field.text.nameId == m_Choice.nameId && &field != candidate.field)
        m_Notes.push_back("the record" + At(field.offset) +
                          " has the same section and name; the first counts");
    }
    for (const FileBlock& other : candidate.file->blocks) {
      if (other.owner == block.owner && other.id == block.id && &other != &block)
        m_Notes.push_back(DescribeBlock(other) + At(other.offset) +
                          " is never read: the first with this key counts");
    }
  }

  void ShowSection(std::ostream& output) const {
    const FileSection* const usual = FindSection(m_Choice.usual, m_Section);
    const FileSection* const own = FindSection(m_Choice.own, m_Section);
    if (!usual) return;
    const FileSection& used = own ? *own : *usual;
    output << Label("section") << "status " << std::to_string(used.text.status)
           << (used.text.status ? "" : " (off)")
           << (own ? " from the own block; the default is " + std::to_string(usual->text.status)
                   : " from the defaults")
           << '\n';
  }

  const FieldChoice& m_Choice;
  const unsigned m_Section;
  std::vector<std::string> m_Notes;
};

}  // namespace

bool ExplainField(const ExplainRequest& request, const SettingsFile& file, const SettingsFile& defaults,
                  const FieldNames& names, std::ostream& output, std::ostream& errors) {
  const FieldChoice choice = ChooseField(request, file, defaults, names);
  if (!choice.problem.empty()) {
    errors << request.fileName << ": " << choice.problem << '\n';
    return false;
  }
  Explainer(choice, request.section).Explain(output);
  return true;
}

}  // namespace skydata
