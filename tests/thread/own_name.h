// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <set>
#include <string>

namespace thread_tests {

// A name for an object that no other run of the tests uses at the same time. Valid for ever.
inline const char* Own(const std::string& name) {
  static const std::string run = std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
  static std::set<std::string> names;
  return names.insert("test " + run + " " + name).first->c_str();
}

}  // namespace thread_tests
