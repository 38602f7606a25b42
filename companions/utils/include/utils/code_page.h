// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Texts of the application are kept in the single-byte code page of their language; files and screens of
// today want UTF-8. Code pages are named by their numbers. Nothing here keeps state: any thread may call.
#pragma once

#include <string>

#include "utils/api.h"

// The code pages that texts are kept in.
enum class CodePage : int {
  kCyrillic = 1251,
  kWestern = 1252,
  kGreek = 1253,
};

// The code page of the texts of a language (a code as in utils/locale.h): "ru" kCyrillic, "el" kGreek, any
// other and null kWestern.
UTILS_API CodePage GetCodePageOf(const char* language);

// The text in UTF-8. A byte that the code page leaves undefined becomes U+FFFD.
UTILS_API std::string CodePageToUtf8(CodePage page, const std::string& text);

// The text in the code page. False, with the offset of the first byte that is no UTF-8 or whose character the
// page lacks in `badByte` and nothing in `text`; null for either output is allowed.
UTILS_API bool Utf8ToCodePage(CodePage page, const std::string& utf8, std::string* text, int* badByte);
