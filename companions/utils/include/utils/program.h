// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "utils/api.h"

// The folder that the running program lies in; "" when the system does not tell. Any thread.
UTILS_API std::string GetProgramFolder();

// Whether somebody watches standard error on a terminal, where a line may be written over. Any thread.
UTILS_API bool IsErrorTerminal();

// One of the static objects of a program, made before all others. From then on an exception that ends the
// program where nothing can catch it, in a static initialiser or in a noexcept function of the standard
// library, does so for lack of memory: one line on standard error, "NAME: there is not enough memory for
// this", and exit status 1 instead of an abort. Any other exception ends the program as before.
class UTILS_API MemoryGuard {
 public:
  explicit MemoryGuard(const char* name) noexcept;  // of the program; a text that stays
};

// Says that a static object is made before those that say nothing, in whichever source they stand.
#define UTILS_MADE_FIRST __attribute__((init_priority(101)))

// What a main function does: returns what `run` returns. Writing to a pipe that nobody reads any more fails
// meanwhile like any other writing, instead of ending the program, and a standard stream that is closed stays
// so, instead of being the next file that is opened. When memory runs out (std::bad_alloc and
// std::length_error come out of `run`) it says so in the line of the MemoryGuard, which there must be, and
// returns 1; other exceptions pass. Once, before there is a second thread.
UTILS_API int RunProgram(int (*run)(int argumentCount, char** arguments), int argumentCount,
                         char** arguments);
