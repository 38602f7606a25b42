// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace scene {

// What is read when somebody first asks for it, and kept: tables that most runs do without. Copies that are
// made before that read it again. One thread.
template <class T>
class OnDemand {
 public:
  explicit OnDemand(T (*read)()) : m_Read(read) {}

  const T& Get() const {
    if (!m_Value) m_Value = std::make_shared<const T>(m_Read());
    return *m_Value;
  }

 private:
  T (*m_Read)();
  mutable std::shared_ptr<const T> m_Value;
};

}  // namespace scene
