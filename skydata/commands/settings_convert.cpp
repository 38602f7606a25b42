// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
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

Action DeclareSettingsConvert(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.Take("FILE", arguments->file, "settings file").Require();
  ArgumentList target = command.Group("target");
  target.Take("--out", arguments->out, "file to make, which must not exist").Form("NEW");
  target.TakeFlag("--in-place", arguments->isInPlace, "put the new file in the place of the old one");
  target.RequireOne();
  command.Take("--from", arguments->from, "'old': so are blocks that fit neither layout").OneOf({"old"});
  return [arguments](std::ostream& output, std::ostream&) { return Convert(*arguments, output); };
}

}  // namespace skydata
