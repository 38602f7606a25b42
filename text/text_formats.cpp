// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/text_formats.h"

#include <cstring>

#include "common_interfaces/string_table.h"
#include "text/format_conversion.h"
#include "text/format_render.h"
#include "utils/debug.h"

namespace CommonInterfaces {
namespace {

// "conversion 2, %s, ": a piece of the file in a line of its own, so what could break the line is replaced
// and a long run is cut.
std::string NameConversion(int number, const char* begin, const char* end) {
  constexpr int kShown = 24;
  std::string name = "conversion " + std::to_string(number) + ", ";
  for (const char* c = begin; c != end; ++c) {
    if (c - begin == kShown) {
      name += "...";
      break;
    }
    const auto byte = static_cast<unsigned char>(*c);
    name += byte < 0x20 || byte == 0x7F ? '?' : *c;
  }
  return name + ", ";
}

const char* DescribeType(char type) {
  switch (type) {
    case 'd':
      return "gets an int";
    case 'f':
      return "gets a double";
    case 's':
      return "gets a text";
    case 'c':
      return "gets a character";
    default:
      return "has no argument";
  }
}

}  // namespace

std::string FindFormatFault(const char* format, const char* arguments) {
  if (format == nullptr) return "";
  if (arguments == nullptr) arguments = "";
  int number = 0;
  while (const char* percent = std::strchr(format, '%')) {
    FormatConversion conversion;
    const char* fault = ParseConversion(percent, conversion);
    format = conversion.end;
    if (conversion.letter == '%' && fault == nullptr) continue;
    ++number;
    if (fault == nullptr && *arguments != GetArgumentType(conversion.letter))
      fault = DescribeType(*arguments);
    if (fault != nullptr) return NameConversion(number, percent, conversion.end) + fault;
    ++arguments;
  }
  return "";
}

std::string FormatLocalizedText(unsigned identifier, std::initializer_list<FormatArgument> arguments) {
  const QX4Strings loaded;
  const char* const format = loaded.GetString(identifier, false);
  if (format == nullptr) return "";
  std::string types;
  for (const FormatArgument& argument : arguments) types += argument.type;
  const std::string fault = FindFormatFault(format, types.c_str());
  if (fault.empty()) return RenderFormat(format, arguments);
  PrintDebugString("String with ID = %d does not fit its use: %s\n", static_cast<int>(identifier),
                   fault.c_str());
  return "";
}

}  // namespace CommonInterfaces
