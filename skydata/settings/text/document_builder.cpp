// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/document_builder.h"

#include <algorithm>

#include "skydata/files/source_error.h"
#include "skydata/settings/text/values.h"

namespace skydata {

void DocumentBuilder::Fail(const std::string& message) const {
  throw SourceError(m_Place.file, m_Place.line, message);
}

SettingsDocument DocumentBuilder::Finish() {
  m_Place = m_Document.place;
  if (!m_HasHeaderLine) Fail("has no 'header' line");
  if (m_Document.blocks.empty()) Fail("has no block");
  return std::move(m_Document);
}

void DocumentBuilder::SetHeader(std::string_view argument) {
  if (m_HasHeaderLine) Fail("a second 'header' line");
  m_HasHeaderLine = true;
  m_Document.hasHeader = argument != "none";
  if (!m_Document.hasHeader) return;
  const auto version = ParseUnsigned(argument, 0xFFFFFFFFu);
  if (!version) Fail("'header' wants the version of the file, or 'none'");
  m_Document.version = *version;
}

void DocumentBuilder::OpenHeading(const std::vector<std::string>& words) {
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
std::vector<SectionText> DocumentBuilder::TakeBase(const std::vector<std::string>& words, std::size_t count) {
  if (words.size() == count) return {};
  if (words.size() != count + 2 || words[count] != ":")
    Fail("wants '" + words[0] + "' and its names, then ': template'");
  const auto base = m_Templates.find(words[count + 1]);
  if (base == m_Templates.end()) Fail("there is no template '" + words[count + 1] + "' above");
  return base->second.sections;
}

void DocumentBuilder::OpenBlock(std::vector<std::string> words) {
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

void DocumentBuilder::OpenTemplate(const std::vector<std::string>& words) {
  if (words.size() < 2) Fail("wants '[template NAME]'");
  BlockText body{m_Place, 0, 0, TakeBase(words, 2)};
  const auto [entry, isNew] = m_Templates.emplace(words[1], std::move(body));
  if (!isNew) Fail("a second template '" + words[1] + "'");
  Open(entry->second);
}

void DocumentBuilder::Open(BlockText& block) {
  m_Block = &block;
  m_Section = nullptr;
  m_Opened.clear();
  m_Written.clear();
}

void DocumentBuilder::OpenSection(const std::vector<std::string>& words) {
  if (!m_Block) Fail("a section stands in a block or a template");
  if (words.size() < 2) Fail("wants '[section ID]'");
  const auto id = ParseWord(words[1]);
  if (!id) Fail("'" + words[1] + "' is no word");
  if (!m_Opened.insert(*id).second) Fail("a second section '" + words[1] + "'");
  auto& sections = m_Block->sections;
  auto found =
      std::find_if(sections.begin(), sections.end(), [id](const auto& section) { return section.id == *id; });
  if (found == sections.end()) {
    sections.emplace_back().id = *id;
    found = sections.end() - 1;
  }
  found->place = m_Place;
  for (std::size_t i = 2; i < words.size(); ++i) SetSectionAttribute(words[i], *found);
  m_Section = &*found;
}

void DocumentBuilder::SetSectionAttribute(const std::string& attribute, SectionText& section) {
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
void DocumentBuilder::AddField(FieldText field) {
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

}  // namespace skydata
