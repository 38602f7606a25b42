// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "thread/wait_object_posix.h"

#include <linux/futex.h>
#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <climits>
#include <ctime>
#include <new>

#include "thread/named_memory_linux.h"
#include "thread/timespec_posix.h"

namespace thread {

// Lies in memory that processes share, so it holds no pointer. The kind comes first: it is what a process of
// another word size can read.
struct WaitObject::State {
  ObjectKind kind;
  pthread_mutex_t mutex;        // robust: a holder that is killed does not keep it
  unsigned count;               // free slots of a semaphore; 1: the event is set
  unsigned handed;              // what was handed to sleeping threads that have not run since
  std::atomic<unsigned> turns;  // what waiters sleep on; moves with every release
};
static_assert(sizeof(ObjectKind) == NamedMemory::kCommonSize);

namespace {

constexpr unsigned long kLookAgainMilliseconds = 20;

long Futex(std::atomic<unsigned>& word, int operation, unsigned value, const timespec* deadline) {
  static_assert(sizeof word == 4);
  return syscall(SYS_futex, &word, operation, value, deadline, nullptr, FUTEX_BITSET_MATCH_ANY);
}

// How many threads that slept on `word` were let go, at most `count`.
unsigned Wake(std::atomic<unsigned>& word, unsigned count) {
  const long woken = Futex(word, FUTEX_WAKE, count, nullptr);
  return woken > 0 ? static_cast<unsigned>(woken) : 0;
}

// The steady clock is the system's CLOCK_MONOTONIC.
timespec DeadlineAfter(unsigned long milliseconds) {
  return ToTimespec(std::chrono::steady_clock::now().time_since_epoch() +
                    std::chrono::milliseconds(milliseconds));
}

bool InitMutex(pthread_mutex_t* mutex) {
  pthread_mutexattr_t attributes;
  if (pthread_mutexattr_init(&attributes) != 0) return false;
  const bool done = pthread_mutexattr_setpshared(&attributes, PTHREAD_PROCESS_SHARED) == 0 &&
                    pthread_mutexattr_setrobust(&attributes, PTHREAD_MUTEX_ROBUST) == 0 &&
                    pthread_mutex_init(mutex, &attributes) == 0;
  pthread_mutexattr_destroy(&attributes);
  return done;
}

}  // namespace

WaitObject::WaitObject() = default;

WaitObject::~WaitObject() {
  if (m_Private) pthread_mutex_destroy(&m_Private->mutex);
}

Creation WaitObject::Create(ObjectKind kind, unsigned count, const char* name,
                            std::unique_ptr<WaitObject>& out) {
  if (count > kMaximumCount) return Creation::kFailed;
  const auto init = [kind, count](void* memory) {
    auto* state = new (memory) State{};
    state->kind = kind;
    state->count = count;
    return InitMutex(&state->mutex);
  };
  auto made = std::unique_ptr<WaitObject>(new WaitObject);
  if (!name) {
    made->m_Private = std::make_unique<State>();
    if (!init(made->m_Private.get())) return Creation::kFailed;
    made->m_State = made->m_Private.get();
  } else {
    const auto result = NamedMemory::Create(name, sizeof(State), made->m_Shared, init);
    if (result == NamedMemory::Result::kFailed) return Creation::kFailed;
    made->m_State = static_cast<State*>(made->m_Shared->Data());
    if (result == NamedMemory::Result::kExists) {
      const bool alike = (made->m_State->kind == ObjectKind::kSemaphore) == (kind == ObjectKind::kSemaphore);
      return alike ? Creation::kExists : Creation::kFailed;
    }
  }
  out = std::move(made);
  return Creation::kDone;
}

std::unique_ptr<WaitObject> WaitObject::Open(bool semaphore, const char* name) {
  if (!name) return nullptr;
  auto opened = std::unique_ptr<WaitObject>(new WaitObject);
  opened->m_Shared = NamedMemory::Open(name, sizeof(State));
  if (!opened->m_Shared) return nullptr;
  opened->m_State = static_cast<State*>(opened->m_Shared->Data());
  return (opened->m_State->kind == ObjectKind::kSemaphore) == semaphore ? std::move(opened) : nullptr;
}

// Every step under the lock leaves the state whole, so a lock whose holder was killed is simply taken over.
// A thread that the lock has woken and that is killed before it takes it takes the wake-up along, and the
// others sleep for a lock that is free. So nobody sleeps for long without looking again.
bool WaitObject::Lock() {
  int result = pthread_mutex_trylock(&m_State->mutex);
  while (result == EBUSY || result == ETIMEDOUT) {
    const timespec deadline = DeadlineAfter(kLookAgainMilliseconds);
    result = pthread_mutex_clocklock(&m_State->mutex, CLOCK_MONOTONIC, &deadline);
  }
  if (result == EOWNERDEAD) return pthread_mutex_consistent(&m_State->mutex) == 0;
  return result == 0;
}

void WaitObject::Unlock() { pthread_mutex_unlock(&m_State->mutex); }

// Takes one of the count, or, after having been woken, of what was handed over; false when there is none.
bool WaitObject::TakeOne(bool woken) {
  if (woken && m_State->handed > 0) {
    --m_State->handed;
    return true;
  }
  if (m_State->count == 0) return false;
  if (m_State->kind != ObjectKind::kManualEvent) --m_State->count;
  return true;
}

WaitEnd WaitObject::Acquire(unsigned long milliseconds) {
  const bool forever = milliseconds >= kInfinite;
  const timespec deadline = forever ? timespec{} : DeadlineAfter(milliseconds);
  for (bool woken = false;;) {
    if (!Lock()) return WaitEnd::kFailed;
    const bool taken = TakeOne(woken);
    const unsigned turn = m_State->turns.load();
    Unlock();
    if (taken) return WaitEnd::kAcquired;
    // Sleeps only while nothing was released since the look above.
    woken = Futex(m_State->turns, FUTEX_WAIT_BITSET, turn, forever ? nullptr : &deadline) == 0;
    if (woken) continue;
    if (errno == ETIMEDOUT) return WaitEnd::kTimedOut;
    if (errno != EAGAIN && errno != EINTR) return WaitEnd::kFailed;
  }
}

// Hands over as much as there are sleeping threads; returns how much. The turn moves first: a thread that is
// about to sleep then looks again instead, and what it looks at it can only see once the lock is free.
unsigned WaitObject::HandOver(unsigned count) {
  ++m_State->turns;
  const unsigned woken = Wake(m_State->turns, count);
  m_State->handed += woken;
  return woken;
}

bool WaitObject::Release(unsigned count) {
  if (!Lock()) return false;
  const bool fits = count <= kMaximumCount - m_State->count;
  if (fits) m_State->count += count - HandOver(count);
  Unlock();
  return fits;
}

bool WaitObject::Set() {
  if (!Lock()) return false;
  const bool manual = m_State->kind == ObjectKind::kManualEvent;
  const unsigned woken = HandOver(manual ? INT_MAX : 1u);
  if (manual || woken == 0) m_State->count = 1;
  Unlock();
  return true;
}

bool WaitObject::Reset() {
  if (!Lock()) return false;
  m_State->count = 0;
  Unlock();
  return true;
}

}  // namespace thread
