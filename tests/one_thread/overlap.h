// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "support/breach_capture.h"
#include "utils/debug.h"
#include "utils/one_thread.h"

namespace one_thread_tests {

// Runs `second` on another thread while `first` is in the middle of its work: when it prints its first
// diagnostic line. What the breaches between them printed, in that order.
class Overlap {
 public:
  using Action = std::function<void()>;

  Overlap(const Action& first, Action second) : m_Second(std::move(second)) {
    SetBreachHook([] {});
    SetDebugSink([](const char* text, void* self) { static_cast<Overlap*>(self)->Take(text); }, this);
    first();
    SetDebugSink(nullptr, nullptr);
    SetBreachHook(nullptr);
  }
  Overlap(const Overlap&) = delete;
  Overlap& operator=(const Overlap&) = delete;

  // Whether `second` ran: `first` printed a line.
  bool HasHappened() const { return m_Happened; }
  const std::vector<std::string>& GetBreaches() const { return m_Breaches; }
  // The operations of the only breach, "Class: first, second"; "" when there is none or more than one.
  std::string GetOperations() const {
    if (m_Breaches.size() != 1) return "";
    const std::string& line = m_Breaches[0];
    const std::size_t is = line.find(" is in "), comma = line.find(", thread ", is),
                      calls = line.find(" calls ", is);
    return line.substr(0, line.find(' ')) + ": " + line.substr(is + 7, comma - is - 7) + ", " +
           line.substr(calls + 7, line.size() - calls - 8);
  }

 private:
  void Take(const char* text) {
    const std::string line(text);
    if (line.find("two threads at once") != line.npos) m_Breaches.push_back(line);
    if (m_Happened) return;
    m_Happened = true;
    std::thread(m_Second).join();
  }

  Action m_Second;
  bool m_Happened = false;
  std::vector<std::string> m_Breaches;
};

// What `action`, on another thread, was found to call while this thread is in a `Use` of the object; "" when
// it was not found.
template <class Use>
std::string CalledWhile(const void* object, const std::function<void()>& action) {
  const test_support::BreachCapture breaches;
  const Use held(object, "Held", "held");
  std::thread(action).join();
  if (breaches.lines.empty()) return "";
  const std::string& line = breaches.lines[0];
  const std::size_t calls = line.find(" calls ") + 7;
  return line.substr(calls, line.size() - calls - 1);
}

using Changing = CheckedUse<true>;
using Reading = CheckedUse<false>;

struct Operation {
  const char* name;
  std::function<void()> call;
};

}  // namespace one_thread_tests
