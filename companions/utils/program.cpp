// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/program.h"

#include <cstdio>
#include <new>
#include <stdexcept>

#include "companions/utils/program_platform.h"

int RunProgram(const char* name, int (*run)(int argumentCount, char** arguments), int argumentCount,
               char** arguments) {
  utils_internal::PrepareStandardStreams();
  try {
    return run(argumentCount, arguments);
  } catch (const std::bad_alloc&) {
  } catch (const std::length_error&) {  // more than a string or a vector may ever have
  }
  std::fprintf(stderr, "%s: there is not enough memory for this\n", name);
  return 1;
}
