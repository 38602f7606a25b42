// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/thread.h"
#include "thread/kernel_object.h"

namespace thread {
namespace {

constexpr char kNotCreated[] = "Can't create semaphore.";

// What no semaphore can hold is refused here, before it is cut to the kernel's width.
unsigned CheckCount(unsigned long count) {
  if (count > kMaximumCount) throw Semaphore::Error(kNotCreated);
  return static_cast<unsigned>(count);
}

}  // namespace

Semaphore::Semaphore(unsigned long initialCount, const char* name)
    : m_Handle(MakeOrThrow<Error>(ObjectKind::kSemaphore, CheckCount(initialCount), name,
                                  "Semaphore already exists.", kNotCreated)),
      m_Name(name) {}

Semaphore::Semaphore(const char* name)
    : m_Handle(OpenOrThrow<Error>(true, name, "Can't open existing semaphore.")), m_Name(name) {}

Semaphore::~Semaphore() { CloseObject(m_Handle); }

void Semaphore::lock() { lock(kInfinite); }

WaitResult Semaphore::lock(unsigned long milliseconds) {
  return WaitOrThrow<Error>(m_Handle, milliseconds, "Lock of the semaphore failed.");
}

void Semaphore::unlock(long count) {
  const bool inRange = count > 0 && static_cast<unsigned long>(count) <= kMaximumCount;
  if (!inRange || !ReleaseObject(m_Handle, static_cast<unsigned>(count)))
    throw Error("Can't unlock semaphore.");
}

}  // namespace thread
