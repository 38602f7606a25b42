// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace thread {

// Owns a file descriptor, or none where the number is negative.
class Descriptor {
 public:
  explicit Descriptor(int number) : m_Number(number) {}
  Descriptor(Descriptor&& other) noexcept : m_Number(std::exchange(other.m_Number, -1)) {}
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() { Close(); }

  int Get() const { return m_Number; }
  bool IsOpen() const { return m_Number >= 0; }

  void Close() {
    if (IsOpen()) close(std::exchange(m_Number, -1));
  }

 private:
  int m_Number;
};

}  // namespace thread
