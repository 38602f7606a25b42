// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The pieces of a settings text written from what a file holds: values.h and field_parser.h read
// them back to the same bytes, whatever these are. Form: docs/formats/settings_text.md.
#pragma once

#include <string>

#include "skydata/settings/text/document.h"

namespace skydata {

// Whether the four characters of the word, first on top, are a letter and then letters, digits and
// underscores.
bool IsPlainCode(unsigned word);

// A 32-bit word: "none", "defaults", a plain four-character code, else a number, hexadecimal from 1000 on.
std::string FormatWord(unsigned word);

// The value of a known type whose bytes stand at `bytes`. Real numbers are the shortest digits that give the
// same bits back, degrees where these are shorter still and exact, and bits where there are no digits
// (infinite, not a number).
std::string FormatValue(unsigned char type, const char* bytes);

// "@" and the name id in hexadecimal.
std::string FormatNameId(int nameId);

// How many of the values that the header counts stand in the record; 0 for an unknown type.
std::size_t CountValues(const FieldText& field);

// Type, values and attributes, everything of the line behind "name = ".
std::string FormatFieldContent(const FieldText& field);

// The line of a field. A name that cannot stand in a text is replaced by its id.
std::string FormatField(const FieldText& field);

// The headings of a block and of a section, without what the section holds.
std::string FormatBlockHeading(unsigned owner, unsigned id);
std::string FormatSectionHeading(const SectionText& section);

}  // namespace skydata
