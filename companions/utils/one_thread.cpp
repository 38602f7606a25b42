// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/one_thread.h"

#include <atomic>
#include <cstdlib>
#include <thread>

#include "companions/utils/program_platform.h"
#include "utils/debug.h"

namespace {

// Whoever began first is in the list; the line is printed once the lock is free.
struct Breach {
  unsigned long thread;
  const char* operation;
};

BreachHook s_Hook = nullptr;  // changed only by SetBreachHook, while no object is in use

}  // namespace

// The uses in progress, the latest first: they stand in the frames of the operations themselves, so that
// noticing them allocates nothing. Few at a time, one for each nested call.
struct UsesInProgress {
  // Both are initialised at compile time, which a mutex is not everywhere: static initialisers of other
  // libraries use objects too.
  static std::atomic_flag s_Locked;
  static ObjectUse* s_First;  // under the lock

  // Held for a few comparisons.
  struct Lock {
    Lock() {
      while (s_Locked.test_and_set(std::memory_order_acquire)) std::this_thread::yield();
    }
    ~Lock() { s_Locked.clear(std::memory_order_release); }
  };

  // Of the uses that `use` must not overlap the one that began first; its thread is 0 when there is none.
  static Breach Enter(ObjectUse& use) {
    const Lock lock;
    const Breach breach = FindBreach(use);
    use.m_Next = s_First;
    s_First = &use;
    return breach;
  }

  static void Leave(const ObjectUse& use) {
    const Lock lock;
    ObjectUse** place = &s_First;
    while (*place != &use) place = &(*place)->m_Next;
    *place = use.m_Next;
  }

  static Breach FindBreach(const ObjectUse& use) {
    Breach breach{};
    for (const ObjectUse* other = s_First; other; other = other->m_Next) {
      if (other->m_Object != use.m_Object) continue;
      const bool isOwn = other->m_Thread == use.m_Thread;
      // An operation that this one is a part of has been looked at.
      if (isOwn && (other->m_Changes || !use.m_Changes)) return {};
      if (!isOwn && (other->m_Changes || use.m_Changes)) breach = {other->m_Thread, other->m_Operation};
    }
    return breach;
  }
};

constinit std::atomic_flag UsesInProgress::s_Locked;
constinit ObjectUse* UsesInProgress::s_First = nullptr;

ObjectUse::ObjectUse(const void* object, const char* objectClass, const char* operation,
                     bool changes) noexcept
    : m_Object(object),
      m_Operation(operation),
      m_Changes(changes),
      m_Thread(utils_internal::GetThreadNumber()) {
  const Breach breach = UsesInProgress::Enter(*this);
  if (breach.thread == 0) return;
  PrintDebugString("%s %p is used by two threads at once: thread %lu is in %s, thread %lu calls %s\n",
                   objectClass, object, breach.thread, breach.operation, m_Thread, operation);
  if (!s_Hook) std::abort();
  s_Hook();
}

ObjectUse::~ObjectUse() { UsesInProgress::Leave(*this); }

void SetBreachHook(BreachHook hook) { s_Hook = hook; }
