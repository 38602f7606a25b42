// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The smallest pieces of a settings text: words, element types, values. Form: docs/formats/settings_text.md.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace skydata {

std::string_view TrimBlanks(std::string_view text);

// A whole number, decimal or hexadecimal after "0x", from 0 to `highest`.
std::optional<unsigned> ParseUnsigned(std::string_view text, unsigned highest);

// A 32-bit word: a number, "none" (0xFFFFFFFF), "defaults" (the tag of a block of defaults), "bytes:ABCD"
// (the four bytes as they stand in the file) or a four-character code such as "star", first character on top.
std::optional<unsigned> ParseWord(std::string_view text);

// The code of an element type: i8 u8 i16 u16 i32 u32 f32 f64 byte, or "type" and a number up to 255.
std::optional<unsigned char> ParseType(std::string_view text);

// The name that ParseType takes for the code, "type" and the number for one that is no element type.
std::string FormatType(unsigned char type);

// Appends the bytes of one value, little-endian. False when the text is no value of that type.
bool AppendValue(unsigned char type, std::string_view text, std::string& bytes);

// Appends bytes written as pairs of hexadecimal digits.
bool AppendHexBytes(std::string_view text, std::string& bytes);

}  // namespace skydata
