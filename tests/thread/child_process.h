// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

// A second process, started with its standard output read by this one.
class ChildProcess {
 public:
  explicit ChildProcess(const std::vector<std::string>& arguments);
  ~ChildProcess();  // kills the process if it still runs
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  std::string ReadLine();  // the next line without its end; "" at the end
  void Kill();             // at once, without a chance to clean up; returns when the process is gone
  int Wait();              // its exit status

 private:
  struct State;
  std::unique_ptr<State> m_State;
};
