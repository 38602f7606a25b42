// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "catalogs/line_fields.h"

#include <algorithm>
#include <cstring>

#include "utils/characters.h"
#include "utils/numbers.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

template <class T>
bool Scan(const char*& text, T& value) {
  std::string_view rest = text;
  SkipWhiteSpace(rest);
  if (!TakeNumber(rest, value)) return false;
  text = rest.data();
  return true;
}

}  // namespace

bool ScanNumber(const char*& text, int& value) { return Scan(text, value); }
bool ScanNumber(const char*& text, double& value) { return Scan(text, value); }

bool ReadNumber(std::string_view field, int& value, int least, int most) {
  SkipWhiteSpace(field);
  return TakeNumber(field, value, least, most);
}

bool ReadKind(const std::string& field, int& kind) {
  if (ReadNumber(field, kind)) return true;
  kind = GetFOURCC(field.c_str());
  return kind != -1;
}

void SetName(std::string_view name, SSO_ID& object) {
  const std::size_t kept = std::min(name.size(), sizeof object.name - 1);
  std::memset(object.name, 0, sizeof object.name);
  std::memcpy(object.name, name.data(), kept);
}

std::unique_ptr<char[]> CopyToHeap(std::string_view text) {
  auto copy = std::make_unique<char[]>(text.size() + 1);
  std::copy(text.begin(), text.end(), copy.get());
  return copy;
}

}  // namespace CommonInterfaces
