// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>

#include "common_interfaces/text_formats.h"

namespace CommonInterfaces {

// The format with its conversions replaced by the arguments. "" when it does not fit them; FindFormatFault
// says why. Numbers are written as printf writes them in the "C" locale, whatever the process's locale is.
std::string RenderFormat(const char* format, std::initializer_list<FormatArgument> arguments);

}  // namespace CommonInterfaces
