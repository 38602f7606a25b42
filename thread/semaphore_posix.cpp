// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/thread.h"
#include "thread/wait_object_posix.h"

namespace thread {
namespace {

WaitObject* Object(void* handle) { return static_cast<WaitObject*>(handle); }

}  // namespace

Semaphore::Semaphore(unsigned long initialCount, const char* name) : m_Name(name) {
  std::unique_ptr<WaitObject> object;
  auto result = WaitObject::Creation::kFailed;
  if (initialCount <= 0x7FFFFFFFul) {
    result =
        WaitObject::Create(WaitObject::Kind::kSemaphore, static_cast<unsigned>(initialCount), name, object);
  }
  if (result == WaitObject::Creation::kExists) throw Error("Semaphore already exists.");
  if (result == WaitObject::Creation::kFailed) throw Error("Can't create semaphore.");
  m_Handle = object.release();
}

Semaphore::Semaphore(const char* name) : m_Name(name) {
  m_Handle = WaitObject::Open(true, name).release();
  if (!m_Handle) throw Error("Can't open existing semaphore.");
}

Semaphore::~Semaphore() { delete Object(m_Handle); }

void Semaphore::lock() { lock(kInfinite); }

WaitResult Semaphore::lock(unsigned long milliseconds) {
  const auto result = Object(m_Handle)->Acquire(milliseconds);
  if (result == WaitObject::Wait::kFailed) throw Error("Lock of the semaphore failed.");
  return result == WaitObject::Wait::kAcquired ? kSignalled : kTimedOut;
}

void Semaphore::unlock(long count) {
  const bool inRange = count > 0 && count <= 0x7FFFFFFFl;
  if (!inRange || !Object(m_Handle)->Release(static_cast<unsigned>(count)))
    throw Error("Can't unlock semaphore.");
}

}  // namespace thread
