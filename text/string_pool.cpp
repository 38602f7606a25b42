// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/string_pool.h"

#include <cstring>

#include "utils/text.h"

namespace CommonInterfaces {

char* StringPool::Add(const char* source) {
  // ParseString2 never writes more than it reads, so the length of the source bounds the text.
  std::size_t length = std::strlen(source);
  if (length >= m_Left) return nullptr;
  char* const text = m_Next;
  if (std::memchr(source, '\\', length)) {
    length = static_cast<unsigned>(ParseString2(source, text));
  } else {
    std::memmove(text, source, length);
  }
  text[length] = '\0';
  m_Next += length + 1;
  m_Left -= static_cast<unsigned>(length) + 1;
  return text;
}

}  // namespace CommonInterfaces
