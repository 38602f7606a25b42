// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <string>

#include "thread/kernel_object.h"
#include "thread/name_digest.h"

namespace thread {
namespace {

constexpr std::size_t kLongestName = 200;

// A name as the system takes it: it allows neither a backslash nor more than 259 characters. Two names never
// become one. Names without a backslash, '%' and great length stay as they are, so that other modules find
// the object too.
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
  return out.substr(0, kLongestName) + '%' + MakeNameDigest(out);
}

HANDLE MakeSystemObject(ObjectKind kind, unsigned count, const char* name) {
  SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  if (kind == ObjectKind::kSemaphore) {
    return CreateSemaphoreA(&inheritable, static_cast<LONG>(count), static_cast<LONG>(kMaximumCount), name);
  }
  return CreateEventA(&inheritable, kind == ObjectKind::kManualEvent, count != 0, name);
}

}  // namespace

Creation MakeObject(ObjectKind kind, unsigned count, const char* name, void*& handle) {
  const std::string systemName = name ? SystemName(name) : std::string();
  const HANDLE made = MakeSystemObject(kind, count, name ? systemName.c_str() : nullptr);
  const bool exists = GetLastError() == ERROR_ALREADY_EXISTS;
  if (!made) return Creation::kFailed;
  if (exists) {
    CloseHandle(made);
    return Creation::kExists;
  }
  handle = made;
  return Creation::kDone;
}

void* OpenObject(bool semaphore, const char* name) {
  if (!name) return nullptr;
  const std::string systemName = SystemName(name);
  return semaphore ? OpenSemaphoreA(SEMAPHORE_ALL_ACCESS, TRUE, systemName.c_str())
                   : OpenEventA(EVENT_ALL_ACCESS, TRUE, systemName.c_str());
}

void CloseObject(void* handle) { CloseHandle(handle); }

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

bool ReleaseObject(void* handle, unsigned count) {
  return ReleaseSemaphore(handle, static_cast<LONG>(count), nullptr) != 0;
}

bool SetObject(void* handle) { return SetEvent(handle) != 0; }

bool ResetObject(void* handle) { return ResetEvent(handle) != 0; }

}  // namespace thread
