// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/dump.h"

#include <ostream>
#include <set>
#include <utility>

#include "skydata/settings/text/format.h"

namespace skydata {
namespace {

constexpr char kComment[] = "# ";

class BlockWriter {
 public:
  BlockWriter(const FileBlock& block, std::ostream& text) : m_Block(block), m_Text(text) {}

  void Write(bool isAgain) {
    std::string heading = FormatBlockHeading(m_Block.owner, m_Block.id);
    if (isAgain) heading.insert(heading.size() - 1, " again");
    m_Text << '\n' << heading << '\n';
    std::vector<std::vector<const FileField*>> fields(m_Block.sections.size());
    std::vector<const FileField*> outside;
    for (const FileField& field : m_Block.fields) Of(field, fields, outside).push_back(&field);
    for (std::size_t i = 0; i < fields.size(); ++i) WriteSection(m_Block.sections[i], fields[i]);
    for (const FileField* field : outside)
      m_Text << kComment << "outside its section: " << FormatWord(field->section) << '.'
             << FormatField(field->text) << '\n';
  }

 private:
  // Where the field goes: to its section, or behind all of them.
  std::vector<const FileField*>& Of(const FileField& field,
                                    std::vector<std::vector<const FileField*>>& fields,
                                    std::vector<const FileField*>& outside) const {
    if (field.run < 0) return outside;
    const auto run = static_cast<std::size_t>(field.run);
    return m_Block.sections[run].text.id == field.section ? fields[run] : outside;
  }

  void WriteSection(const FileSection& section, const std::vector<const FileField*>& fields) {
    const char* const comment = m_Sections.insert(section.text.id).second ? "" : kComment;
    m_Text << comment << FormatSectionHeading(section.text) << '\n';
    std::set<int> names;
    for (const FileField* field : fields) {
      FieldText text = field->text;
      text.isAgain = !names.insert(text.nameId).second;
      m_Text << comment << FormatField(text) << '\n';
    }
  }

  const FileBlock& m_Block;
  std::ostream& m_Text;
  std::set<unsigned> m_Sections;  // written so far
};

}  // namespace

void WriteSettingsText(const SettingsFile& file, std::ostream& text) {
  text << "header " << (file.hasHeader ? std::to_string(file.version) : "none") << '\n';
  std::set<std::pair<unsigned, unsigned>> keys;
  for (const FileBlock& block : file.blocks)
    BlockWriter(block, text).Write(!keys.insert({block.owner, block.id}).second);
}

}  // namespace skydata
