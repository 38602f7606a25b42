// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "utils/api.h"

// The folder that the running program lies in; "" when the system does not tell. Any thread.
UTILS_API std::string GetProgramFolder();

// What a main function does: returns what `run` returns. Writing to a pipe that nobody reads any more fails
// meanwhile like any other writing, instead of ending the program, and a standard stream that is closed stays
// so, instead of being the next file that is opened. When memory runs out (std::bad_alloc and
// std::length_error come out of `run`) it says so in one line on standard error, "NAME: there is not enough
// memory for this", and returns 1; other exceptions pass. Once, before there is a second thread.
UTILS_API int RunProgram(const char* name, int (*run)(int argumentCount, char** arguments), int argumentCount,
                         char** arguments);
