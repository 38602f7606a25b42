// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The diagnostic sink: every loader and setter of the application reports a failure as one line through it.
#pragma once

#include "utils/api.h"

#if defined(__MINGW32__) && !defined(__clang__)
// GCC's "printf" there means the conversions of the oldest C library of the system, not those of the C++
// library.
#define UTILS_PRINTF_FORMAT(formatIndex, firstArgument) \
  __attribute__((format(gnu_printf, formatIndex, firstArgument)))
#elif defined(__GNUC__)
#define UTILS_PRINTF_FORMAT(formatIndex, firstArgument) \
  __attribute__((format(printf, formatIndex, firstArgument)))
#else
#define UTILS_PRINTF_FORMAT(formatIndex, firstArgument)
#endif

// Formats the whole text first and then hands it to the sink in one call, so that lines of two threads never
// mix inside a line. By convention a text is one line and ends in "\n". Cannot fail: a text that cannot be
// formatted is handed over as the format itself. Any thread may call it.
UTILS_API void PrintDebugString(const char* format, ...) UTILS_PRINTF_FORMAT(1, 2);

// Receives one formatted text; `text` is valid during the call only. It must not throw.
using DebugSink = void (*)(const char* text, void* context);

// Installs the process-wide sink; `context` is passed back on every call and stays the caller's. A null sink
// restores the default, which writes to standard error. Call it while no other thread prints.
UTILS_API void SetDebugSink(DebugSink sink, void* context);
