// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How people call the codes that files name kinds, objects and texts by.
#pragma once

#include <string>

namespace skydata {

// "star" for a code of four plain characters, "7200" for a number.
std::string NameIdentifier(unsigned identifier);

// The same of a kind of objects.
std::string NameKind(int kind);

// "star 2061".
std::string NameObject(int kind, int number);

// Whether a kind is one that the application has objects of.
bool IsKnownKind(int kind);

}  // namespace skydata
