// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace skydata {

// Every text that the library uses (CommonInterfaces::GetTextUses), one line each, with tabs between:
// identifiers, arguments, room in bytes, "required" or "optional", use.
std::string ListTexts();

// The same as the table of docs/formats/strings.md.
std::string ListTextsAsMarkdown();

}  // namespace skydata
