// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/parser.h"

#include <algorithm>
#include <map>
#include <set>

#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/field_parser.h"
#include "skydata/settings/values.h"

namespace skydata {
namespace {

constexpr char kBlanks[] = " \t";
constexpr int kMaxIncludeDepth = 8;

std::vector<std::string> SplitWords(std::string_view text) {
  std::vector<std::string> words;
  for (text = TrimBlanks(text); !text.empty();) {
    const auto end = std::min(text.find_first_of(kBlanks), text.size());
    words.emplace_back(text.substr(0, end));
    text = TrimBlanks(text.substr(end));
  }
  return words;
}

// The line without its comment: from a '#' on that stands first or behind a blank.
std::string_view WithoutComment(std::string_view line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '#' && (i == 0 || line[i - 1] == ' ' || line[i - 1] == '\t'))
      return TrimBlanks(line.substr(0, i));
  }
  return TrimBlanks(line);
}

class SettingsParser {
 public:
  SettingsDocument Parse(const std::string& text, const std::filesystem::path& path) {
    m_Document.place.file = path.string();
    ParseText(text, path, 1);
    m_Place = m_Document.place;
    if (!m_HasHeaderLine) Fail("has no 'header' line");
    if (m_Document.blocks.empty()) Fail("has no block");
    return std::move(m_Document);
  }

 private:
  [[noreturn]] void Fail(const std::string& message) const {
    throw SourceError(m_Place.file, m_Place.line, message);
  }

  void ParseText(const std::string& bytes, const std::filesystem::path& path, int depth) {
    for (const TextLine& line : SplitLines(bytes)) {
      m_Place = {path.string(), line.number};
      const std::string_view text = WithoutComment(line.text);
      if (!text.empty()) ParseLine(path, text, depth);
    }
  }

  void ParseLine(const std::filesystem::path& path, std::string_view text, int depth) {
    if (text.front() == '[') {
      if (text.back() != ']') Fail("a heading ends in ']'");
      ParseHeading(SplitWords(text.substr(1, text.size() - 2)));
    } else if (text.find('=') != std::string_view::npos) {
      AddField(ParseField(m_Place, text));
    } else {
      ParseDirective(path, text, depth);
    }
  }

  void ParseDirective(const std::filesystem::path& path, std::string_view text, int depth) {
    const auto end = std::min(text.find_first_of(kBlanks), text.size());
    const std::string_view word = text.substr(0, end), argument = TrimBlanks(text.substr(end));
    if (word == "header") {
      ParseHeader(argument);
    } else if (word == "include" && !argument.empty()) {
      Include(path.parent_path() / std::filesystem::path(argument), depth);
    } else {
      Fail("'" + std::string(text) + "' is no heading, no field, no 'header' and no 'include'");
    }
  }

  void ParseHeader(std::string_view argument) {
    if (m_HasHeaderLine) Fail("a second 'header' line");
    m_HasHeaderLine = true;
    m_Document.hasHeader = argument != "none";
    if (!m_Document.hasHeader) return;
    const auto version = ParseUnsigned(argument, 0xFFFFFFFFu);
    if (!version) Fail("'header' wants the version of the file, or 'none'");
    m_Document.version = *version;
  }

  void Include(const std::filesystem::path& path, int depth) {
    if (depth >= kMaxIncludeDepth) Fail("files are included more than 8 deep");
    if (!std::filesystem::is_regular_file(path))
      Fail("'" + path.string() + "' cannot be included: no such file");
    const TextPlace place = m_Place;
    ParseText(ReadFile(path), path, depth + 1);
    m_Place = place;
    m_Block = nullptr;
    m_Section = nullptr;
  }

  void ParseHeading(const std::vector<std::string>& words) {
    if (words.empty()) Fail("an empty heading");
    if (words[0] == "block") {
      OpenBlock(words);
    } else if (words[0] == "template") {
      OpenTemplate(words);
    } else if (words[0] == "section") {
      OpenSection(words);
    } else {
      Fail("'" + words[0] + "' is no heading");
    }
  }

  // The sections that a heading with `count` words and perhaps ": template" starts with.
  std::vector<SectionText> TakeBase(const std::vector<std::string>& words, std::size_t count) {
    if (words.size() == count) return {};
    if (words.size() != count + 2 || words[count] != ":")
      Fail("wants '" + words[0] + "' and its names, then ': template'");
    const auto base = m_Templates.find(words[count + 1]);
    if (base == m_Templates.end()) Fail("there is no template '" + words[count + 1] + "' above");
    return base->second.sections;
  }

  void OpenBlock(std::vector<std::string> words) {
    if (words.size() < 3) Fail("wants '[block OWNER ID]'");
    const bool isAgain = words.size() > 3 && words[3] == "again";
    if (isAgain) words.erase(words.begin() + 3);
    const auto owner = ParseWord(words[1]), id = ParseWord(words[2]);
    if (!owner || !id) Fail("'" + words[owner ? 2 : 1] + "' is no word");
    const bool stands =
        std::any_of(m_Document.blocks.begin(), m_Document.blocks.end(),
                    [&](const BlockText& block) { return block.owner == *owner && block.id == *id; });
    if (stands != isAgain)
      Fail(stands ? "a second block with this key" : "'again' without a block with this key above");
    m_Document.blocks.push_back({m_Place, *owner, *id, TakeBase(words, 3)});
    Open(m_Document.blocks.back());
  }

  void OpenTemplate(const std::vector<std::string>& words) {
    if (words.size() < 2) Fail("wants '[template NAME]'");
    BlockText body{m_Place, 0, 0, TakeBase(words, 2)};
    const auto [entry, isNew] = m_Templates.emplace(words[1], std::move(body));
    if (!isNew) Fail("a second template '" + words[1] + "'");
    Open(entry->second);
  }

  void Open(BlockText& block) {
    m_Block = &block;
    m_Section = nullptr;
    m_Opened.clear();
    m_Written.clear();
  }

  void OpenSection(const std::vector<std::string>& words) {
    if (!m_Block) Fail("a section stands in a block or a template");
    if (words.size() < 2) Fail("wants '[section ID]'");
    const auto id = ParseWord(words[1]);
    if (!id) Fail("'" + words[1] + "' is no word");
    if (!m_Opened.insert(*id).second) Fail("a second section '" + words[1] + "'");
    auto& sections = m_Block->sections;
    auto found = std::find_if(sections.begin(), sections.end(),
                              [id](const auto& section) { return section.id == *id; });
    if (found == sections.end()) {
      sections.emplace_back().id = *id;
      found = sections.end() - 1;
    }
    found->place = m_Place;
    for (std::size_t i = 2; i < words.size(); ++i) ParseSectionAttribute(words[i], *found);
    m_Section = &*found;
  }

  void ParseSectionAttribute(const std::string& attribute, SectionText& section) {
    const auto equals = std::min(attribute.find('='), attribute.size());
    const std::string key = attribute.substr(0, equals);
    const std::string value = equals < attribute.size() ? attribute.substr(equals + 1) : "";
    const auto alias = key == "alias" ? ParseWord(value) : std::nullopt;
    const auto status = key == "status" ? ParseUnsigned(value, 255) : std::nullopt;
    if (!alias && !status) Fail("'" + attribute + "' is no attribute of a section");
    if (alias) section.alias = *alias;
    if (status) section.status = static_cast<unsigned char>(*status);
  }

  // A field that the template has keeps its place there and takes everything else from this line.
  void AddField(FieldText field) {
    if (!m_Section) Fail("field " + field.name + " stands in no section");
    auto& fields = m_Section->fields;
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&field](const auto& other) { return other.nameId == field.nameId; });
    if (field.isAgain && found == fields.end())
      Fail("field " + field.name + ": 'again' without a field of this name above");
    if (!m_Written.insert({m_Section->id, field.nameId}).second && !field.isAgain)
      Fail("field " + field.name + " stands in this section already");
    if (found == fields.end() || field.isAgain) {
      fields.push_back(std::move(field));
    } else {
      *found = std::move(field);
    }
  }

  SettingsDocument m_Document;
  std::map<std::string, BlockText> m_Templates;
  bool m_HasHeaderLine = false;
  TextPlace m_Place;                             // the line being read
  BlockText* m_Block = nullptr;                  // the block or template being filled
  SectionText* m_Section = nullptr;              // of m_Block
  std::set<unsigned> m_Opened;                   // sections of m_Block with a heading of their own
  std::set<std::pair<unsigned, int>> m_Written;  // fields of m_Block with a line of their own
};

}  // namespace

SettingsDocument ParseSettings(const std::filesystem::path& path) {
  return ParseSettingsText(ReadFile(path), path);
}

SettingsDocument ParseSettingsText(const std::string& text, const std::filesystem::path& name) {
  return SettingsParser().Parse(text, name);
}

}  // namespace skydata
