// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// After windows.h, which it needs.
#include <objbase.h>
#include <process.h>

#include <atomic>
#include <memory>

#include "common_interfaces/thread.h"
#include "thread/kernel_object.h"

namespace thread {
namespace {

constexpr char kNotCreated[] = "Can't create thread.";
constexpr int kSystemPriority[] = {THREAD_PRIORITY_LOWEST,  THREAD_PRIORITY_BELOW_NORMAL,
                                   THREAD_PRIORITY_NORMAL,  THREAD_PRIORITY_ABOVE_NORMAL,
                                   THREAD_PRIORITY_HIGHEST, THREAD_PRIORITY_TIME_CRITICAL};

// What the controlling thread and the new one share. A thread that is destroyed before it was started is
// resumed only to find that there is nothing to run: otherwise it would stay suspended for ever.
struct Handle {
  explicit Handle(Thread* thread) : object(thread) {}

  HANDLE system = nullptr;
  Thread* const object;
  std::atomic<bool> released{false};
};

using SharedHandle = std::shared_ptr<Handle>;
SharedHandle& HandleOf(void* handle) { return *static_cast<SharedHandle*>(handle); }

unsigned __stdcall Procedure(void* argument) noexcept {
  {
    const std::unique_ptr<SharedHandle> own(static_cast<SharedHandle*>(argument));
    if (!(*own)->released) (*own)->object->run();
  }
  _endthreadex(0);
  return 0;
}

// Null when the system has no room for another thread.
SharedHandle* MakeThread(Thread* object) {
  auto controlling = std::make_unique<SharedHandle>(std::make_shared<Handle>(object));
  auto running = std::make_unique<SharedHandle>(*controlling);
  const auto system = _beginthreadex(nullptr, 0, Procedure, running.get(), CREATE_SUSPENDED, nullptr);
  CoInitialize(nullptr);  // for the constructing thread, deliberately not for the new one
  if (system == 0) return nullptr;
  (*controlling)->system = reinterpret_cast<HANDLE>(system);
  running.release();  // Procedure frees it
  return controlling.release();
}

}  // namespace

Thread::Thread(Runnable* runnable) : m_Runnable(runnable) {
  m_Handle = WithinMemory<Error>(kNotCreated, [this] { return MakeThread(this); });
  if (!m_Handle) throw Error(kNotCreated);
}

Thread::~Thread() {
  const std::unique_ptr<SharedHandle> own(&HandleOf(m_Handle));
  if (!m_Started) {
    (*own)->released = true;
    ResumeThread((*own)->system);
  }
  CloseHandle((*own)->system);
}

void Thread::setPriority(Priority priority) {
  if (priority > kTimeCritical) throw Error("Illegal priority value.");
  if (!SetThreadPriority(HandleOf(m_Handle)->system, kSystemPriority[priority]))
    throw Error("Can't set priority.");
  m_Priority = priority;
}

void Thread::start() {
  if (m_Started) throw Error("Thread can be started only once.");
  m_Started = true;
  if (ResumeThread(HandleOf(m_Handle)->system) == static_cast<DWORD>(-1))
    throw Error("Thread can not be started.");
}

void Thread::waitForEnd() {
  const HANDLE system = HandleOf(m_Handle)->system;
  // A thread that waits for itself would wait for ever.
  const bool itself = GetThreadId(system) == GetCurrentThreadId();
  if (itself || WaitForObject(system, kInfinite) == WaitEnd::kFailed) {
    throw Error("Waiting for thread termination failed.");
  }
}

}  // namespace thread
