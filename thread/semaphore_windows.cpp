// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "common_interfaces/thread.h"
#include "thread/kernel_object_windows.h"

namespace thread {
namespace {

constexpr unsigned long kMaximumCount = 0x7FFFFFFFul;
SECURITY_ATTRIBUTES Inheritable() { return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE}; }

}  // namespace

Semaphore::Semaphore(unsigned long initialCount, const char* name) : m_Name(name) {
  SECURITY_ATTRIBUTES attributes = Inheritable();
  const std::string systemName = name ? SystemName(name) : std::string();
  if (initialCount <= kMaximumCount) {
    m_Handle = CreateSemaphoreA(&attributes, static_cast<LONG>(initialCount),
                                static_cast<LONG>(kMaximumCount), name ? systemName.c_str() : nullptr);
  }
  if (!m_Handle) throw Error("Can't create semaphore.");
  if (GetLastError() == ERROR_ALREADY_EXISTS) {
    CloseHandle(m_Handle);
    throw Error("Semaphore already exists.");
  }
}

Semaphore::Semaphore(const char* name) : m_Name(name) {
  if (name) m_Handle = OpenSemaphoreA(SEMAPHORE_ALL_ACCESS, TRUE, SystemName(name).c_str());
  if (!m_Handle) throw Error("Can't open existing semaphore.");
}

Semaphore::~Semaphore() { CloseHandle(m_Handle); }

void Semaphore::lock() { lock(kInfinite); }

WaitResult Semaphore::lock(unsigned long milliseconds) {
  const WaitEnd end = WaitForObject(m_Handle, milliseconds);
  if (end == WaitEnd::kFailed) throw Error("Lock of the semaphore failed.");
  return end == WaitEnd::kAcquired ? kSignalled : kTimedOut;
}

void Semaphore::unlock(long count) {
  if (count <= 0 || !ReleaseSemaphore(m_Handle, count, nullptr)) throw Error("Can't unlock semaphore.");
}

}  // namespace thread
