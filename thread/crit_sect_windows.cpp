// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <memory>
#include <new>

#include "common_interfaces/thread.h"

namespace thread {
namespace {

CRITICAL_SECTION* Section(void* section) { return static_cast<CRITICAL_SECTION*>(section); }

}  // namespace

CritSect::CritSect() {
  std::unique_ptr<CRITICAL_SECTION> section(new (std::nothrow) CRITICAL_SECTION);
  // With a spin count of 0 this is InitializeCriticalSection, but a failure is a result and not an exception.
  if (!section || !InitializeCriticalSectionAndSpinCount(section.get(), 0)) {
    throw Error("Can't create critical section.");
  }
  m_Section = section.release();
}

CritSect::~CritSect() {
  DeleteCriticalSection(Section(m_Section));
  delete Section(m_Section);
}

void CritSect::lock() { EnterCriticalSection(Section(m_Section)); }

void CritSect::unlock() { LeaveCriticalSection(Section(m_Section)); }

}  // namespace thread
