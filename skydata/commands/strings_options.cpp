// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/commands/strings_options.h"

#include <CLI/CLI.hpp>
#include <map>

namespace skydata {

CLI::Option* AddLanguageOption(CLI::App& command, std::string& language) {
  return command
      .add_option("--language", language, "language of the texts; else the name of the file's folder")
      ->type_name("NAME");
}

void AddEncodingOption(CLI::App& command, StringsEncoding& encoding) {
  static const std::map<std::string, StringsEncoding> kEncodings = {
      {"utf-8", StringsEncoding::kUtf8}, {"code-page", StringsEncoding::kCodePage}};
  command
      .add_option(
          "--encoding", encoding,
          "encoding of the files; else UTF-8 where they are valid UTF-8, else the language's code page")
      ->transform(CLI::CheckedTransformer(kEncodings, CLI::ignore_case))
      ->type_name("utf-8|code-page");
}

}  // namespace skydata
