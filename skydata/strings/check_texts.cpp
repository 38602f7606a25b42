// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstring>

#include "common_interfaces/text_formats.h"
#include "skydata/files/object_names.h"
#include "skydata/files/text_lines.h"
#include "skydata/strings/rules.h"
#include "utils/utf8.h"

namespace skydata {
namespace {

using CommonInterfaces::FindTextUse;
using CommonInterfaces::TextUse;

std::string NameCharacter(const std::string& utf8, int at) {
  int length = 1;
  const int character = DecodeUtf8(utf8, at, &length);
  char code[16];
  std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(character));
  return std::string(code) + " '" +
         utf8.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(length)) + "'";
}

void CheckCodePage(const StringsEntry& entry, StringsReport& report) {
  const StringsSource& source = report.GetSource();
  const StringsLine& line = source.lines[static_cast<std::size_t>(entry.line - 1)];
  int badByte = 0;
  if (line.badByte >= 0 || Utf8ToCodePage(source.page, entry.written, nullptr, &badByte)) return;
  report.AddError(entry.line, "code-page",
                  NameCharacter(entry.written, badByte) + " is not in " + NameCodePage(source.page) +
                      ", the code page of the language");
}

void CheckEscapes(const StringsEntry& entry, StringsReport& report) {
  const std::string& text = entry.written;
  for (auto at = text.find('\\'); at != std::string::npos; at = text.find('\\', at + 1)) {
    const char next = at + 1 < text.size() ? text[at + 1] : '\0';
    if (next != '\0' && std::strchr("nt\\\"", next)) {
      ++at;
      continue;
    }
    report.AddWarning(entry.line, "escape",
                      "a backslash stands for itself unless n, t, \\ or \" follows: write it twice");
    return;
  }
}

void CheckBlanks(const StringsEntry& entry, StringsReport& report) {
  if (entry.written.front() == ' ' || entry.written.back() == ' ') {
    report.AddWarning(entry.line, "blanks",
                      "the blanks at the ends of the text are lost; a no-break blank (U+00A0) stays");
  }
}

void CheckUse(const StringsEntry& entry, const TextUse& use, StringsReport& report) {
  const std::string name = NameIdentifier(entry.identifier);
  if (use.isRequired && entry.text.empty()) report.AddError(entry.line, "empty", name + " has no text");
  const int length = CountCharacters(entry.text);
  if (length > use.maxLength) {
    report.AddError(entry.line, "too-long",
                    name + " has " + std::to_string(length) + " bytes, there is room for " +
                        std::to_string(use.maxLength));
  }
  if (!use.arguments) return;
  const std::string fault = FindFault(report.GetSource(), entry, use.arguments);
  if (!fault.empty()) report.AddError(entry.line, "format", name + ": " + fault);
}

}  // namespace

std::string FindFault(const StringsSource& source, const StringsEntry& entry, const std::string& arguments) {
  std::string bytes;
  if (!Utf8ToCodePage(source.page, entry.text, &bytes, nullptr)) bytes = entry.text;
  return CodePageToUtf8(source.page, CommonInterfaces::FindFormatFault(bytes.c_str(), arguments.c_str()));
}

void CheckTexts(StringsReport& report) {
  for (const StringsEntry& entry : report.GetSource().entries) {
    CheckCodePage(entry, report);
    CheckEscapes(entry, report);
    CheckBlanks(entry, report);
    if (const TextUse* use = FindTextUse(entry.identifier)) CheckUse(entry, *use, report);
  }
}

}  // namespace skydata
