// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/strings/list.h"

namespace skydata {

Action DeclareStringsList(ArgumentList& command) {
  const auto isMarkdown = std::make_shared<bool>(false);
  command.TakeFlag("--markdown", *isMarkdown, "as a table of Markdown");
  return [isMarkdown](std::ostream& output, std::ostream&) {
    output << (*isMarkdown ? ListTextsAsMarkdown() : ListTexts());
    return kDone;
  };
}

}  // namespace skydata
