// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <pthread.h>

#include <memory>
#include <new>

#include "common_interfaces/thread.h"

namespace thread {
namespace {

bool InitRecursive(pthread_mutex_t* mutex) {
  pthread_mutexattr_t attributes;
  if (pthread_mutexattr_init(&attributes) != 0) return false;
  const bool done = pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE) == 0 &&
                    pthread_mutex_init(mutex, &attributes) == 0;
  pthread_mutexattr_destroy(&attributes);
  return done;
}

pthread_mutex_t* Mutex(void* section) { return static_cast<pthread_mutex_t*>(section); }

}  // namespace

CritSect::CritSect() {
  std::unique_ptr<pthread_mutex_t> mutex(new (std::nothrow) pthread_mutex_t);
  if (!mutex || !InitRecursive(mutex.get())) throw Error("Can't create critical section.");
  m_Section = mutex.release();
}

CritSect::~CritSect() {
  pthread_mutex_destroy(Mutex(m_Section));
  delete Mutex(m_Section);
}

void CritSect::lock() { pthread_mutex_lock(Mutex(m_Section)); }

void CritSect::unlock() { pthread_mutex_unlock(Mutex(m_Section)); }

}  // namespace thread
