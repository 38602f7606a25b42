// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What semaphores and events are made of: kernel_object_posix.cpp and kernel_object_windows.cpp. A handle
// belongs to who made or opened it and may be used by any thread until it is closed.
#pragma once

#include <new>

#include "common_interfaces/thread.h"

namespace thread {

enum class ObjectKind : unsigned { kSemaphore = 1, kAutomaticEvent, kManualEvent };
enum class Creation { kDone, kExists, kFailed };
enum class WaitEnd { kAcquired, kTimedOut, kFailed };

inline constexpr unsigned kMaximumCount = 0x7FFFFFFF;

// A new object with that count, at most kMaximumCount; an event that is set has 1. A name of null is none.
// This and OpenObject throw std::bad_alloc, and leave nothing behind, when memory runs out.
// kExists where an object of like kind has the name: semaphores are alike, and so are events.
Creation MakeObject(ObjectKind kind, unsigned count, const char* name, void*& handle);

// An existing object of that name and kind, of whichever event; null when there is none.
void* OpenObject(bool semaphore, const char* name);

void CloseObject(void* handle);

// kInfinite: no time-out. An abandoned wait counts as acquired.
WaitEnd WaitForObject(void* handle, unsigned long milliseconds);

// Of a semaphore; false, and nothing changes, where the count would pass its maximum. `count` is above 0.
bool ReleaseObject(void* handle, unsigned count);

// Of an event.
bool SetObject(void* handle);
bool ResetObject(void* handle);

// The same with failures, want of memory among them, as exceptions. An empty name is no name.

inline const char* GivenName(const char* name) { return name && *name ? name : nullptr; }

// What `action` returns; an Error with the text `failed` where it runs out of memory.
template <class Error, class Action>
auto WithinMemory(const char* failed, Action action) {
  try {
    return action();
  } catch (const std::bad_alloc&) {
    throw Error(failed);
  }
}

template <class Error>
void* MakeOrThrow(ObjectKind kind, unsigned count, const char* name, const char* exists, const char* failed) {
  void* handle = nullptr;
  const Creation creation =
      WithinMemory<Error>(failed, [&] { return MakeObject(kind, count, GivenName(name), handle); });
  if (creation == Creation::kExists) throw Error(exists);
  if (creation == Creation::kFailed) throw Error(failed);
  return handle;
}

template <class Error>
void* OpenOrThrow(bool semaphore, const char* name, const char* failed) {
  void* const handle = WithinMemory<Error>(failed, [&] { return OpenObject(semaphore, GivenName(name)); });
  if (!handle) throw Error(failed);
  return handle;
}

template <class Error>
WaitResult WaitOrThrow(void* handle, unsigned long milliseconds, const char* failed) {
  const WaitEnd end = WaitForObject(handle, milliseconds);
  if (end == WaitEnd::kFailed) throw Error(failed);
  return end == WaitEnd::kAcquired ? kSignalled : kTimedOut;
}

}  // namespace thread
