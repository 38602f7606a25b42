// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "common_interfaces/thread.h"
#include "thread/kernel_object_windows.h"

namespace thread {

SyncEvent::SyncEvent(bool initiallySet, bool manualReset, const char* name) : m_Name(name) {
  SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  const std::string systemName = name ? SystemName(name) : std::string();
  m_Handle = CreateEventA(&attributes, manualReset, initiallySet, name ? systemName.c_str() : nullptr);
  if (!m_Handle) throw Error("Can't create event.");
  if (GetLastError() == ERROR_ALREADY_EXISTS) {
    CloseHandle(m_Handle);
    throw Error("Event already exists.");
  }
}

SyncEvent::SyncEvent(const char* name) : m_Name(name) {
  if (name) m_Handle = OpenEventA(EVENT_ALL_ACCESS, TRUE, SystemName(name).c_str());
  if (!m_Handle) throw Error("Can't open existing event.");
}

SyncEvent::~SyncEvent() { CloseHandle(m_Handle); }

void SyncEvent::set() {
  if (!SetEvent(m_Handle)) throw Error("Can't set event.");
}

void SyncEvent::reset() {
  if (!ResetEvent(m_Handle)) throw Error("Can't reset event.");
}

void SyncEvent::wait() { wait(kInfinite); }

WaitResult SyncEvent::wait(unsigned long milliseconds) {
  const WaitEnd end = WaitForObject(m_Handle, milliseconds);
  if (end == WaitEnd::kFailed) throw Error("Wait failed.");
  return end == WaitEnd::kAcquired ? kSignalled : kTimedOut;
}

}  // namespace thread
