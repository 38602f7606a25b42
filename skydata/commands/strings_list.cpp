// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/strings/list.h"

namespace skydata {

Action DeclareStringsList(CLI::App& command) {
  const auto isMarkdown = std::make_shared<bool>(false);
  command.add_flag("--markdown", *isMarkdown, "as a table of Markdown");
  return [isMarkdown](std::ostream& output, std::ostream&) {
    output << (*isMarkdown ? ListTextsAsMarkdown() : ListTexts());
    return kDone;
  };
}

}  // namespace skydata
