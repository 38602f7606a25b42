// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How values lie in a file of prepared catalogs: one after the other, little-endian, a vector and a text
// behind their 32-bit count. What a record consists of is said once, by an Exchange(file, record) that hands
// each member to file.Value, and serves for writing, reading and counting bytes.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "utils/bytes.h"

namespace scene {

template <class T>
concept PlainValue = std::is_arithmetic_v<T>;

// The bytes of a record without its texts and vectors.
class PreparedSize {
 public:
  template <PlainValue T>
  constexpr void Value(T&) {
    m_Size += sizeof(T);
  }
  constexpr void Value(std::string&) { m_Size += sizeof(std::uint32_t); }
  constexpr std::size_t Get() const { return m_Size; }

 private:
  std::size_t m_Size = 0;
};

template <class T>
std::size_t GetPreparedSize() {
  T item{};
  PreparedSize size;
  if constexpr (PlainValue<T>) {
    size.Value(item);
  } else {
    Exchange(size, item);
  }
  return size.Get();
}

class PreparedWriter {
 public:
  static constexpr bool kReads = false;

  template <PlainValue T>
  void Value(const T& value) {
    unsigned char bytes[sizeof(T)];
    if constexpr (sizeof(T) == 1) {
      bytes[0] = static_cast<unsigned char>(value);
    } else if constexpr (sizeof(T) == 4) {
      StoreLE32(bytes, std::bit_cast<std::uint32_t>(value));
    } else {
      StoreLE64(bytes, std::bit_cast<std::uint64_t>(value));
    }
    m_Bytes.append(reinterpret_cast<const char*>(bytes), sizeof(T));
  }
  void Value(const std::string& text) {
    Value(static_cast<std::uint32_t>(text.size()));
    m_Bytes += text;
  }
  template <class T>
  void Items(std::vector<T>& items) {
    Value(static_cast<std::uint32_t>(items.size()));
    for (T& item : items) {
      if constexpr (PlainValue<T>) {
        Value(item);
      } else {
        Exchange(*this, item);
      }
    }
  }
  void Bytes(std::string_view bytes) { m_Bytes += bytes; }

  const std::string& GetBytes() const { return m_Bytes; }

 private:
  std::string m_Bytes;
};

// Reads what is there and zeros behind the end. Counts are compared with what is left before anything is made
// of that length.
class PreparedReader {
 public:
  static constexpr bool kReads = true;

  explicit PreparedReader(std::string_view bytes) : m_Bytes(bytes) {}

  template <PlainValue T>
  void Value(T& value) {
    if (m_Bytes.size() - m_At < sizeof(T)) return Fail(value);
    const char* const at = m_Bytes.data() + m_At;
    if constexpr (sizeof(T) == 1) {
      value = static_cast<T>(*at);
    } else if constexpr (sizeof(T) == 4) {
      value = std::bit_cast<T>(LoadLE32(at));
    } else {
      value = std::bit_cast<T>(LoadLE64(at));
    }
    m_At += sizeof(T);
  }
  void Value(std::string& text) { text = TakeBytes(TakeCount(1)); }
  template <class T>
  void Items(std::vector<T>& items) {
    items.resize(TakeCount(GetPreparedSize<T>()));
    for (T& item : items) {
      if constexpr (PlainValue<T>) {
        Value(item);
      } else {
        Exchange(*this, item);
      }
    }
  }
  // A count of things of so many bytes at least, 0 where so many are not left.
  std::size_t TakeCount(std::size_t size) {
    std::uint32_t count = 0;
    Value(count);
    if (count <= (m_Bytes.size() - m_At) / size) return count;
    m_IsWhole = false;
    return 0;
  }
  std::string_view TakeBytes(std::size_t size) {
    if (size > m_Bytes.size() - m_At) {
      m_IsWhole = false;
      return {};
    }
    m_At += size;
    return m_Bytes.substr(m_At - size, size);
  }

  std::size_t GetPlace() const { return m_At; }
  // Whether everything was there, and nothing is left.
  bool IsDone() const { return m_IsWhole && m_At == m_Bytes.size(); }

 private:
  template <class T>
  void Fail(T& value) {
    value = {};
    m_IsWhole = false;
    m_At = m_Bytes.size();
  }

  std::string_view m_Bytes;
  std::size_t m_At = 0;
  bool m_IsWhole = true;
};

}  // namespace scene
