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

void* StarOutput::operator new(std::size_t size) { return ::operator new(size); }
void StarOutput::operator delete(void* memory) noexcept { ::operator delete(memory); }
void* StarOutput::operator new(std::size_t size, OutputPool& pool) noexcept {
  return pool.getMem(static_cast<unsigned>(size));
}

void* DeepskyOutput::operator new(std::size_t size) { return ::operator new(size); }
void DeepskyOutput::operator delete(void* memory) noexcept { ::operator delete(memory); }
void* DeepskyOutput::operator new(std::size_t size, OutputPool& pool) noexcept {
  return pool.getMem(static_cast<unsigned>(size));
}

void* DeepskyImageDrawData::operator new(std::size_t size) { return ::operator new(size); }
void DeepskyImageDrawData::operator delete(void* memory) noexcept { ::operator delete(memory); }
void* DeepskyImageDrawData::operator new(std::size_t size, OutputPool& pool) noexcept {
  return pool.getMem(static_cast<unsigned>(size));
}

void* Deepsky3DDrawData::operator new(std::size_t size) { return ::operator new(size); }
void Deepsky3DDrawData::operator delete(void* memory) noexcept { ::operator delete(memory); }
void* Deepsky3DDrawData::operator new(std::size_t size, OutputPool& pool) noexcept {
  return pool.getMem(static_cast<unsigned>(size));
}

}  // namespace CommonInterfaces
