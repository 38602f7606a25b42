// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <streambuf>

namespace test_support {

// Takes that many bytes and no more, as a full disk does.
class FullStream : public std::ostream {
 public:
  explicit FullStream(int room) : std::ostream(nullptr), m_Buffer(room) { rdbuf(&m_Buffer); }

 private:
  class Buffer : public std::streambuf {
   public:
    explicit Buffer(int room) : m_Room(room) {}

   protected:
    int_type overflow(int_type byte) override {
      return m_Room-- > 0 ? traits_type::not_eof(byte) : traits_type::eof();
    }

   private:
    int m_Room;
  };
  Buffer m_Buffer;
};

}  // namespace test_support
