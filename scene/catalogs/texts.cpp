// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/texts.h"

#include "utils/code_page.h"
#include "utils/locale.h"
#include "utils/utf8.h"

namespace scene {
namespace {

CodePage GetPage() { return GetCodePageOf(GetSystemLocale()); }

bool IsUtf8(const std::string& text) {
  for (int at = 0, length = 0; at < static_cast<int>(text.size()); at += length) {
    if (DecodeUtf8(text, at, &length) < 0) return false;
  }
  return true;
}

}  // namespace

std::string ToUtf8(const std::string& text) { return CodePageToUtf8(GetPage(), text); }

std::string ToCodePage(const std::string& utf8) {
  std::string text, character;
  for (int at = 0, length = 0; at < static_cast<int>(utf8.size()); at += length) {
    DecodeUtf8(utf8, at, &length);
    const std::string one = utf8.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(length));
    text += Utf8ToCodePage(GetPage(), one, &character, nullptr) ? character : "?";
  }
  return text;
}

std::string NameToCodePage(const std::string& name) { return IsUtf8(name) ? ToCodePage(name) : name; }

std::string MessageToUtf8(const std::string& message) { return IsUtf8(message) ? message : ToUtf8(message); }

}  // namespace scene
