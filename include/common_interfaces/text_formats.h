// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The texts that this library takes from the string table, and the one way to use such a text as a format. A
// translation is data, not trusted code: its conversions are compared with the arguments that it will get
// before anything is formatted with it.
#pragma once

#include <initializer_list>
#include <string>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

// What a user of the library does with the texts `first` to `last` (inclusive) of the string table.
struct TextUse {
  unsigned first;
  unsigned last;
  // The arguments of a format, in order: 'd' int, 'f' double, 's' text, 'c' one character; "" for a format
  // without arguments. Null: the text is not a format, percent signs in it stand for themselves.
  const char* arguments;
  int maxLength;    // bytes that the users of the text have room for, its conversions not yet replaced
  bool isRequired;  // false: users do without the text
  const char* use;  // in words, for example "caption of local time"
};

// Every text that the library uses, ascending by identifier, no identifier twice. This table is the single
// source: the functions of the library, `skydata strings` and the page of the string table follow it. Static
// data; any thread.
COMMON_INTERFACES_API const TextUse* GetTextUses(int* count);
// The row of an identifier; null for one that the library does not use.
COMMON_INTERFACES_API const TextUse* FindTextUse(unsigned identifier);

// What keeps `format` from being used with those arguments (written as in TextUse), as a piece of a sentence
// such as "conversion 2, %s, gets an int"; "" when it fits. A format may leave out arguments at the end.
// Allowed are flags, width and precision of at most three digits, and the conversions d i u x X o with or
// without hh, h or l (int: cut to 8 or 16 bits, or whole), e E f F g G a A with or without l (double), s
// (text), c (character) and %%; * and %n never fit. Any thread.
COMMON_INTERFACES_API std::string FindFormatFault(const char* format, const char* arguments);

// One argument of a localized format.
struct FormatArgument {
  FormatArgument(int value) : type('d'), number(value) {}
  FormatArgument(double value) : type('f'), real(value) {}
  FormatArgument(char value) : type('c'), number(static_cast<unsigned char>(value)) {}
  FormatArgument(const char* value) : type('s'), text(value) {}  // null is ""; must outlive the call

  char type;  // as in TextUse
  int number = 0;
  double real = 0.0;
  const char* text = "";
};

// The text of the string table, formatted with the arguments: the one way in which texts of the table become
// formats. "" when the table has no such text (reported by QX4Strings) and, with one line that names the
// identifier and the fault, when the text does not fit. For the thread that uses the string table.
COMMON_INTERFACES_API std::string FormatLocalizedText(unsigned identifier,
                                                      std::initializer_list<FormatArgument> arguments);

}  // namespace CommonInterfaces
