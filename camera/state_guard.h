// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "common_interfaces/camera_state.h"

namespace CommonInterfaces {

// Brings a camera's members back to what they were when it was made, unless the operation says that it is
// through: for operations of several steps that may run out of memory between them.
class StateGuard {
 public:
  explicit StateGuard(CameraState& state) : m_State(state), m_Earlier(state) {}
  ~StateGuard() {
    if (!m_IsThrough) m_State = std::move(m_Earlier);
  }
  StateGuard(const StateGuard&) = delete;
  StateGuard& operator=(const StateGuard&) = delete;

  void SetThrough() { m_IsThrough = true; }

 private:
  CameraState& m_State;
  CameraState m_Earlier;
  bool m_IsThrough = false;
};

}  // namespace CommonInterfaces
