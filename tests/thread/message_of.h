// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace thread_tests {

// The text of the Error that `action` throws; "" when it throws none.
template <class Error, class Action>
std::string MessageOf(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.what();
  }
  return "";
}

}  // namespace thread_tests
