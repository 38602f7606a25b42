// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The way of texts to the outside: in memory they are in the code page of the language, drawn and printed
// they are UTF-8. One thread at a time, as the language itself.
#pragma once

#include <string>

#include "scene/api.h"

namespace scene {

// From and to the code page of the current language. A character that the page lacks becomes '?', and so does
// each byte that is no UTF-8.
SCENE_API std::string ToUtf8(const std::string& text);
SCENE_API std::string ToCodePage(const std::string& utf8);
// A name from a file that a user may have edited: UTF-8 goes to the code page; what is none is taken to be
// there.
SCENE_API std::string NameToCodePage(const std::string& name);
// A message of the libraries, which quotes paths in UTF-8 or texts in the code page.
SCENE_API std::string MessageToUtf8(const std::string& message);

}  // namespace scene
