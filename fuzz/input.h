// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The bytes of an input as numbers and texts, for targets that build something of them. Behind the end all
// are 0 and empty.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : m_Data(data), m_Left(size) {}

  std::size_t GetLeft() const { return m_Left; }

  std::uint8_t TakeByte() {
    if (m_Left == 0) return 0;
    --m_Left;
    return *m_Data++;
  }
  // From 0 to `below` - 1; `below` is at least 1 and at most 65536.
  int TakeBelow(int below) {
    int value = TakeByte();
    if (below > 256) value = value << 8 | TakeByte();
    return value % below;
  }
  bool TakeBool() { return (TakeByte() & 1) != 0; }
  // Any value of the type, by its bytes.
  template <class T>
  T TakeBits() {
    T value{};
    const std::size_t count = std::min(sizeof value, m_Left);
    std::memcpy(&value, m_Data, count);
    Skip(count);
    return value;
  }
  // Evenly spread from `from` to `to`.
  double TakeReal(double from, double to) {
    return from + (to - from) * (TakeBits<std::uint32_t>() / 4294967295.0);
  }
  std::string TakeText(std::size_t most) {
    const std::size_t count = std::min(most, m_Left);
    const std::string text(reinterpret_cast<const char*>(m_Data), count);
    Skip(count);
    return text;
  }
  std::string TakeRest() { return TakeText(m_Left); }

 private:
  void Skip(std::size_t count) {
    m_Data += count;
    m_Left -= count;
  }

  const std::uint8_t* m_Data;
  std::size_t m_Left;
};

// A message of one line. What it quotes may hold any other byte: whoever prints it makes it printable.
inline bool IsOneLine(const std::string& text) {
  return !text.empty() && text.find('\n') == std::string::npos;
}

}  // namespace fuzz
