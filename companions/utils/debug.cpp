// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/debug.h"

#include <cstdarg>
#include <cstdio>
#include <string>

#include "companions/utils/debug_platform.h"

namespace {

// Both are initialised at compile time, so that static initialisers of other libraries can print. Changed
// only by SetDebugSink, while no other thread prints.
DebugSink s_Sink = nullptr;
void* s_Context = nullptr;

void HandOver(const char* text) {
  if (s_Sink) {
    s_Sink(text, s_Context);
  } else {
    utils_internal::WriteDebugText(text);
  }
}

}  // namespace

void PrintDebugString(const char* format, ...) {
  if (!format) return;
  char line[512];
  std::va_list arguments;
  va_start(arguments, format);
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(line, sizeof line, format, arguments);
  va_end(arguments);
  if (length < 0) {
    HandOver(format);
  } else if (static_cast<unsigned>(length) < sizeof line) {
    HandOver(line);
  } else {
    std::string text(static_cast<unsigned>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    HandOver(text.c_str());
  }
  va_end(again);
}

void SetDebugSink(DebugSink sink, void* context) {
  s_Sink = sink;
  s_Context = context;
}
