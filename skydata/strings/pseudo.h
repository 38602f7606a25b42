// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "skydata/strings/source.h"

namespace skydata {

// The table as a language that nobody speaks, in UTF-8: letters carry accents, each text stands in brackets
// and is a third longer. What still shows plain letters was never taken from the table, what lacks its
// bracket was cut. Comments, identifiers, notes, formats, escapes and the texts that are data (date patterns,
// tables of transliteration, data of meteor showers) stay; a text that would outgrow its room is lengthened
// less, or not put in brackets at all. The result passes CheckStrings when the table does.
std::string MakePseudoLanguage(const StringsSource& source);

}  // namespace skydata
