// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <map>
#include <memory>
#include <ostream>

#include "skydata/command_line.h"
#include "skydata/commands/command.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/strings/check.h"
#include "skydata/strings/list.h"
#include "skydata/strings/pseudo.h"
#include "skydata/strings/show.h"

namespace skydata {
namespace {

const std::map<std::string, StringsEncoding> kEncodings = {{"utf-8", StringsEncoding::kUtf8},
                                                           {"code-page", StringsEncoding::kCodePage}};

struct StringsArguments {
  std::vector<std::string> files;
  std::string language, data, out;
  StringsEncoding encoding = StringsEncoding::kDetect;
  bool isJson = false, isMarkdown = false;
};
using Arguments = std::shared_ptr<StringsArguments>;

void Append(const StringsFindings& more, StringsFindings& findings) {
  findings.insert(findings.end(), more.begin(), more.end());
}

int Check(const StringsArguments& arguments, std::ostream& output) {
  std::vector<StringsSource> sources;
  StringsFindings findings;
  for (const std::string& file : arguments.files) {
    try {
      sources.push_back(ReadStrings(file, arguments.language, arguments.encoding));
      Append(CheckStrings(sources.back()), findings);
    } catch (const SourceError&) {
      findings.push_back({file, 0, "unreadable", true, "the file is missing or cannot be read"});
    }
  }
  Append(CompareStrings(sources), findings);
  SortFindings(findings);
  output << (arguments.isJson ? FormatFindingsAsJson(findings) : FormatFindings(findings));
  return findings.empty() ? kDone : kBadData;
}

int Show(const StringsArguments& arguments, std::ostream& output) {
  if (arguments.files.empty()) {
    output << ShowLanguage(arguments.data.empty() ? FindDataRoot() : std::filesystem::path(arguments.data),
                           arguments.language);
  } else {
    output << ShowFile(arguments.files.front(), arguments.language);
  }
  return kDone;
}

int Pseudo(const StringsArguments& arguments, std::ostream& output) {
  const std::string table =
      MakePseudoLanguage(ReadStrings(arguments.files.front(), arguments.language, arguments.encoding));
  if (arguments.out.empty()) {
    output << table;
  } else {
    ReplaceFile(arguments.out, table);
  }
  return kDone;
}

int List(const StringsArguments& arguments, std::ostream& output) {
  output << (arguments.isMarkdown ? ListTextsAsMarkdown() : ListTexts());
  return kDone;
}

// A command below `strings`; its arguments are added to what is returned.
CLI::App& AddCommand(CLI::App& strings, const char* name, const char* help, const Arguments& arguments,
                     int (*run)(const StringsArguments&, std::ostream&), Action& action) {
  CLI::App* command = strings.add_subcommand(name, help);
  command->callback([arguments, run, &action] {
    action = [arguments, run](std::ostream& output, std::ostream&) { return run(*arguments, output); };
  });
  return *command;
}

CLI::Option* AddLanguage(CLI::App& command, const Arguments& arguments) {
  return command
      .add_option("--language", arguments->language,
                  "language of the texts; else the name of the file's folder")
      ->type_name("NAME");
}

void AddEncoding(CLI::App& command, const Arguments& arguments) {
  command
      .add_option(
          "--encoding", arguments->encoding,
          "encoding of the files; else UTF-8 where they are valid UTF-8, else the language's code page")
      ->transform(CLI::CheckedTransformer(kEncodings, CLI::ignore_case))
      ->type_name("utf-8|code-page");
}

void DeclareCheck(CLI::App& strings, const Arguments& arguments, Action& action) {
  CLI::App& check =
      AddCommand(strings, "check", "say what is wrong with string tables", arguments, Check, action);
  check.add_option("FILE", arguments->files, "string tables; several are compared with each other")
      ->required();
  check.add_flag("--json", arguments->isJson, "one JSON array in place of lines");
  AddLanguage(check, arguments);
  AddEncoding(check, arguments);
}

void DeclareShow(CLI::App& strings, const Arguments& arguments, Action& action) {
  CLI::App& show = AddCommand(strings, "show", "show every text as users see it, with sample values",
                              arguments, Show, action);
  CLI::Option* file = show.add_option("FILE", arguments->files, "string table in place of the data root's");
  file->expected(0, 1);
  CLI::Option* language = AddLanguage(show, arguments);
  show.add_option("--data", arguments->data, "data root; else the one beside this program")
      ->type_name("ROOT")
      ->excludes(file)
      ->needs(language);
  show.require_option(1, 0);  // a file or a language
}

void DeclarePseudo(CLI::App& strings, const Arguments& arguments, Action& action) {
  CLI::App& pseudo = AddCommand(
      strings, "pseudo", "write a language that nobody speaks: it shows what is not translated or is cut",
      arguments, Pseudo, action);
  pseudo.add_option("FILE", arguments->files, "string table to disguise")->required()->expected(1);
  pseudo.add_option("--out", arguments->out, "file to write in place of the standard output")
      ->type_name("OUT");
  AddLanguage(pseudo, arguments);
  AddEncoding(pseudo, arguments);
}

}  // namespace

void DeclareStrings(CLI::App& app, Action& action) {
  const auto arguments = std::make_shared<StringsArguments>();
  CLI::App& strings = *app.add_subcommand("strings", "check, show and disguise string tables");
  strings.require_subcommand(1);
  DeclareCheck(strings, arguments, action);
  DeclareShow(strings, arguments, action);
  DeclarePseudo(strings, arguments, action);
  AddCommand(strings, "list", "list the texts that the library uses", arguments, List, action)
      .add_flag("--markdown", arguments->isMarkdown, "as a table of Markdown");
}

}  // namespace skydata
