// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "thread/kernel_object.h"

namespace thread {

class NamedMemory;

// What a semaphore and an event have in common: a count, and threads that wait until they get one of it.
//
// Releasing hands over: as long as a thread waits, what is released goes to a waiter and never shows in the
// count, so that a thread that comes later cannot take it away, and N releases let N waiters go even when
// none of them has run in between. The kernel's own queue says whether a thread waits; a killed waiter leaves
// that queue by itself.
class WaitObject {
 public:
  static Creation Create(ObjectKind kind, unsigned count, const char* name, std::unique_ptr<WaitObject>& out);
  static std::unique_ptr<WaitObject> Open(bool semaphore, const char* name);
  ~WaitObject();

  // kInfinite and above: no time-out.
  WaitEnd Acquire(unsigned long milliseconds);
  bool Release(unsigned count);  // semaphore, by 1 or more; false past the maximum
  bool Set();                    // event
  bool Reset();                  // event

 private:
  struct State;
  WaitObject();
  bool Lock();
  void Unlock();
  bool TakeOne(bool woken);           // under the lock
  unsigned HandOver(unsigned count);  // under the lock

  std::unique_ptr<NamedMemory> m_Shared;  // of a named object
  std::unique_ptr<State> m_Private;       // of one without a name
  State* m_State = nullptr;
};

}  // namespace thread
