// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "skydata/command_line.h"
#include "skydata/commands/command.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/settings/check.h"
#include "skydata/settings/compiler.h"
#include "skydata/settings/convert.h"
#include "skydata/settings/diff.h"
#include "skydata/settings/explain.h"
#include "skydata/settings/parser.h"
#include "skydata/settings/text_writer.h"
#include "skydata/settings/values.h"

namespace skydata {
namespace {

constexpr char kStandardStream[] = "-";

struct SettingsArguments {
  std::string file, other;         // what most commands work on
  std::vector<std::string> files;  // what check works on
  std::string out, defaults, names, field, block, from;
  bool asJson = false, inPlace = false;
};
using Shared = std::shared_ptr<SettingsArguments>;

FieldNames LoadNames(const SettingsArguments& arguments) {
  FieldNames names;
  if (!arguments.names.empty()) names.AddNamesOf(arguments.names);
  return names;
}

std::string ReadInput(const std::string& path) {
  return path == kStandardStream ? std::string{std::istreambuf_iterator<char>(std::cin), {}} : ReadFile(path);
}

int Dump(const SettingsArguments& arguments, std::ostream& output, std::ostream& errors) {
  const FieldNames names = LoadNames(arguments);
  const std::string& path = arguments.file;
  const std::string bytes = ReadInput(path);
  const SettingsFile file = ReadSettingsFile(bytes, names);
  WriteSettingsText(file, output);
  int result = kDone;
  for (const Finding& finding : CheckSettings(bytes, file, names, KindOfFile(path))) {
    if (!KindOf(finding.code).keepsFromText) continue;
    errors << FormatFinding(path, finding) << '\n';
    result = kBadData;
  }
  return result;
}

int BuildSettings(const SettingsArguments& arguments, std::ostream& output) {
  const std::string& path = arguments.file;
  const SettingsDocument document = ParseSettingsText(ReadInput(path), path);
  const std::string bytes = CompileSettings(document, std::filesystem::temp_directory_path());
  if (arguments.out == kStandardStream) {
    output.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  } else {
    ReplaceFile(arguments.out, bytes);
    output << arguments.out << ": " << bytes.size() << " bytes\n";
  }
  return kDone;
}

// A file that cannot be read is a finding like any other.
std::vector<Finding> CheckFile(const std::string& path, const FieldNames& names) {
  try {
    const std::string bytes = ReadInput(path);
    return CheckSettings(bytes, ReadSettingsFile(bytes, names), names, KindOfFile(path));
  } catch (const SourceError&) {
    return {{FindingCode::kUnreadable, 0, "the file is missing or cannot be read"}};
  }
}

int Check(const SettingsArguments& arguments, std::ostream& output) {
  const FieldNames names = LoadNames(arguments);
  int result = kDone;
  std::string json;
  for (const std::string& path : arguments.files) {
    for (const Finding& finding : CheckFile(path, names)) {
      if (KindOf(finding.code).severity != Severity::kInfo) result = kBadData;
      if (arguments.asJson) {
        json += (json.empty() ? "\n  " : ",\n  ") + FormatFindingAsJson(path, finding);
      } else {
        output << FormatFinding(path, finding) << '\n';
      }
    }
  }
  if (arguments.asJson) output << '[' << json << (json.empty() ? "]\n" : "\n]\n");
  return result;
}

// What was read of a damaged file is used; the damage is told and makes the result trouble.
SettingsFile LoadFile(const std::string& path, const FieldNames& names, std::ostream& errors,
                      bool& isDamaged) {
  SettingsFile file = ReadSettingsFile(ReadInput(path), names);
  for (const Finding& finding : file.damage) {
    errors << FormatFinding(path, finding) << '\n';
    isDamaged = true;
  }
  return file;
}

int Diff(const SettingsArguments& arguments, std::ostream& output, std::ostream& errors) {
  try {
    const FieldNames names = LoadNames(arguments);
    bool isDamaged = false;
    const SettingsFile first = LoadFile(arguments.file, names, errors, isDamaged);
    const SettingsFile second = LoadFile(arguments.other, names, errors, isDamaged);
    const bool isDifferent = DiffSettings(first, second, output);
    return isDamaged ? kBadUsage : isDifferent ? kBadData : kDone;
  } catch (const std::exception& error) {
    errors << error.what() << '\n';
    return kBadUsage;
  }
}

int Convert(const SettingsArguments& arguments, std::ostream& output) {
  ConvertRequest request;
  request.file = arguments.file;
  if (!arguments.from.empty()) request.undecided = RecordLayout::kOld;
  if (arguments.inPlace) {
    // What a link leads to is replaced, not the link.
    std::error_code missing;
    request.out = std::filesystem::canonical(request.file, missing);
    if (missing) request.out = request.file;
  } else {
    request.out = arguments.out;
    if (std::filesystem::exists(request.out))
      throw SourceError(arguments.out, 0, "exists already (--in-place replaces the file itself)");
  }
  const int count = ConvertSettings(request);
  output << request.out.string() << ": " << count << " fields converted\n";
  return kDone;
}

// "OWNER,ID"; throws for anything else.
std::pair<unsigned, unsigned> ParseKey(const std::string& text) {
  const auto comma = text.find(',');
  const auto owner = ParseWord(text.substr(0, comma));
  const auto id = comma == std::string::npos ? std::nullopt : ParseWord(text.substr(comma + 1));
  if (!owner || !id) throw CLI::ValidationError("--block", "wants OWNER,ID, for example FLTR,1");
  return {*owner, *id};
}

ExplainRequest MakeRequest(const SettingsArguments& arguments) {
  ExplainRequest request;
  request.fileName = arguments.file;
  request.defaultsName = arguments.defaults.empty() ? arguments.file : arguments.defaults;
  const auto dot = arguments.field.find('.');
  const auto section = ParseWord(arguments.field.substr(0, dot));
  if (dot == std::string::npos || !section || dot + 1 == arguments.field.size())
    throw CLI::ValidationError("FIELD", "wants SECTION.NAME, for example star.Draw");
  request.section = *section;
  request.field = arguments.field.substr(dot + 1);
  if (!arguments.block.empty()) request.key = ParseKey(arguments.block);
  return request;
}

int Explain(const SettingsArguments& arguments, const ExplainRequest& request, std::ostream& output,
            std::ostream& errors) {
  const FieldNames names = LoadNames(arguments);
  bool isDamaged = false;
  const SettingsFile file = LoadFile(request.fileName, names, errors, isDamaged);
  const bool isSame = request.defaultsName == request.fileName;
  const SettingsFile defaults = isSame ? file : LoadFile(request.defaultsName, names, errors, isDamaged);
  const bool isFound = ExplainField(request, file, defaults, names, output, errors);
  return isFound && !isDamaged ? kDone : kBadData;
}

CLI::App* AddCommand(CLI::App& settings, const char* name, const char* what, std::function<void()> choose) {
  CLI::App* const command = settings.add_subcommand(name, what);
  command->callback(std::move(choose));
  return command;
}

void AddFile(CLI::App& command, const char* name, std::string& file) {
  command.add_option(name, file, "settings file; - is standard input")->required();
}

void AddNames(CLI::App& command, SettingsArguments& arguments) {
  command.add_option("--names", arguments.names, "settings text whose field names are known too")
      ->type_name("TEXT");
}

void DeclareDumpAndBuild(CLI::App& settings, const Shared& arguments, Action& action) {
  CLI::App* const dump = AddCommand(settings, "dump", "print a settings file as text", [arguments, &action] {
    action = [arguments](std::ostream& output, std::ostream& errors) {
      return Dump(*arguments, output, errors);
    };
  });
  AddFile(*dump, "FILE", arguments->file);
  AddNames(*dump, *arguments);
  CLI::App* const build =
      AddCommand(settings, "build", "make a settings file of a text", [arguments, &action] {
        action = [arguments](std::ostream& output, std::ostream&) {
          return BuildSettings(*arguments, output);
        };
      });
  build->add_option("TEXT", arguments->file, "settings text; - is standard input")->required();
  build->add_option("OUT", arguments->out, "file to make or to replace; - is standard output")->required();
}

void DeclareCheckAndDiff(CLI::App& settings, const Shared& arguments, Action& action) {
  CLI::App* const check =
      AddCommand(settings, "check", "say what is wrong with settings files", [arguments, &action] {
        action = [arguments](std::ostream& output, std::ostream&) { return Check(*arguments, output); };
      });
  check->add_option("FILES", arguments->files, "settings files; - is standard input")->required();
  AddNames(*check, *arguments);
  check->add_flag("--json", arguments->asJson, "an array of objects: file, offset, code, severity, text");
  CLI::App* const diff = AddCommand(settings, "diff", "compare two settings files", [arguments, &action] {
    action = [arguments](std::ostream& output, std::ostream& errors) {
      return Diff(*arguments, output, errors);
    };
  });
  AddFile(*diff, "A", arguments->file);
  AddFile(*diff, "B", arguments->other);
  AddNames(*diff, *arguments);
}

void DeclareConvert(CLI::App& settings, const Shared& arguments, Action& action) {
  CLI::App* const convert = AddCommand(
      settings, "convert", "bring a file of an earlier version to the current layout", [arguments, &action] {
        action = [arguments](std::ostream& output, std::ostream&) { return Convert(*arguments, output); };
      });
  convert->add_option("FILE", arguments->file, "settings file")->required();
  CLI::Option_group* const target = convert->add_option_group("target");
  target->add_option("--out", arguments->out, "file to make, which must not exist")->type_name("NEW");
  target->add_flag("--in-place", arguments->inPlace, "put the new file in the place of the old one");
  target->require_option(1);
  convert->add_option("--from", arguments->from, "'old': so are blocks that fit neither layout")
      ->check(CLI::IsMember({"old"}));
}

void DeclareExplain(CLI::App& settings, const Shared& arguments, Action& action) {
  CLI::App* const explain =
      AddCommand(settings, "explain", "say where the value of a field comes from", [arguments, &action] {
        const ExplainRequest request = MakeRequest(*arguments);
        action = [arguments, request](std::ostream& output, std::ostream& errors) {
          return Explain(*arguments, request, output, errors);
        };
      });
  AddFile(*explain, "FILE", arguments->file);
  explain->add_option("FIELD", arguments->field, "SECTION.NAME, for example star.Draw")->required();
  explain->add_option("--block", arguments->block, "the container, where several have the field")
      ->type_name("OWNER,ID");
  explain->add_option("--defaults", arguments->defaults, "file with the defaults, unless it is FILE")
      ->type_name("FILE");
  AddNames(*explain, *arguments);
}

}  // namespace

void DeclareSettings(CLI::App& app, Action& action) {
  const auto arguments = std::make_shared<SettingsArguments>();
  CLI::App* const settings = app.add_subcommand("settings", "look into settings files");
  settings->require_subcommand(1);
  DeclareDumpAndBuild(*settings, arguments, action);
  DeclareCheckAndDiff(*settings, arguments, action);
  DeclareConvert(*settings, arguments, action);
  DeclareExplain(*settings, arguments, action);
}

}  // namespace skydata
