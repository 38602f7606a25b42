// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <cstring>

namespace test_support {

// A line with a cursor on its first byte. It stands alone on the heap and ends in its zero byte, so that the
// address sanitizer sees every look beyond it.
class Line {
 public:
  explicit Line(std::string_view text) : m_Text(new char[text.size() + 1]), m_Size(text.size()) {
    std::memcpy(m_Text.get(), text.data(), text.size());
    m_Text[text.size()] = '\0';
    cursor = m_Text.get();
  }

  char* GetText() const { return m_Text.get(); }
  // What has not been taken yet; bytes behind a zero byte of the text included.
  std::string GetRest() const { return std::string(cursor, m_Text.get() + m_Size); }
  bool IsInside() const { return cursor >= m_Text.get() && cursor <= m_Text.get() + m_Size; }

  char* cursor;

 private:
  std::unique_ptr<char[]> m_Text;
  std::size_t m_Size;
};

}  // namespace test_support
