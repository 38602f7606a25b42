// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Takes the fields off a line of a catalog or a description file, one after the other, by moving a cursor
// along the line; and writes angles, typed values and plain Latin forms of names. Deliberately global:
// readers are written against these names. Grammar of the fields, worked examples and damage:
// docs/formats/record_lines.md.
//
//   char line[] = "4565C 15.9 12h36m20.8s 25.99";
//   char* cursor = line;
//   int number;
//   double size, ra;
//   RemoveLeading(cursor) && GetLong1(cursor, number);   // 4565; *cursor == 'C'
//   ++cursor;
//   RemoveLeading(cursor) && GetDouble(cursor, size);    // 15.9
//   GetRaOrDec(cursor, ra);                              // 189.0867: hours become degrees
//
// Cursors and texts are never null and end in a zero byte, behind which no function looks or moves. Every
// function leaves the cursor on the first byte that it did not take, and never changes the line. Blanks are
// space, tab, line feed and carriage return; no other byte is one, whatever the locale. Numbers are read and
// written with "." in every locale. Functions return 1 for success and 0 for failure, or a length; a number
// that is missing stays as it was.
//
// Where a text is written to `char* out`, the caller owns a buffer of at least 256 bytes. A longer text is
// cut to 255 bytes and the ending zero, with one line "A text of 300 bytes is cut to 255\n"; the field is
// still taken whole, and the length returned is that of the text in the buffer. The forms with std::string
// cut nothing. The functions keep no state and may be called by any thread, except StringToNear.
//
// The identifier of a name in a line, GetUniqueID, comes along, under its name in CommonInterfaces too
// (utils/text.h).
#pragma once

#include <string>

#include "common_interfaces/api.h"
#include "utils/text.h"

namespace CommonInterfaces {
using ::GetUniqueID;
}

// Skips blanks. 1 if a character remains, 0 at the end of the text.
COMMON_INTERFACES_API int RemoveLeading(char*& cursor);

// Skips blanks and ";", forward: it moves past the separator behind a field, despite its name. 1 if a
// character remains.
COMMON_INTERFACES_API int RemoveTrail(char*& cursor);

// -1 on "-", which is skipped with the blanks behind it; otherwise 1, and nothing is skipped (a "+" neither).
COMMON_INTERFACES_API int GetSign(char*& cursor);

// Both number readers fail on a number stop: the end of the text, a blank, ";" or "!". On any other first
// character that cannot begin their number they deliberately succeed: the value is 0 and nothing is taken.

// Decimal digits, without a sign: "-5" is 0 with the cursor on "-". Digits are taken however many there are;
// more than an int holds give 2147483647.
COMMON_INTERFACES_API int GetLong1(char*& cursor, int& value);

// Takes the whole run of digits, ".", "e", "E" and "-" (no "+") and converts the longest piece at its start
// that is a number, correctly rounded, however long it is: "1e5-3" is 100000, "-.5" is -0.5, "--", "." and
// "e" are 0. Beyond the range of double it is infinite, or 0, with its sign.
COMMON_INTERFACES_API int GetDouble(char*& cursor, double& value);

// An angle: blanks, an optional "-" with blanks behind it, then numbers (as GetDouble reads them), each with
// its mark: "h" hours; the byte 0xB0 or "g" degrees; "'" or "m" minutes; a double quote or "s" seconds. The
// value is in degrees, hours counting 15 each, neither reduced nor limited; -0.0 keeps the sign of "-0".
// "12h30m" gives 187.5. The marks are added in any order, and repeated marks are added again. No failure but
// a line without anything left: 0.
//
// Deliberate, and a trap: a number without a mark ends the angle and replaces what was added before, hours or
// not. "5" is 5, and "12h30" is 30. The character in place of the mark is taken, unless it ends the text. A
// blank, ";" or "!" behind a mark ends the angle too: of "12h 30m" only "12h" is taken.
COMMON_INTERFACES_API int GetRaOrDec(char*& cursor, double& value);

// Three numbers as GetLong1 reads them, blanks before each. Their low 16 bits are stored, all three or, when
// one is missing (0), none. Only blanks separate: "255,128,0" gives 255, 0, 0.
COMMON_INTERFACES_API int GetRGB(char* text, short& r, short& g, short& b);

// A field up to a blank, ";" or the end, after leading blanks; its length. An empty field gives 0 and "". The
// cursor is left on the character that ended the field.
COMMON_INTERFACES_API int GetString1(char*& cursor, char* out);
COMMON_INTERFACES_API int GetString1(char*& cursor, std::string& out);

// The same in small letters, as tolower of the C library makes them: in the "C" locale A to Z alone.
COMMON_INTERFACES_API int GetStringLwr(char*& cursor, char* out);
COMMON_INTERFACES_API int GetStringLwr(char*& cursor, std::string& out);

// As GetString1, but spaces stay in the field: it ends at tab, line feed, carriage return, ";" or the end.
COMMON_INTERFACES_API int GetString3(char*& cursor, char* out);
COMMON_INTERFACES_API int GetString3(char*& cursor, std::string& out);

// As GetString1, but spaces and tabs stay in the field, those at its end included: it ends at line feed,
// carriage return, ";" or the end. Then RemoveTrail moves the cursor to the next field; not after an empty
// field.
COMMON_INTERFACES_API int GetString2(char*& cursor, char* out);
COMMON_INTERFACES_API int GetString2(char*& cursor, std::string& out);

// Everything up to `delimiter`, line feed, carriage return or the end, blanks included; its length. The
// delimiter is taken as well. 0 and "" at the end of the line, and for an empty field, whose delimiter is
// taken.
COMMON_INTERFACES_API int CopyClippedByChar(char delimiter, char*& cursor, char* out);
COMMON_INTERFACES_API int CopyClippedByChar(char delimiter, char*& cursor, std::string& out);

// Writes an angle in degrees and returns the length of the text.
//   mode 1, a right ascension: "%2dh%2dm%2.2fs", or the first 6 characters of that ("12h30m") when there are
//     no seconds. The sign of the value is not written.
//   any other mode, a signed angle: "%c%3d%c%2d%c%2d%c" with "-" or a blank, degrees, the byte 0xB0, minutes,
//     "'", whole seconds and a double quote, 11 characters; or 7, up to the minutes, when the seconds are 0.
// Computed in single precision; degrees, hours, minutes and whole seconds are cut, not rounded, with a small
// excess (0.001 minutes, 0.009 s, 0.01 arc seconds) against values just below. Deliberate: 60 minutes are
// written as 0 and nothing is carried, so 29.9999 in mode 1 is " 1h 0m". Meant for hours below 100 and
// degrees below 1000: the lengths 6, 7 and 11 hold for larger ones too, whose text is cut. Magnitudes above
// 2147483520 are written as that, a value that is not a number as 0. Numbers below 10 have a blank before
// them, where GetRaOrDec ends an angle: not every such text is read back whole. `out`: at least 32 bytes.
COMMON_INTERFACES_API short SetRadOrDec(double value, short mode, char* out);
COMMON_INTERFACES_API std::string SetRadOrDec(double value, short mode);

// Writes the value that stands at `value` (at any address) and returns it as a float. The types are those of
// settings fields (field_data.h) with deliberate exceptions: 3 is read as a signed number, and the text of 5
// is that of the signed number, while the float is that of the unsigned one.
//   0 signed 8 bits; 1 and 8 unsigned 8 bits; 2 and 3 signed 16 bits; 4 and 5 32 bits: as "%d"
//   6 float, 7 double: as "%f", six decimals; "inf", "-inf", "nan" without a sign
// Any other type: 0, and `out` is left alone.
COMMON_INTERFACES_API float MakeCorrectString(char* out, unsigned int type, void const* value);
COMMON_INTERFACES_API float MakeCorrectString(std::string& out, unsigned int type, void const* value);

// The nearest plain Latin form of a localized name, for searching. Bytes up to 0x80 stand for themselves;
// others are replaced by the tables of the string table: each character of string 14000 by the character of
// 14001 at its place, each of 14002 by the two characters of 14003 at twice its place; what is in neither, or
// has no replacement there, stays. A 14000 that begins with "-" switches the replacement off.
//
// The tables are fetched at the first call and copied: deliberately kept for the life of the process,
// whatever becomes of the language. Tables of unequal length are reported then, with one line; a missing one
// by QX4Strings. For the thread that uses the string table. `out` may be `in`; a null `in` is "".
COMMON_INTERFACES_API void StringToNear(char* out, char const* in);
COMMON_INTERFACES_API std::string StringToNear(std::string const& in);
