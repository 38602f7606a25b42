// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/json.h"

#include "utils/utf8.h"

namespace {

constexpr char kReplacement[] = "\xEF\xBF\xBD";  // U+FFFD in UTF-8

std::string EscapeControl(unsigned char c) {
  static constexpr char kDigits[] = "0123456789abcdef";
  switch (c) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      return {'\\', 'u', '0', '0', kDigits[c >> 4], kDigits[c & 0xF]};
  }
}

}  // namespace

std::string JsonString(const std::string& utf8) {
  std::string json = "\"";
  for (int at = 0, length = 0; at < static_cast<int>(utf8.size()); at += length) {
    const int character = DecodeUtf8(utf8, at, &length);
    if (character < 0) {
      json += kReplacement;
    } else if (character < ' ' || (character >= 0x7F && character < 0xA0)) {
      json += EscapeControl(static_cast<unsigned char>(character));
    } else {
      if (character == '"' || character == '\\') json += '\\';
      json.append(utf8, static_cast<std::size_t>(at), static_cast<std::size_t>(length));
    }
  }
  return json + '"';
}

std::string JsonObject(const std::vector<std::pair<std::string, std::string>>& members) {
  std::string json;
  for (const auto& [name, value] : members) {
    json += (json.empty() ? "{" : ", ") + JsonString(name) + ": " + value;
  }
  return json.empty() ? "{}" : json + '}';
}

std::string JsonArray(const std::vector<std::string>& elements, const std::string& indent) {
  std::string json;
  for (const std::string& element : elements) json += (json.empty() ? "[\n" : ",\n") + indent + element;
  return json.empty() ? "[]\n" : json + "\n]\n";
}
