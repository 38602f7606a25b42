// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/field_parser.h"

#include "skydata/files/source_error.h"
#include "skydata/settings/text/values.h"
#include "utils/text.h"

namespace skydata {
namespace {

using CommonInterfaces::FieldElementWidth;

constexpr std::size_t kMaxElements = 65535;
constexpr std::size_t kMaxValueBytes = 65535;
constexpr char kBlanks[] = " \t";

class FieldParser {
 public:
  FieldParser(const TextPlace& place, std::string_view line) : m_Line(line) { m_Field.place = place; }

  FieldText Parse() {
    const auto equals = m_Line.find('=');
    if (equals == std::string_view::npos) Fail("wants 'name = type values'");
    ParseName(TrimBlanks(m_Line.substr(0, equals)));
    const std::string_view rest = m_Line.substr(equals + 1);
    const auto bar = rest.find('|');
    ParseTypeAndValues(TrimBlanks(rest.substr(0, bar)));
    if (bar != std::string_view::npos) ParseAttributes(rest.substr(bar + 1));
    if (m_Field.values.size() > kMaxValueBytes) Fail("has more than 65535 bytes of values");
    return std::move(m_Field);
  }

 private:
  [[noreturn]] void Fail(const std::string& message) const {
    const std::string name = m_Field.name.empty() ? "" : "field " + m_Field.name + ": ";
    throw SourceError(m_Field.place.file, m_Field.place.line, name + message);
  }

  void ParseName(std::string_view name) {
    if (name.empty()) Fail("the field has no name; the empty name is written @0");
    m_Field.name = name;
    m_Field.nameId = GetUniqueID(m_Field.name.c_str());
    if (name[0] != '@') return;
    const auto id = ParseUnsigned("0x" + std::string(name.substr(1)), 0xFFFFFFFFu);
    if (!id) Fail("'@' wants the name id in hexadecimal");
    m_Field.nameId = static_cast<int>(*id);
  }

  void ParseTypeAndValues(std::string_view text) {
    const auto typeEnd = std::min(text.find_first_of(kBlanks), text.size());
    const auto type = ParseType(text.substr(0, typeEnd));
    if (!type) Fail("'" + std::string(text.substr(0, typeEnd)) + "' is no element type");
    m_Field.type = *type;
    const std::string_view values = TrimBlanks(text.substr(typeEnd));
    if (!values.empty()) ParseValues(values);
  }

  void ParseValues(std::string_view values) {
    if (FieldElementWidth(m_Field.type) == 0) Fail("an unknown element type has no values");
    std::size_t count = 0;
    for (std::size_t begin = 0; begin <= values.size(); ++count) {
      const auto end = std::min(values.find(',', begin), values.size());
      const std::string_view value = TrimBlanks(values.substr(begin, end - begin));
      if (!AppendValue(m_Field.type, value, m_Field.values)) {
        Fail("'" + std::string(value) + "' is no value of its type");
      }
      begin = end + 1;
    }
    if (count > kMaxElements) Fail("has more than 65535 values");
    m_Field.size = static_cast<unsigned short>(count);
  }

  void ParseAttributes(std::string_view text) {
    for (text = TrimBlanks(text); !text.empty();) {
      const auto end = std::min(text.find_first_of(kBlanks), text.size());
      ParseAttribute(text.substr(0, end));
      text = TrimBlanks(text.substr(end));
    }
  }

  void ParseAttribute(std::string_view attribute) {
    const auto equals = attribute.find('=');
    const std::string_view key = attribute.substr(0, equals);
    const std::string_view value = equals == std::string_view::npos ? "" : attribute.substr(equals + 1);
    bool isGood = false;
    if (key == "condition") {
      isGood = Store(ParseWord(value), m_Field.condition);
    } else if (key == "compare") {
      isGood = Store(ParseUnsigned(value, 255), m_Field.compareStatus);
    } else if (key == "query") {
      isGood = Store(ParseWord(value), m_Field.querySection);
    } else if (key == "size") {
      isGood = Store(ParseUnsigned(value, 65535), m_Field.size);
    } else if (key == "tail") {
      isGood = AppendHexBytes(value, m_Field.values);
    } else if (attribute == "again") {
      isGood = m_Field.isAgain = true;
    }
    if (!isGood) Fail("'" + std::string(attribute) + "' is no attribute of a field");
  }

  template <class T>
  static bool Store(std::optional<unsigned> value, T& to) {
    if (value) to = static_cast<T>(*value);
    return value.has_value();
  }

  std::string_view m_Line;
  FieldText m_Field;
};

}  // namespace

FieldText ParseField(const TextPlace& place, std::string_view line) {
  return FieldParser(place, line).Parse();
}

}  // namespace skydata
