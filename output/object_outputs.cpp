// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_outputs.h"

#include <new>

namespace CommonInterfaces {

// m_OnScreen is left as the memory has it: every record is projected before anyone asks.
BaseOutput::BaseOutput() {}
BaseOutput::~BaseOutput() = default;
BaseOutput::BaseOutput(const BaseOutput&) = default;
BaseOutput& BaseOutput::operator=(const BaseOutput&) = default;

// m_AsDisc is left as the memory has it: drawing sets it.
StarOutput::StarOutput() {}
StarOutput::~StarOutput() = default;
StarOutput::StarOutput(const StarOutput&) = default;
StarOutput::StarOutput(StarOutput&&) noexcept = default;
StarOutput& StarOutput::operator=(const StarOutput&) = default;
StarOutput& StarOutput::operator=(StarOutput&&) noexcept = default;

DeepskyOutput::DeepskyOutput() = default;
DeepskyOutput::~DeepskyOutput() { delete m_ImageDrawData; }
DeepskyOutput::DeepskyOutput(const DeepskyOutput&) = default;
DeepskyOutput& DeepskyOutput::operator=(const DeepskyOutput&) = default;

// Here and not in the header: what the library's heap gave goes back to it.
#define DEFINE_MEMORY(Class)                                                        \
  void* Class::operator new(std::size_t size) { return ::operator new(size); }      \
  void* Class::operator new(std::size_t size, const std::nothrow_t& tag) noexcept { \
    return ::operator new(size, tag);                                               \
  }                                                                                 \
  void* Class::operator new(std::size_t, void* place) noexcept { return place; }    \
  void* Class::operator new(std::size_t size, OutputPool& pool) noexcept {          \
    return pool.getMem(static_cast<unsigned>(size));                                \
  }                                                                                 \
  void Class::operator delete(void* memory) noexcept { ::operator delete(memory); } \
  void Class::operator delete(void* memory, const std::nothrow_t& tag) noexcept {   \
    ::operator delete(memory, tag);                                                 \
  }                                                                                 \
  void Class::operator delete(void*, void*) noexcept {}

DEFINE_MEMORY(StarOutput)
DEFINE_MEMORY(DeepskyOutput)
DEFINE_MEMORY(DeepskyImageDrawData)
DEFINE_MEMORY(Deepsky3DDrawData)
#undef DEFINE_MEMORY

}  // namespace CommonInterfaces
