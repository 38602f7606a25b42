// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace thread {

// 32 hexadecimal digits that stand for a name of any length and any characters, the same in every process.
std::string MakeNameDigest(const std::string& name);

}  // namespace thread
