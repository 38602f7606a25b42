// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/files/wide_text_windows.h"

#include <windows.h>

namespace utils_internal {

std::wstring Widen(const std::string& text) {
  const int bytes = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), bytes, nullptr, 0);
  std::wstring wide(length > 0 ? static_cast<std::size_t>(length) : 0, L'\0');
  if (length > 0) {
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), bytes, wide.data(), length);
  }
  return wide;
}

std::string Narrow(const wchar_t* wide) {
  const int length = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
  if (length <= 1) return "";
  std::string text(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), length, nullptr, nullptr);
  text.pop_back();  // the terminator that was counted
  return text;
}

bool IsAbsence(unsigned long code) {
  return code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND || code == ERROR_INVALID_NAME ||
         code == ERROR_DIRECTORY;
}

}  // namespace utils_internal
