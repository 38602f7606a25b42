// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// "One thread at a time", checked. An operation says at its beginning which object it changes or reads:
//
//   void Camera::SetZoom(double zoom) {
//     const ChangesObject use(this, "Camera");
//
// Where CI_CHECK_THREADS is defined (the option of that name; presets debug, sanitize and linux32) the use
// lasts until the end of the block. One that begins while another thread is in a use of the same object, and
// one of the two changes it, is a breach: one line goes to the diagnostic sink,
//
//   Camera 0x7ffd5c3b8e10 is used by two threads at once: thread 4711 is in GoHome, thread 4712 calls SetZoom
//
// and the process is aborted. The numbers are those that debuggers show. What is no breach: an operation that
// calls others of the same object on its thread, reading by several threads, different objects, an object
// that another thread goes on with once the operation has returned. Only what overlaps is noticed, so no line
// is no proof; members that stand in headers are not watched.
//
// Elsewhere both names mean an empty class and compile to nothing. Classes have the same layout with and
// without: what is in use is known here, not in the object. Nothing allocates or throws.
#pragma once

#include <type_traits>

#include "utils/api.h"

// A use of `object`, whose class is named, by `operation`; both texts are literals. Any thread; it ends on
// the thread on which it began.
class UTILS_API ObjectUse {
 public:
  ObjectUse(const void* object, const char* objectClass, const char* operation, bool changes) noexcept;
  ~ObjectUse();
  ObjectUse(const ObjectUse&) = delete;
  ObjectUse& operator=(const ObjectUse&) = delete;

 private:
  friend struct UsesInProgress;  // companions/utils/one_thread.cpp

  const void* m_Object;
  const char* m_Operation;
  bool m_Changes;
  unsigned long m_Thread;
  ObjectUse* m_Next = nullptr;
};

// What happens after the line of a breach, on the thread that begins the second use, which goes on when it
// returns. Null, as at first: std::abort. To be set while no object is in use.
using BreachHook = void (*)();
UTILS_API void SetBreachHook(BreachHook hook);

// The same of the calling function. Any thread.
template <bool changes>
struct CheckedUse : private ObjectUse {
  CheckedUse(const void* object, const char* objectClass,
             const char* operation = __builtin_FUNCTION()) noexcept
      : ObjectUse(object, objectClass, operation, changes) {}
};

// Nothing, whatever is used by whom. Any thread.
struct [[maybe_unused]] UncheckedUse {
  constexpr UncheckedUse(const void*, const char*) noexcept {}
};

#if defined(CI_CHECK_THREADS)
constexpr bool kThreadsAreChecked = true;
#else
constexpr bool kThreadsAreChecked = false;
#endif

// What an operation says that changes the object.
using ChangesObject = std::conditional_t<kThreadsAreChecked, CheckedUse<true>, UncheckedUse>;

// What an operation says that only looks at the object; several threads may do so at once.
using ReadsObject = std::conditional_t<kThreadsAreChecked, CheckedUse<false>, UncheckedUse>;
