// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <pthread.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>
#include <memory>
#include <new>

#include "common_interfaces/thread.h"

namespace thread {
namespace {

constexpr int kNiceOfPriority[] = {10, 5, 0, -5, -10, -20};

// What the controlling thread and the new one share; whoever lets go of it last frees it. The new thread
// stands at the gate until it is started or released, which is how a thread can exist suspended.
struct Handle {
  enum Gate { kClosed, kStarted, kReleased };

  pthread_t id{};
  bool joined = false;  // the controlling thread's alone

  pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
  pthread_cond_t changed = PTHREAD_COND_INITIALIZER;
  Gate gate = kClosed;
  id_t systemId = 0;  // 0 until the thread has told it
  Thread* object = nullptr;

  void Open(Gate to) {
    pthread_mutex_lock(&mutex);
    gate = to;
    pthread_cond_broadcast(&changed);
    pthread_mutex_unlock(&mutex);
  }
};

using SharedHandle = std::shared_ptr<Handle>;
SharedHandle& HandleOf(void* handle) { return *static_cast<SharedHandle*>(handle); }

bool PassGate(Handle& handle) {
  pthread_mutex_lock(&handle.mutex);
  handle.systemId = static_cast<id_t>(syscall(SYS_gettid));
  pthread_cond_broadcast(&handle.changed);
  while (handle.gate == Handle::kClosed) pthread_cond_wait(&handle.changed, &handle.mutex);
  const bool started = handle.gate == Handle::kStarted;
  pthread_mutex_unlock(&handle.mutex);
  return started;
}

id_t WaitForSystemId(Handle& handle) {
  pthread_mutex_lock(&handle.mutex);
  while (handle.systemId == 0) pthread_cond_wait(&handle.changed, &handle.mutex);
  const id_t systemId = handle.systemId;
  pthread_mutex_unlock(&handle.mutex);
  return systemId;
}

void* Procedure(void* argument) noexcept {
  const std::unique_ptr<SharedHandle> own(static_cast<SharedHandle*>(argument));
  if (PassGate(**own)) (*own)->object->run();
  return nullptr;
}

}  // namespace

Thread::Thread(Runnable* runnable) : m_Runnable(runnable) {
  auto handle = std::make_shared<Handle>();
  handle->object = this;
  auto controlling = std::make_unique<SharedHandle>(handle);
  auto running = std::make_unique<SharedHandle>(handle);
  if (pthread_create(&handle->id, nullptr, Procedure, running.get()) != 0)
    throw Error("Can't create thread.");
  running.release();  // Procedure frees it
  m_Handle = controlling.release();
}

Thread::~Thread() {
  const std::unique_ptr<SharedHandle> own(&HandleOf(m_Handle));
  if (!m_Started) (*own)->Open(Handle::kReleased);
  if (!(*own)->joined) pthread_detach((*own)->id);
}

void Thread::setPriority(Priority priority) {
  if (priority > kTimeCritical) throw Error("Illegal priority value.");
  Handle& handle = *HandleOf(m_Handle);
  const id_t systemId = WaitForSystemId(handle);
  // The system gives the number of a thread that has been waited for to another one.
  if (handle.joined || setpriority(PRIO_PROCESS, systemId, kNiceOfPriority[priority]) != 0)
    throw Error("Can't set priority.");
  m_Priority = priority;
}

void Thread::start() {
  if (m_Started) throw Error("Thread can be started only once.");
  m_Started = true;
  HandleOf(m_Handle)->Open(Handle::kStarted);
}

void Thread::waitForEnd() {
  Handle& handle = *HandleOf(m_Handle);
  if (handle.joined) return;
  // A thread that waits for itself would wait for ever.
  const bool itself = pthread_equal(handle.id, pthread_self()) != 0;
  if (itself || pthread_join(handle.id, nullptr) != 0) throw Error("Waiting for thread termination failed.");
  handle.joined = true;
}

}  // namespace thread
