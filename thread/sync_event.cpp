// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/thread.h"
#include "thread/kernel_object.h"

namespace thread {

SyncEvent::SyncEvent(bool initiallySet, bool manualReset, const char* name)
    : m_Handle(MakeOrThrow<Error>(manualReset ? ObjectKind::kManualEvent : ObjectKind::kAutomaticEvent,
                                  initiallySet ? 1 : 0, name, "Event already exists.",
                                  "Can't create event.")),
      m_Name(name) {}

SyncEvent::SyncEvent(const char* name)
    : m_Handle(OpenOrThrow<Error>(false, name, "Can't open existing event.")), m_Name(name) {}

SyncEvent::~SyncEvent() { CloseObject(m_Handle); }

void SyncEvent::set() {
  if (!SetObject(m_Handle)) throw Error("Can't set event.");
}

void SyncEvent::reset() {
  if (!ResetObject(m_Handle)) throw Error("Can't reset event.");
}

void SyncEvent::wait() { wait(kInfinite); }

WaitResult SyncEvent::wait(unsigned long milliseconds) {
  return WaitOrThrow<Error>(m_Handle, milliseconds, "Wait failed.");
}

}  // namespace thread
