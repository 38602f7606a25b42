// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/source.h"

#include <algorithm>
#include <optional>

#include "skydata/files/text_lines.h"
#include "skydata/files/whole_file.h"
#include "utils/text.h"
#include "utils/utf8.h"

namespace skydata {
namespace {

constexpr char kReplacement[] = "\xEF\xBF\xBD";  // U+FFFD in UTF-8

// The text with U+FFFD in place of every byte that belongs to no character.
StringsLine ReadUtf8Line(const std::string& bytes) {
  StringsLine line;
  for (int at = 0, length = 1; at < static_cast<int>(bytes.size()); at += length) {
    if (DecodeUtf8(bytes, at, &length) >= 0) {
      line.text.append(bytes, static_cast<std::size_t>(at), static_cast<std::size_t>(length));
      continue;
    }
    if (line.badByte < 0) line.badByte = at;
    line.text += kReplacement;
  }
  return line;
}

StringsLine ReadCodePageLine(CodePage page, const std::string& bytes) {
  StringsLine line;
  for (const char c : bytes) {
    const std::string character = CodePageToUtf8(page, std::string(1, c));
    if (line.badByte < 0 && character == kReplacement) line.badByte = CountCharacters(line.text);
    line.text += character;
  }
  return line;
}

// As scanf's "%u" reads it: white space, a sign, digits, modulo 2^32.
std::optional<unsigned> ScanNumber(const std::string& field) {
  std::size_t at = std::min(field.find_first_not_of(" \n\v\f\r"), field.size());
  const bool isNegative = at < field.size() && field[at] == '-';
  if (isNegative || (at < field.size() && field[at] == '+')) ++at;
  const std::size_t end = std::min(field.find_first_not_of("0123456789", at), field.size());
  if (end == at) return std::nullopt;
  unsigned number = 0;
  for (; at < end; ++at) number = number * 10 + static_cast<unsigned>(field[at] - '0');
  return isNegative ? 0 - number : number;
}

std::optional<unsigned> FindIdentifier(CodePage page, const std::string& field) {
  if (const auto number = ScanNumber(field)) return number;
  std::string bytes;  // what the code page lacks is reported elsewhere: here it counts as UTF-8
  if (!Utf8ToCodePage(page, field, &bytes, nullptr)) bytes = field;
  if (bytes.size() < 4) return std::nullopt;
  unsigned code = 0;
  for (int i = 0; i < 4; ++i)
    code = code << 8 | static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]);
  return code;
}

std::string ResolveText(std::string text) {
  DeleteBorderSpace(text.data());
  text.resize(std::char_traits<char>::length(text.c_str()));
  text.resize(static_cast<std::size_t>(ParseString2(text.c_str(), text.data())));
  return text;
}

void AddEntry(const StringsLine& line, StringsSource& source) {
  const std::string text = line.text.substr(0, line.text.find('\0'));
  if (text.find('\t') == std::string::npos) return;
  const std::size_t field = std::min(text.find_first_not_of('\t'), text.size());
  const std::size_t fieldEnd = std::min(text.find('\t', field), text.size());
  const std::size_t begin = text.find_first_not_of('\t', fieldEnd);
  const auto identifier = FindIdentifier(source.page, text.substr(field, fieldEnd - field));
  if (begin == std::string::npos || !identifier) {
    source.strayTabs.push_back(line.number);
    return;
  }
  const std::string written = text.substr(begin, text.find('\t', begin) - begin);
  source.entries.push_back(
      {line.number, *identifier, written, ResolveText(written), static_cast<int>(begin)});
}

}  // namespace

StringsSource ReadStrings(const std::filesystem::path& path, const std::string& language,
                          StringsEncoding encoding) {
  StringsSource source;
  source.path = path.string();
  source.language = language.empty() ? path.parent_path().filename().string() : language;
  source.page = GetCodePageOf(source.language.c_str());
  const std::string bytes = ReadFile(path);
  source.isUtf8 =
      encoding == StringsEncoding::kUtf8 || (encoding == StringsEncoding::kDetect && FindBadUtf8(bytes) < 0);
  for (TextLine& read : SplitAtLineFeeds(bytes)) {
    if (read.text.ends_with('\r')) read.text.pop_back();
    StringsLine line = source.isUtf8 ? ReadUtf8Line(read.text) : ReadCodePageLine(source.page, read.text);
    line.number = read.number;
    line.hasZero = read.text.find('\0') != std::string::npos;
    source.lines.push_back(std::move(line));
    AddEntry(source.lines.back(), source);
  }
  return source;
}

std::string NameCodePage(CodePage page) { return "windows-" + std::to_string(static_cast<int>(page)); }

}  // namespace skydata
