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
#include "thread/kernel_object.h"

namespace thread {
namespace {

constexpr char kNotCreated[] = "Can't create thread.";
constexpr int kNiceOfPriority[] = {10, 5, 0, -5, -10, -20};

// What the controlling thread and the new one share; whoever lets go of it last frees it. The new thread
// stands at the gate until it is started or released, which is how a thread can exist suspended.
struct Handle {
  enum Gate { kClosed, kStarted, kReleased };

  explicit Handle(Thread* thread) : object(thread) {}

  const pid_t process = getpid();
  pthread_t id{};
  bool joined = false;  // the controlling thread's alone

  pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
  pthread_cond_t changed = PTHREAD_COND_INITIALIZER;
  Gate gate = kClosed;
  id_t systemId = 0;  // 0 until the thread has told it
  bool ended = false;
  Thread* const object;

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

void MarkEnd(Handle& handle) {
  pthread_mutex_lock(&handle.mutex);
  handle.ended = true;
  pthread_mutex_unlock(&handle.mutex);
}

// The system gives the number of a thread that has ended to another one, of any process. So the thread is
// kept from ending, at MarkEnd, until the call has returned; a forked child cannot keep its parent's.
bool SetNice(Handle& handle, int nice) {
  if (getpid() != handle.process) return false;
  pthread_mutex_lock(&handle.mutex);
  while (handle.systemId == 0) pthread_cond_wait(&handle.changed, &handle.mutex);
  const bool done = !handle.ended && setpriority(PRIO_PROCESS, handle.systemId, nice) == 0;
  pthread_mutex_unlock(&handle.mutex);
  return done;
}

void* Procedure(void* argument) noexcept {
  const std::unique_ptr<SharedHandle> own(static_cast<SharedHandle*>(argument));
  if (PassGate(**own)) (*own)->object->run();
  MarkEnd(**own);
  return nullptr;
}

// Null when the system has no room for another thread.
SharedHandle* MakeThread(Thread* object) {
  auto controlling = std::make_unique<SharedHandle>(std::make_shared<Handle>(object));
  auto running = std::make_unique<SharedHandle>(*controlling);
  if (pthread_create(&(*controlling)->id, nullptr, Procedure, running.get()) != 0) return nullptr;
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
  if (!m_Started) (*own)->Open(Handle::kReleased);
  if (!(*own)->joined) pthread_detach((*own)->id);
}

void Thread::setPriority(Priority priority) {
  if (priority > kTimeCritical) throw Error("Illegal priority value.");
  if (!SetNice(*HandleOf(m_Handle), kNiceOfPriority[priority])) throw Error("Can't set priority.");
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
