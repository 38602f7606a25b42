// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "thread/kernel_object_windows.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <cstdint>
#include <cstdio>

namespace thread {
namespace {

constexpr std::size_t kLongestName = 200;

// 64-bit FNV-1a (Fowler, Noll and Vo).
std::uint64_t Hash(const std::string& text, std::uint64_t h) {
  for (const char c : text) h = (h ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  return h;
}

}  // namespace

std::string SystemName(const char* name) {
  std::string out;
  for (; *name; ++name) {
    if (*name == '\\') {
      out += "%5C";
    } else if (*name == '%') {
      out += "%25";
    } else {
      out += *name;
    }
  }
  if (out.size() <= kLongestName) return out;
  char digest[40];
  std::snprintf(digest, sizeof digest, "%%%016llx%016llx",
                static_cast<unsigned long long>(Hash(out, 0xCBF29CE484222325u)),
                static_cast<unsigned long long>(Hash(out, 0x9AE16A3B2F90404Fu)));
  return out.substr(0, kLongestName) + digest;
}

WaitEnd WaitForObject(void* handle, unsigned long milliseconds) {
  switch (WaitForSingleObject(handle, milliseconds)) {
    case WAIT_OBJECT_0:
    case WAIT_ABANDONED:
      return WaitEnd::kAcquired;
    case WAIT_TIMEOUT:
      return WaitEnd::kTimedOut;
    default:
      return WaitEnd::kFailed;
  }
}

}  // namespace thread
