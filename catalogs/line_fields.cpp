// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "catalogs/line_fields.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <system_error>

#include "utils/text.h"

namespace CommonInterfaces {
namespace {

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

template <class T>
bool Scan(const char*& text, T& value) {
  const char* begin = text;
  while (IsBlank(*begin)) ++begin;
  if (*begin == '+' && begin[1] != '-') ++begin;
  T number{};
  const auto [next, error] = std::from_chars(begin, begin + std::strlen(begin), number);
  if (error != std::errc() || !std::isfinite(static_cast<double>(number))) return false;
  value = number;
  text = next;
  return true;
}

}  // namespace

bool ScanNumber(const char*& text, int& value) { return Scan(text, value); }
bool ScanNumber(const char*& text, double& value) { return Scan(text, value); }

bool ReadNumber(const std::string& field, int& value) {
  const char* text = field.c_str();
  return ScanNumber(text, value);
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
