// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "support/allocation_counter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<unsigned long long> allocations{0};
thread_local long long s_Left = -1;  // that still succeed in this thread; below 0: all do
thread_local bool s_Failed = false;

void* Allocate(std::size_t size) noexcept {
  ++allocations;
  if (s_Left >= 0 && s_Left-- == 0) {
    s_Failed = true;
    return nullptr;
  }
  return std::malloc(size != 0 ? size : 1);
}

void* AllocateOrThrow(std::size_t size) {
  void* memory = Allocate(size);
#if defined(__cpp_exceptions)
  if (!memory) throw std::bad_alloc();
#else
  if (!memory) std::abort();
#endif
  return memory;
}

}  // namespace

namespace host_test {

unsigned long long GetAllocationCount() { return allocations; }

void FailAllocationAfter(long long count) {
  s_Failed = false;
  s_Left = count;
}

bool HasAllocationFailed() { return s_Failed; }

}  // namespace host_test

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
