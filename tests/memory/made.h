// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "memory/every_allocation.h"

namespace memory_tests {

// Each allocation of `make()` fails once: the object is then not made, and what it had made is freed.
template <class T, class Make, class State>
void FailMaking(Make make, State state) {
  FailEveryAllocation([] { return std::make_unique<std::unique_ptr<T>>(); },
                      [&](std::unique_ptr<T>& object) { object = make(); },
                      [&](std::unique_ptr<T>& object) {
                        return object ? std::string("made ") + state(*object) : std::string();
                      });
}

}  // namespace memory_tests
