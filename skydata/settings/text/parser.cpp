// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/parser.h"

#include <algorithm>

#include "skydata/files/text_lines.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/text/document_builder.h"
#include "skydata/settings/text/field_parser.h"
#include "skydata/settings/text/values.h"

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

// Takes a text and the files that it includes apart, line by line.
class SettingsParser {
 public:
  explicit SettingsParser(const std::filesystem::path& path) : m_Builder(path.string()) {}

  SettingsDocument Parse(const std::string& text, const std::filesystem::path& path) {
    ParseText(text, path, 1);
    return m_Builder.Finish();
  }

 private:
  void ParseText(const std::string& bytes, const std::filesystem::path& path, int depth) {
    for (const TextLine& line : SplitTrimmedLines(bytes)) {
      m_Builder.SetPlace({path.string(), line.number});
      const std::string_view text = WithoutComment(line.text);
      if (!text.empty()) ParseLine(path, text, depth);
    }
  }

  void ParseLine(const std::filesystem::path& path, std::string_view text, int depth) {
    if (text.front() == '[') {
      if (text.back() != ']') m_Builder.Fail("a heading ends in ']'");
      m_Builder.OpenHeading(SplitWords(text.substr(1, text.size() - 2)));
    } else if (text.find('=') != std::string_view::npos) {
      m_Builder.AddField(ParseField(m_Builder.GetPlace(), text));
    } else {
      ParseDirective(path, text, depth);
    }
  }

  void ParseDirective(const std::filesystem::path& path, std::string_view text, int depth) {
    const auto end = std::min(text.find_first_of(kBlanks), text.size());
    const std::string_view word = text.substr(0, end), argument = TrimBlanks(text.substr(end));
    if (word == "header") {
      m_Builder.SetHeader(argument);
    } else if (word == "include" && !argument.empty()) {
      Include(path.parent_path() / std::filesystem::path(argument), depth);
    } else {
      m_Builder.Fail("'" + std::string(text) + "' is no heading, no field, no 'header' and no 'include'");
    }
  }

  void Include(const std::filesystem::path& path, int depth) {
    if (depth >= kMaxIncludeDepth) m_Builder.Fail("files are included more than 8 deep");
    if (!std::filesystem::is_regular_file(path))
      m_Builder.Fail("'" + path.string() + "' cannot be included: no such file");
    ParseText(ReadFile(path), path, depth + 1);
    m_Builder.Close();
  }

  DocumentBuilder m_Builder;
};

}  // namespace

SettingsDocument ParseSettings(const std::filesystem::path& path) {
  return ParseSettingsText(ReadFile(path), path);
}

SettingsDocument ParseSettingsText(const std::string& text, const std::filesystem::path& name) {
  return SettingsParser(name).Parse(text, name);
}

}  // namespace skydata
