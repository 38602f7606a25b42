// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/files/source_error.h"
#include "skydata/settings/convert.h"

namespace skydata {
namespace {

struct Arguments {
  std::string file, out, from;
  bool isInPlace = false;
};

// What a link leads to is replaced, not the link.
std::filesystem::path FollowLinks(const std::filesystem::path& path) {
  std::error_code missing;
  const std::filesystem::path target = std::filesystem::canonical(path, missing);
  return missing ? path : target;
}

int Convert(const Arguments& arguments, std::ostream& output) {
  ConvertRequest request;
  request.file = arguments.file;
  request.out = arguments.isInPlace ? FollowLinks(arguments.file) : std::filesystem::path(arguments.out);
  if (!arguments.from.empty()) request.undecided = RecordLayout::kOld;
  if (!arguments.isInPlace && std::filesystem::exists(request.out))
    throw SourceError(arguments.out, 0, "exists already (--in-place replaces the file itself)");
  const int count = ConvertSettings(request);
  output << request.out.string() << ": " << count << " fields converted\n";
  return kDone;
}

}  // namespace

Action DeclareSettingsConvert(CLI::App& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.add_option("FILE", arguments->file, "settings file")->required();
  CLI::Option_group* const target = command.add_option_group("target");
  target->add_option("--out", arguments->out, "file to make, which must not exist")->type_name("NEW");
  target->add_flag("--in-place", arguments->isInPlace, "put the new file in the place of the old one");
  target->require_option(1);
  command.add_option("--from", arguments->from, "'old': so are blocks that fit neither layout")
      ->check(CLI::IsMember({"old"}));
  return [arguments](std::ostream& output, std::ostream&) { return Convert(*arguments, output); };
}

}  // namespace skydata
