// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace CommonInterfaces {

// The text of the string table; "" when it has none, reported in one line. Loads the table when it is not
// loaded.
std::string GetTableText(unsigned identifier);

// The text, or null without a message: for texts that a table may leave out. It stays the table's.
const char* FindOptionalText(unsigned identifier);

// Copies to a caller's buffer of kStatusTextSize bytes, always terminated; null does nothing. What is longer
// is cut: texts are in a single-byte code page, so a cut never leaves a piece of a character.
void CopyStatusText(const std::string& text, char* out);

// How the formats of a place are chosen: by whether the observer's moving type stands near a surface.
enum class PlaceKind { kSurface, kSpace, kNone };
PlaceKind GetPlaceKind(char movingType);

}  // namespace CommonInterfaces
