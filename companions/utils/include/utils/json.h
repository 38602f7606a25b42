// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pieces of JSON (RFC 8259), in UTF-8. Any thread.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "utils/api.h"

// The text as a JSON string, quotes included. A byte that is part of no UTF-8 character becomes U+FFFD.
UTILS_API std::string JsonString(const std::string& utf8);

// An object on one line, of names and values that are JSON already.
UTILS_API std::string JsonObject(const std::vector<std::pair<std::string, std::string>>& members);

// An array, one element a line, each after `indent`; ended by a line feed.
UTILS_API std::string JsonArray(const std::vector<std::string>& elements, const std::string& indent = " ");
