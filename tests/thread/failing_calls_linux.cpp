// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Functions of the C library, defined once more: the linker gives these to the program and to its libraries.
// Names with 64 are what the others become where file offsets are asked to have 64 bits.
#undef _FILE_OFFSET_BITS

#include "thread/failing_calls_linux.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <utility>

namespace thread_tests {
namespace {

thread_local FailingCall* t_Active = nullptr;

}  // namespace

FailingCall::FailingCall(int index, int error, std::string_view only, bool lasts)
    : m_Left(index), m_Error(error), m_Only(only), m_Lasts(lasts) {
  t_Active = this;
}

FailingCall::FailingCall(int index, std::function<void()> action, std::string_view only)
    : m_Left(index), m_Error(0), m_Only(only), m_Action(std::move(action)) {
  t_Active = this;
}

FailingCall::~FailingCall() { Stop(); }

void FailingCall::Stop() { t_Active = nullptr; }

int FailingCall::ErrorOf(const char* call) {
  if (!t_Active || (!t_Active->m_Only.empty() && t_Active->m_Only != call)) return 0;
  const int left = t_Active->m_Left--;
  if (left > 0 || (left < 0 && !t_Active->m_Lasts)) return 0;
  t_Active->m_Call = call;
  ++t_Active->m_Failures;
  if (t_Active->m_Action) t_Active->m_Action();
  return t_Active->m_Error;
}

}  // namespace thread_tests

using thread_tests::FailingCall;

// Defines the function so that it answers FAILED, with the error in errno, when it is its turn.
#define FORWARD(RESULT, NAME, CALL, PARAMETERS, ARGUMENTS, EXCEPTIONS, FAILED)                 \
  RESULT NAME PARAMETERS EXCEPTIONS {                                                          \
    static auto* const real = reinterpret_cast<RESULT(*) PARAMETERS>(dlsym(RTLD_NEXT, #NAME)); \
    if (const int error = FailingCall::ErrorOf(CALL)) {                                        \
      errno = error;                                                                           \
      return FAILED;                                                                           \
    }                                                                                          \
    return real ARGUMENTS;                                                                     \
  }

extern "C" {

FORWARD(int, pthread_mutexattr_init, "pthread_mutexattr_init", (pthread_mutexattr_t * a), (a), noexcept,
        error)
FORWARD(int, pthread_mutexattr_settype, "pthread_mutexattr_settype", (pthread_mutexattr_t * a, int type),
        (a, type), noexcept, error)
FORWARD(int, pthread_mutexattr_setpshared, "pthread_mutexattr_setpshared",
        (pthread_mutexattr_t * a, int shared), (a, shared), noexcept, error)
FORWARD(int, pthread_mutexattr_setrobust, "pthread_mutexattr_setrobust",
        (pthread_mutexattr_t * a, int robust), (a, robust), noexcept, error)
FORWARD(int, pthread_mutex_init, "pthread_mutex_init", (pthread_mutex_t * m, const pthread_mutexattr_t* a),
        (m, a), noexcept, error)
FORWARD(int, pthread_mutex_trylock, "pthread_mutex_trylock", (pthread_mutex_t * m), (m), noexcept, error)
FORWARD(int, pthread_mutex_clocklock, "pthread_mutex_clocklock",
        (pthread_mutex_t * m, clockid_t clock, const timespec* deadline), (m, clock, deadline), noexcept,
        error)
FORWARD(int, pthread_mutex_consistent, "pthread_mutex_consistent", (pthread_mutex_t * m), (m), noexcept,
        error)
FORWARD(int, pthread_create, "pthread_create",
        (pthread_t * thread, const pthread_attr_t* a, void* (*run)(void*), void* argument),
        (thread, a, run, argument), noexcept, error)
FORWARD(int, pthread_join, "pthread_join", (pthread_t thread, void** result), (thread, result), , error)
FORWARD(int, setpriority, "setpriority", (__priority_which_t which, id_t id, int value), (which, id, value),
        noexcept, -1)
FORWARD(int, socket, "socket", (int domain, int type, int protocol), (domain, type, protocol), noexcept, -1)
FORWARD(int, bind, "bind", (int s, const struct sockaddr* address, socklen_t length), (s, address, length),
        noexcept, -1)
FORWARD(int, nanosleep, "nanosleep", (const timespec* time, timespec* rest), (time, rest), , -1)
FORWARD(DIR*, opendir, "opendir", (const char* path), (path), , nullptr)
FORWARD(int, fstat, "fstat", (int file, struct stat* info), (file, info), noexcept, -1)
FORWARD(int, fstat64, "fstat", (int file, struct stat64* info), (file, info), noexcept, -1)
FORWARD(int, memfd_create, "memfd_create", (const char* name, unsigned flags), (name, flags), noexcept, -1)
FORWARD(int, ftruncate, "ftruncate", (int file, off_t size), (file, size), noexcept, -1)
FORWARD(int, ftruncate64, "ftruncate", (int file, off64_t size), (file, size), noexcept, -1)
FORWARD(void*, mmap, "mmap", (void* at, size_t size, int may, int flags, int file, off_t from),
        (at, size, may, flags, file, from), noexcept, MAP_FAILED)
FORWARD(void*, mmap64, "mmap", (void* at, size_t size, int may, int flags, int file, off64_t from),
        (at, size, may, flags, file, from), noexcept, MAP_FAILED)

// Without a mode: the library opens what is there.
int open(const char* path, int flags, ...) {
  static auto* const real = reinterpret_cast<int (*)(const char*, int, ...)>(dlsym(RTLD_NEXT, "open"));
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  if (const int error = FailingCall::ErrorOf("open")) {
    errno = error;
    return -1;
  }
  return real(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return open(path, flags | O_LARGEFILE, mode);
}

long syscall(long number, ...) noexcept {
  static auto* const real = reinterpret_cast<long (*)(long, ...)>(dlsym(RTLD_NEXT, "syscall"));
  va_list rest;
  va_start(rest, number);
  long a[6];
  for (long& value : a) value = va_arg(rest, long);
  va_end(rest);
  if (number == SYS_futex) {
    if (const int error = FailingCall::ErrorOf("futex")) {
      errno = error;
      return error == FailingCall::kWoken ? 0 : -1;
    }
  }
  return real(number, a[0], a[1], a[2], a[3], a[4], a[5]);
}

}  // extern "C"
