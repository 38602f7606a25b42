// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/program.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <stdexcept>

#include "companions/utils/program_platform.h"

namespace {

const char* s_Name = "";                                // set by the guard, before there is a second thread
std::terminate_handler s_TerminateOtherwise = nullptr;  // likewise

void SayThatMemoryRanOut() { std::fprintf(stderr, "%s: there is not enough memory for this\n", s_Name); }

// An exception that a noexcept function has caught and thrown again has no name any more. Those of the
// standard library that do so, for one when they read folders, make objects meanwhile.
bool HasMemoryRunOut() {
  const std::exception_ptr exception = std::current_exception();
  if (!exception) return std::uncaught_exceptions() > 0;
  try {
    std::rethrow_exception(exception);
  } catch (const std::bad_alloc&) {
    return true;
  } catch (const std::length_error&) {  // more than a string or a vector may ever have
    return true;
  } catch (...) {
    return false;
  }
}

[[noreturn]] void EndProgram() {
  if (HasMemoryRunOut()) {
    SayThatMemoryRanOut();
    std::_Exit(1);
  }
  s_TerminateOtherwise();
  std::abort();
}

}  // namespace

MemoryGuard::MemoryGuard(const char* name) noexcept {
  s_Name = name;
  s_TerminateOtherwise = std::set_terminate(EndProgram);
}

int RunProgram(int (*run)(int argumentCount, char** arguments), int argumentCount, char** arguments) {
  utils_internal::PrepareStandardStreams();
  try {
    return run(argumentCount, arguments);
  } catch (const std::bad_alloc&) {
  } catch (const std::length_error&) {
  }
  SayThatMemoryRanOut();
  return 1;
}
