// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "skydata/settings/text/document.h"

namespace skydata {

// What the lines of a settings text build, one after the other: blocks and templates, sections in them,
// fields in these. Every step throws SourceError, naming the line, when it does not fit what stands above.
class DocumentBuilder {
 public:
  explicit DocumentBuilder(std::string file) { m_Document.place.file = std::move(file); }

  // The line that the next steps come from.
  void SetPlace(TextPlace place) { m_Place = std::move(place); }
  const TextPlace& GetPlace() const { return m_Place; }

  void SetHeader(std::string_view argument);                // behind "header"
  void OpenHeading(const std::vector<std::string>& words);  // between the brackets of a heading
  void AddField(FieldText field);                           // to the section that is open
  void Close() { m_Block = nullptr, m_Section = nullptr; }  // an included file has ended

  // The document, which is taken out. Throws SourceError when it is not complete.
  SettingsDocument Finish();

  [[noreturn]] void Fail(const std::string& message) const;

 private:
  std::vector<SectionText> TakeBase(const std::vector<std::string>& words, std::size_t count);
  void OpenBlock(std::vector<std::string> words);
  void OpenTemplate(const std::vector<std::string>& words);
  void Open(BlockText& block);
  void OpenSection(const std::vector<std::string>& words);
  void SetSectionAttribute(const std::string& attribute, SectionText& section);

  SettingsDocument m_Document;
  std::map<std::string, BlockText> m_Templates;
  bool m_HasHeaderLine = false;
  TextPlace m_Place;
  BlockText* m_Block = nullptr;                  // the block or template being filled
  SectionText* m_Section = nullptr;              // of m_Block
  std::set<unsigned> m_Opened;                   // sections of m_Block with a heading of their own
  std::set<std::pair<unsigned, int>> m_Written;  // fields of m_Block with a line of their own
};

}  // namespace skydata
