// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A module for LD_PRELOAD: the operators new of a whole program, of which one call fails, or all from that
// one on. CI_FAIL_AT=N is the call, counted from 0, CI_FAIL_ON=1 means all from it on, and CI_ALLOCATIONS
// names a file that receives how many calls there were.
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long long> s_Count{0};

struct Order {
  long long failAt = -1;
  bool goesOn = false;
};

Order ReadOrder() {
  const char* const at = std::getenv("CI_FAIL_AT");
  return {at ? std::atoll(at) : -1, std::getenv("CI_FAIL_ON") != nullptr};
}

void* Allocate(std::size_t size) noexcept {
  static const Order order = ReadOrder();
  const long long call = s_Count++;
  if (order.failAt >= 0 && (order.goesOn ? call >= order.failAt : call == order.failAt)) return nullptr;
  return std::malloc(size != 0 ? size : 1);
}

void* AllocateOrThrow(std::size_t size) {
  void* const memory = Allocate(size);
  if (!memory) throw std::bad_alloc();
  return memory;
}

__attribute__((destructor)) void WriteCount() {
  const char* const name = std::getenv("CI_ALLOCATIONS");
  std::FILE* const file = name ? std::fopen(name, "w") : nullptr;
  if (!file) return;
  std::fprintf(file, "%lld\n", s_Count.load());
  std::fclose(file);
}

}  // namespace

#define EXPORTED __attribute__((visibility("default")))
EXPORTED void* operator new(std::size_t size) { return AllocateOrThrow(size); }
EXPORTED void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
EXPORTED void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
EXPORTED void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
EXPORTED void operator delete(void* memory) noexcept { std::free(memory); }
EXPORTED void operator delete[](void* memory) noexcept { std::free(memory); }
EXPORTED void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
EXPORTED void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
EXPORTED void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
EXPORTED void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
