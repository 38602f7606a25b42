// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "tools/strings_table.h"

#include "tools/source_error.h"
#include "tools/strings_check.h"

namespace skydata {
namespace {

// ASCII, so that it stands in any code page.
std::string MakeBanner(const StringsSource& source) {
  return "SPDX-FileCopyrightText: the common_interfaces authors\nSPDX-License-Identifier: MIT\nMade by "
         "skydata, in " +
         NameCodePage(source.page) + ", from the source of the language.\n";
}

std::string TrimBlanks(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(" \r");
  if (begin == std::string::npos) return " ";  // an entry whose text is empty
  return text.substr(begin, text.find_last_not_of(" \r") + 1 - begin);
}

}  // namespace

std::string MakeStringTable(const std::filesystem::path& path) {
  return MakeStringTable(ReadStrings(path, "", StringsEncoding::kUtf8));
}

std::string MakeStringTable(const StringsSource& source) {
  for (const StringsFinding& finding : CheckStrings(source)) {
    if (finding.isError) throw SourceError(finding.file, finding.line, finding.text);
  }
  std::string table = MakeBanner(source);
  for (const StringsEntry& entry : source.entries) {
    std::string text;
    Utf8ToCodePage(source.page, TrimBlanks(entry.written), &text, nullptr);  // checked above
    table += NameIdentifier(entry.identifier) + "\t" + text + "\n";
  }
  return table;
}

}  // namespace skydata
