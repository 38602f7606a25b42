// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "thread/kernel_object.h"
#include "thread/wait_object_posix.h"

namespace thread {
namespace {

WaitObject* Object(void* handle) { return static_cast<WaitObject*>(handle); }

}  // namespace

Creation MakeObject(ObjectKind kind, unsigned count, const char* name, void*& handle) {
  std::unique_ptr<WaitObject> object;
  const Creation creation = WaitObject::Create(kind, count, name, object);
  if (creation == Creation::kDone) handle = object.release();
  return creation;
}

void* OpenObject(bool semaphore, const char* name) { return WaitObject::Open(semaphore, name).release(); }

void CloseObject(void* handle) { delete Object(handle); }

WaitEnd WaitForObject(void* handle, unsigned long milliseconds) {
  return Object(handle)->Acquire(milliseconds);
}

bool ReleaseObject(void* handle, unsigned count) { return Object(handle)->Release(count); }

bool SetObject(void* handle) { return Object(handle)->Set(); }

bool ResetObject(void* handle) { return Object(handle)->Reset(); }

}  // namespace thread
