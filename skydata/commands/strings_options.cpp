// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/commands/strings_options.h"

namespace skydata {

Argument AddLanguageOption(ArgumentList& command, std::string& language) {
  return command.Take("--language", language, "language of the texts; else the name of the file's folder")
      .Form("NAME");
}

void AddEncodingOption(ArgumentList& command, StringsEncoding& encoding) {
  command
      .TakeWord(
          "--encoding", {"utf-8", "code-page"},
          [&encoding](const std::string& word) {
            encoding = word == "utf-8" ? StringsEncoding::kUtf8 : StringsEncoding::kCodePage;
          },
          "encoding of the files; else UTF-8 where they are valid UTF-8, else the language's code page")
      .Form("utf-8|code-page");
}

}  // namespace skydata
