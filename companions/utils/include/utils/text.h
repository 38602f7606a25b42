// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Small text services: splitting, trimming, escapes, hashes of field names and four-character codes.
#pragma once

#include <string>
#include <vector>

#include "utils/api.h"
#include "utils/checksum.h"

// The pieces of `text` between the characters of `delimiters`, empty pieces included: "a\t\tb" split at tabs
// gives "a", "" and "b", and "" gives no piece. A null text gives none.
UTILS_API std::vector<std::string> GetTokens(const char* text, const char* delimiters);

// The same with one delimiter character; "a;" gives "a" and "".
UTILS_API std::vector<std::string> GetSubStrings(const char* text, char delimiter);

// Removes blanks (space, tab, line feed, carriage return) at both ends, in place.
UTILS_API void DeleteBorderSpace(char* text);

// Copies `source` to `destination` and resolves the escapes \n, \t, \\ and \"; a backslash before any other
// character, or at the end, stands for itself. Returns the number of characters written, never more than were
// read; no terminating zero is written. The two may be the same buffer, and the destination may begin before
// the source in it.
UTILS_API int ParseString2(const char* source, char* destination);

// True for null, "" and a text of blanks only.
UTILS_API bool IsEmptyString(const char* text);

// The name id of a settings or database field: a 31-bit hash, frozen because files keep it. Start with h = 0;
// for each byte c, h = (h >> 8, arithmetic) ^ T[(h ^ c) & 0xFF] with T the CRC-32 table of the reflected
// polynomial 0xEDB88320; the result is h & 0x7FFFFFFF. It is not a CRC-32 of the name. GetUniqueID("") is 0,
// and so is that of null. Any thread, and any static initialiser.
UTILS_API int GetUniqueID(const char* name);

// The same when compiling, for names that are known then; slow otherwise. `name` is not null.
constexpr int MakeUniqueID(const char* name) {
  int hash = 0;
  for (; *name; ++name) {
    const auto index =
        static_cast<unsigned char>(static_cast<unsigned char>(hash) ^ static_cast<unsigned char>(*name));
    hash = hash >> 8 ^ static_cast<int>(GetCrc32Entry(index));
  }
  return hash & 0x7FFFFFFF;
}

// The code of a text of exactly four characters, first character in the most significant byte; -1 otherwise.
UTILS_API int GetFOURCC(const char* text);

// The same for a literal, at compile time: FourCC("plnt") == 0x706C6E74.
constexpr int FourCC(const char (&code)[5]) {
  unsigned value = 0;
  for (int i = 0; i < 4; ++i) value = value << 8 | static_cast<unsigned char>(code[i]);
  return static_cast<int>(value);
}
