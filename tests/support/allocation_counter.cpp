// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "support/allocation_counter.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

std::atomic<unsigned long long> allocations{0};
std::atomic<long long> living{0};
thread_local long long s_Left = -1;  // that still succeed in this thread; below 0: all do
thread_local bool s_Failed = false;

void* Allocate(std::size_t size) noexcept {
  ++allocations;
  if (s_Left >= 0 && s_Left-- == 0) {
    s_Failed = true;
    return nullptr;
  }
  ++living;
  return std::malloc(size != 0 ? size : 1);
}

void Free(void* memory) noexcept {
  living -= memory ? 1 : 0;
  std::free(memory);
}

// What malloc gave stands right before the aligned memory.
void* Allocate(std::size_t size, std::align_val_t alignment) noexcept {
  const auto step = static_cast<std::uintptr_t>(alignment);
  auto* const memory = static_cast<char*>(Allocate(size + step + sizeof(void*)));
  if (!memory) return nullptr;
  const auto first = reinterpret_cast<std::uintptr_t>(memory + sizeof(void*));
  char* const aligned = memory + sizeof(void*) + (step - first % step) % step;
  reinterpret_cast<void**>(aligned)[-1] = memory;
  return aligned;
}

void FreeAligned(void* memory) noexcept {
  if (memory) Free(static_cast<void**>(memory)[-1]);
}

void* OrThrow(void* memory) {
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

long long GetLivingCount() { return living; }

void FailAllocationAfter(long long count) {
  s_Failed = false;
  s_Left = count;
}

bool HasAllocationFailed() { return s_Failed; }

}  // namespace host_test

void* operator new(std::size_t size) { return OrThrow(Allocate(size)); }
void* operator new[](std::size_t size) { return OrThrow(Allocate(size)); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new(std::size_t size, std::align_val_t to) { return OrThrow(Allocate(size, to)); }
void* operator new[](std::size_t size, std::align_val_t to) { return OrThrow(Allocate(size, to)); }
void operator delete(void* memory) noexcept { Free(memory); }
void operator delete[](void* memory) noexcept { Free(memory); }
void operator delete(void* memory, std::size_t) noexcept { Free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { Free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { Free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { Free(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { FreeAligned(memory); }
void operator delete[](void* memory, std::align_val_t) noexcept { FreeAligned(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { FreeAligned(memory); }
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept { FreeAligned(memory); }
