// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/table.h"

#include "skydata/files/source_error.h"
#include "skydata/strings/check.h"
#include "utils/utf8.h"

namespace skydata {
namespace {

// The line in the code page; "?" for a character that the page lacks, which only a comment or a note may
// hold.
std::string EncodeLine(CodePage page, const std::string& utf8) {
  std::string line;
  for (int at = 0, length = 1; at < static_cast<int>(utf8.size()); at += length) {
    DecodeUtf8(utf8, at, &length);
    std::string byte;
    const bool isOnPage = Utf8ToCodePage(
        page, utf8.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(length)), &byte, nullptr);
    line += isOnPage ? byte : "?";
  }
  return line;
}

}  // namespace

std::string MakeStringTable(const std::filesystem::path& path) {
  return MakeStringTable(ReadStrings(path, "", StringsEncoding::kUtf8));
}

std::string MakeStringTable(const StringsSource& source) {
  for (const StringsFinding& finding : CheckStrings(source)) {
    if (finding.isError) throw SourceError(finding.file, finding.line, finding.text);
  }
  std::string table;
  for (const StringsLine& line : source.lines) table += EncodeLine(source.page, line.text) + '\n';
  return table + "Made by skydata, in " + NameCodePage(source.page) + ", from the source of the language.\n";
}

}  // namespace skydata
