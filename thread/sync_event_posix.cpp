// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/thread.h"
#include "thread/wait_object_posix.h"

namespace thread {
namespace {

WaitObject* Object(void* handle) { return static_cast<WaitObject*>(handle); }

}  // namespace

SyncEvent::SyncEvent(bool initiallySet, bool manualReset, const char* name) : m_Name(name) {
  std::unique_ptr<WaitObject> object;
  const auto kind = manualReset ? WaitObject::Kind::kManualEvent : WaitObject::Kind::kAutomaticEvent;
  const auto result = WaitObject::Create(kind, initiallySet ? 1 : 0, name, object);
  if (result == WaitObject::Creation::kExists) throw Error("Event already exists.");
  if (result == WaitObject::Creation::kFailed) throw Error("Can't create event.");
  m_Handle = object.release();
}

SyncEvent::SyncEvent(const char* name) : m_Name(name) {
  m_Handle = WaitObject::Open(false, name).release();
  if (!m_Handle) throw Error("Can't open existing event.");
}

SyncEvent::~SyncEvent() { delete Object(m_Handle); }

void SyncEvent::set() {
  if (!Object(m_Handle)->Set()) throw Error("Can't set event.");
}

void SyncEvent::reset() {
  if (!Object(m_Handle)->Reset()) throw Error("Can't reset event.");
}

void SyncEvent::wait() { wait(kInfinite); }

WaitResult SyncEvent::wait(unsigned long milliseconds) {
  const auto result = Object(m_Handle)->Acquire(milliseconds);
  if (result == WaitObject::Wait::kFailed) throw Error("Wait failed.");
  return result == WaitObject::Wait::kAcquired ? kSignalled : kTimedOut;
}

}  // namespace thread
