// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Texts in UTF-8, in code pages and as JSON, there and back.
#include <string>

#include "fuzz/scratch.h"
#include "utils/code_page.h"
#include "utils/json.h"
#include "utils/utf8.h"

namespace {

using fuzz::Require;

bool IsUtf8(const std::string& text) {
  for (int at = 0, length = 1; at < static_cast<int>(text.size()); at += length) {
    const int character = DecodeUtf8(text, at, &length);
    if (character < 0 || character > 0x10FFFF) return false;
    Require(length >= 1 && length <= 4 && at + length <= static_cast<int>(text.size()), "bytes of the text");
  }
  return true;
}

void CheckPage(CodePage page, const std::string& text) {
  const std::string utf8 = CodePageToUtf8(page, text);
  Require(IsUtf8(utf8), "a text of a code page becomes UTF-8");
  if (utf8.find("\xEF\xBF\xBD") == std::string::npos) {
    std::string back;
    Require(Utf8ToCodePage(page, utf8, &back, nullptr) && back == text, "and comes back");
  }
  std::string bytes = "old";
  int bad = -1;
  if (Utf8ToCodePage(page, text, &bytes, &bad)) {
    Require(IsUtf8(text) && CodePageToUtf8(page, bytes) == text, "UTF-8 that fits the page comes back");
  } else {
    Require(bytes.empty() && bad >= 0 && bad < static_cast<int>(text.size()),
            "or the byte that does not fit");
  }
}

void CheckJson(const std::string& text) {
  const std::string json = JsonString(text);
  Require(json.size() >= 2 && json.front() == '"' && json.back() == '"', "a JSON string stands in quotes");
  Require(IsUtf8(json), "and is UTF-8");
  bool isEscaped = false;
  for (std::size_t i = 1; i + 1 < json.size(); ++i) {
    Require(static_cast<unsigned char>(json[i]) >= 0x20, "without control characters");
    Require(json[i] != '"' || isEscaped, "and without bare quotes");
    isEscaped = json[i] == '\\' && !isEscaped;
  }
  Require(!isEscaped, "its last quote ends it");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  for (const CodePage page : {CodePage::kCyrillic, CodePage::kWestern, CodePage::kGreek})
    CheckPage(page, text);
  CheckJson(text);
  return 0;
}
