// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Localized formats: the first byte of the input chooses the arguments, the rest is the format.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "common_interfaces/text_formats.h"
#include "fuzz/scratch.h"
#include "text/format_render.h"

namespace {

using CommonInterfaces::FindFormatFault;
using CommonInterfaces::RenderFormat;
using fuzz::Require;

constexpr int kNumber = -1234567;
constexpr double kReal = 59.995;
// The longest number has 309 digits and 999 decimals.
constexpr std::size_t kMostPerArgument = 1400;

std::string Render(int choice, const char* format) {
  switch (choice) {
    case 0:
      return RenderFormat(format, {kNumber, kReal, kNumber, kReal});
    case 1:
      return RenderFormat(format, {kReal, "kilometres"});
    case 2:
      return RenderFormat(format, {kNumber, kNumber, kReal, 'W', kNumber, kNumber, kReal, 'N'});
    default:
      return RenderFormat(format, {});
  }
}

constexpr const char* kArguments[] = {"dfdf", "fs", "ddfcddfc", ""};

// The format for an int where it says "%ld": the checked formats take either for the integer that there is,
// the C library reads a long.
std::string WithoutLengths(const std::string& format) {
  std::string plain;
  bool isConversion = false;
  for (const char c : format) {
    if (isConversion && c == 'l') continue;
    plain += c;
    isConversion = isConversion ? std::strchr("+- #0123456789.", c) != nullptr && c != '\0' : c == '%';
  }
  return plain;
}

// The C library as the oracle, for numbers only: flags of texts and characters are undefined there. By way of
// a pointer, because the format comes from the input.
std::string Print(const char* format) {
  int (*const print)(char*, std::size_t, const char*, ...) = std::snprintf;
  const int length = print(nullptr, 0, format, kNumber, kReal, kNumber, kReal);
  std::vector<char> text(static_cast<std::size_t>(length) + 1);
  print(text.data(), text.size(), format, kNumber, kReal, kNumber, kReal);
  return text.data();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const int choice = data[0] % 4;
  const std::string format(reinterpret_cast<const char*>(data + 1), size - 1);
  const std::string fault = FindFormatFault(format.c_str(), kArguments[choice]);
  const std::string text = Render(choice, format.c_str());
  Require(fault.find('\n') == std::string::npos && fault.size() < 200, "a fault is a short piece of a line");
  if (!fault.empty()) {
    Require(text.empty(), "what does not fit gives the empty text");
    return 0;
  }
  Require(text.size() <= format.size() + kMostPerArgument * std::strlen(kArguments[choice]),
          "widths and precisions are bounded");
  const bool hasHexadecimal =
      format.find_first_of("aA") != std::string::npos;  // written in more than one way
  if (choice == 0 && !hasHexadecimal)
    Require(text == Print(WithoutLengths(format).c_str()), "numbers are those of printf");
  return 0;
}
