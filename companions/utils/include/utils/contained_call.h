// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The one place where the libraries catch exceptions: what a call throws becomes a value. Any thread.
#pragma once

#include <exception>
#include <new>
#include <stdexcept>

// How a call ended.
enum class CallEnd {
  kReturned,
  kNoMemory,  // std::bad_alloc, and std::length_error: more than a string or a vector may ever have
  kThrew,     // any other std::exception
};

// Calls `run()`. What kThrew was thrown for goes to `tell(const char* what)` first, which must not throw. An
// exception of another kind ends the program. Where exceptions are compiled out nothing is caught, for
// nothing is thrown: the C++ runtime then ends the program when memory runs out.
template <class Run, class Tell>
inline CallEnd RunContained(Run run, Tell tell) noexcept {
#if defined(__cpp_exceptions)
  try {
    run();
  } catch (const std::bad_alloc&) {
    return CallEnd::kNoMemory;
  } catch (const std::length_error&) {
    return CallEnd::kNoMemory;
  } catch (const std::exception& thrown) {
    tell(thrown.what());
    return CallEnd::kThrew;
  }
#else
  static_cast<void>(tell);
  run();
#endif
  return CallEnd::kReturned;
}

// Whether `run()` returned.
template <class Run>
inline bool RunsThrough(Run run) noexcept {
  return RunContained(run, [](const char*) {}) == CallEnd::kReturned;
}
