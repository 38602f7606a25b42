// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Kinds of characters, the same in every locale; a byte above 127 is of none. Any thread.
#pragma once

#include <string_view>

// Space, tab, line feed, carriage return: what stands around the fields of a line.
constexpr bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// The blanks, vertical tab and form feed: what the C library skips in front of a number.
constexpr bool IsWhiteSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// 0 to 9.
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// A to Z and a to z.
constexpr bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// Removes blanks, or white space, from the front.
constexpr void SkipBlanks(std::string_view& text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
}
constexpr void SkipWhiteSpace(std::string_view& text) {
  while (!text.empty() && IsWhiteSpace(text.front())) text.remove_prefix(1);
}
