// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Functions of the C library, defined once more: the linker gives these to the program and to its libraries.
// Names with 64 are what the others become where file offsets are asked to have 64 bits.
#undef _FILE_OFFSET_BITS

#include "support/fault_injection_linux.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <utility>

namespace test_support {
namespace {

FaultInjection* g_Active = nullptr;
int g_Locked = -1;  // the file that is locked
int g_SecondsAhead = 0;

bool Fails(const char* call) {
  const int error = g_Active ? g_Active->ErrorOf(call) : 0;
  if (error != 0) errno = error;
  return error != 0;
}

// What the C library has under that name.
template <class Function>
Function* Find(Function*& kept, const char* name) {
  if (!kept) kept = reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
  return kept;
}

void MarkFailed(std::FILE* file) { file->_flags |= _IO_ERR_SEEN; }

}  // namespace

FaultInjection::FaultInjection(int index, const char* only) : m_Left(index), m_Only(only) { g_Active = this; }

FaultInjection::FaultInjection(int index, std::function<void()> between)
    : m_Left(index), m_Between(std::move(between)) {
  g_Active = this;
}

FaultInjection::FaultInjection(std::function<int(std::string_view call)> error) : m_Error(std::move(error)) {
  g_Active = this;
}

FaultInjection::~FaultInjection() { Stop(); }

void FaultInjection::Stop() {
  if (g_Active == this) g_Active = nullptr;
}

int FaultInjection::ErrorOf(const char* call) {
  if (m_Only && std::strcmp(call, m_Only) != 0) return 0;
  if (m_Between && g_Locked >= 0) return 0;
  if (!m_Error && m_Left-- != 0) return 0;
  int error = m_Between ? 0 : EIO;
  g_Active = nullptr;
  if (m_Between) m_Between();
  if (m_Error) error = m_Error(call);
  g_Active = this;
  if (!m_Error || error != 0) m_Call = call;
  return error;
}

void AdvanceSteadyClock(int seconds) { g_SecondsAhead += seconds; }

}  // namespace test_support

using test_support::Fails;
using test_support::Find;
using test_support::g_Locked;
using test_support::MarkFailed;

// Defines the function so that it answers FAILED without doing anything when it is its turn.
#define FORWARD(RESULT, NAME, CALL, PARAMETERS, ARGUMENTS, EXCEPTIONS, FAILED) \
  RESULT NAME PARAMETERS EXCEPTIONS {                                          \
    static RESULT(*real) PARAMETERS;                                           \
    return Fails(CALL) ? (FAILED) : Find(real, #NAME) ARGUMENTS;               \
  }

extern "C" {

FORWARD(FILE*, fopen, "fopen", (const char* path, const char* mode), (path, mode), , nullptr)
FORWARD(FILE*, fopen64, "fopen", (const char* path, const char* mode), (path, mode), , nullptr)
FORWARD(FILE*, fdopen, "fdopen", (int file, const char* mode), (file, mode), noexcept, nullptr)
FORWARD(int, fseek, "fseek", (FILE * file, long offset, int from), (file, offset, from), , -1)
FORWARD(int, stat, "stat", (const char* path, struct stat* info), (path, info), noexcept, -1)
FORWARD(int, stat64, "stat", (const char* path, struct stat64* info), (path, info), noexcept, -1)
FORWARD(int, fstat, "fstat", (int file, struct stat* info), (file, info), noexcept, -1)
FORWARD(int, fstat64, "fstat", (int file, struct stat64* info), (file, info), noexcept, -1)
FORWARD(int, fsync, "fsync", (int file), (file), , -1)
FORWARD(int, fchmod, "fchmod", (int file, mode_t mode), (file, mode), noexcept, -1)
FORWARD(int, fchown, "fchown", (int file, uid_t owner, gid_t group), (file, owner, group), noexcept, -1)
FORWARD(int, access, "access", (const char* path, int mode), (path, mode), noexcept, -1)
FORWARD(ssize_t, readlink, "readlink", (const char* path, char* out, size_t size), (path, out, size),
        noexcept, -1)
FORWARD(int, mkdir, "mkdir", (const char* path, mode_t mode), (path, mode), noexcept, -1)
FORWARD(int, rename, "rename", (const char* from, const char* to), (from, to), noexcept, -1)
FORWARD(int, unlink, "unlink", (const char* path), (path), noexcept, -1)
FORWARD(char*, getcwd, "getcwd", (char* out, size_t size), (out, size), noexcept, nullptr)
FORWARD(int, nanosleep, "nanosleep", (const timespec* time, timespec* rest), (time, rest), , -1)
FORWARD(void*, mmap, "mmap", (void* at, size_t size, int may, int flags, int file, off_t from),
        (at, size, may, flags, file, from), noexcept, MAP_FAILED)
FORWARD(void*, mmap64, "mmap", (void* at, size_t size, int may, int flags, int file, off64_t from),
        (at, size, may, flags, file, from), noexcept, MAP_FAILED)

size_t fread(void* out, size_t size, size_t count, FILE* file) {
  static size_t (*real)(void*, size_t, size_t, FILE*);
  const bool fails = Fails("fread");
  const int error = errno;
  const size_t read = Find(real, "fread")(out, size, count, file);
  if (!fails) return read;
  MarkFailed(file);
  errno = error;
  return read / 2;
}

size_t fwrite(const void* in, size_t size, size_t count, FILE* file) {
  static size_t (*real)(const void*, size_t, size_t, FILE*);
  if (!Fails("fwrite")) return Find(real, "fwrite")(in, size, count, file);
  MarkFailed(file);
  return 0;
}

int fflush(FILE* file) {
  static int (*real)(FILE*);
  if (!Fails("fflush")) return Find(real, "fflush")(file);
  if (file) MarkFailed(file);
  return EOF;
}

int fclose(FILE* file) {
  static int (*real)(FILE*);
  const bool fails = Fails("fclose");
  const int error = errno, result = Find(real, "fclose")(file);
  if (fails) errno = error;
  return fails ? EOF : result;
}

int close(int file) {
  static int (*real)(int);
  const bool fails = Fails("close");
  if (file == g_Locked) g_Locked = -1;
  const int error = errno, result = Find(real, "close")(file);
  if (fails) errno = error;
  return fails ? -1 : result;
}

int flock(int file, int operation) noexcept {
  static int (*real)(int, int);
  if (Fails("flock")) return -1;
  const int result = Find(real, "flock")(file, operation);
  if (result == 0) g_Locked = operation & LOCK_UN ? -1 : file;
  return result;
}

int clock_gettime(clockid_t clock, timespec* time) noexcept {
  static int (*real)(clockid_t, timespec*);
  const int result = Find(real, "clock_gettime")(clock, time);
  if (clock == CLOCK_MONOTONIC) time->tv_sec += test_support::g_SecondsAhead;
  return result;
}

#define FORWARD_OPEN(NAME)                                                                      \
  int NAME(const char* path, int flags, ...) {                                                  \
    static int (*real)(const char*, int, ...);                                                  \
    std::va_list arguments;                                                                     \
    va_start(arguments, flags);                                                                 \
    const mode_t mode = flags & O_CREAT ? static_cast<mode_t>(va_arg(arguments, unsigned)) : 0; \
    va_end(arguments);                                                                          \
    return Fails("open") ? -1 : Find(real, #NAME)(path, flags, mode);                           \
  }
FORWARD_OPEN(open)
FORWARD_OPEN(open64)

}  // extern "C"
