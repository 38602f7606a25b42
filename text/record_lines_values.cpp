// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <charconv>
#include <cmath>
#include <cstring>

#include "common_interfaces/record_lines.h"
#include "text/bounded_copy.h"
#include "text/record_lines_inside.h"

namespace {

template <class T>
T Load(const void* value) {
  T loaded;
  std::memcpy(&loaded, value, sizeof loaded);
  return loaded;
}

// A value as text and as the float that is returned.
struct WrittenValue {
  char text[352];  // room for the largest double: 309 digits, a point, six decimals
  std::size_t length = 0;
  float value = 0.0f;

  void SetInteger(int number) {
    length = static_cast<std::size_t>(std::to_chars(text, text + sizeof text, number).ptr - text);
    value = static_cast<float>(number);
  }
  // What is not a number has no sign: which one it gets differs between processors.
  void SetReal(double number) {
    if (std::isnan(number)) number = std::abs(number);
    const auto end = std::to_chars(text, text + sizeof text, number, std::chars_format::fixed, 6).ptr;
    length = static_cast<std::size_t>(end - text);
    value = static_cast<float>(number);
  }
};

// False for a type that is none.
bool Write(unsigned type, const void* value, WrittenValue& written) {
  switch (type) {
    case 0:
      written.SetInteger(Load<signed char>(value));
      return true;
    case 1:
    case 8:
      written.SetInteger(Load<unsigned char>(value));
      return true;
    case 2:
    case 3:
      written.SetInteger(Load<short>(value));
      return true;
    case 4:
      written.SetInteger(Load<int>(value));
      return true;
    case 5:
      written.SetInteger(Load<int>(value));
      written.value = static_cast<float>(Load<unsigned>(value));
      return true;
    case 6:
      written.SetReal(Load<float>(value));
      return true;
    case 7:
      written.SetReal(Load<double>(value));
      return true;
    default:
      return false;
  }
}

}  // namespace

float MakeCorrectString(char* out, unsigned int type, void const* value) {
  WrittenValue written;
  if (Write(type, value, written)) {
    CommonInterfaces::CopyBounded({written.text, written.length}, out);
  }
  return written.value;
}

float MakeCorrectString(std::string& out, unsigned int type, void const* value) {
  WrittenValue written;
  if (Write(type, value, written)) out.assign(written.text, written.length);
  return written.value;
}
