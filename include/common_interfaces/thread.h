// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Threads and the objects they wait for: a thread, a counting semaphore, a critical section, an event.
//
// Every failure of the operating system, and want of memory, is an exception of the nested class Error of the
// class that met it, with a fixed text. The behaviour is that of the desktop system's own objects on every
// platform:
//
//   thread::Semaphore slots(2);                    // two may enter
//   slots.lock();                                  // waits as long as it takes
//   slots.lock(100);                               // thread::kTimedOut after 100 ms without a free slot
//   slots.unlock();
//
//   thread::SyncEvent ready(false, false, "app ready");   // known to other processes by its name
//
// A named object must be new when it is created and is opened by the others. Its name is free again once the
// last object that refers to it, in any process and however that process ended, is gone. Semaphores and
// events share one set of names, which belongs to the user; a name may hold any character and is not copied:
// it must outlive the object. No beginning is special: "Global\" and "Local\" are plain characters. A name
// that is null or empty is no name.
//
// Child processes inherit what holds the name, also of objects that they never use: on Linux those made by
// fork, and what they run by exec; on Windows those that are started to inherit handles. The name then stays
// taken until they have ended too. Who starts a program that is to hold none closes the descriptors above 2
// between fork and exec, or hands over the wanted handles alone. A process of another word size (32 and 64
// bits) finds the name taken; on Linux it cannot open the object.
//
// None of these objects may be copied. Semaphores, events and critical sections may be used by any number of
// threads at once; a Thread is started, waited for and destroyed by one controlling thread.
#pragma once

#include <concepts>
#include <exception>

#include "common_interfaces/api.h"

namespace thread {

// Base of every error of this namespace. Both texts are literals and live for ever.
class COMMON_INTERFACES_API GenericError : public std::exception {
 public:
  GenericError(const char* classText, const char* message) noexcept
      : m_Class(classText), m_Message(message) {}

  const char* GetClassText() const noexcept { return m_Class; }  // "class Thread", "class Semaphore", ...
  const char* what() const noexcept override { return m_Message; }

 private:
  const char* m_Class;
  const char* m_Message;
};

// What a wait with a time-out ended with.
enum WaitResult : int {
  kTimedOut = 0,
  kSignalled = 1  // acquired or signalled; an abandoned wait counts as acquired
};

// A time-out that never runs out.
constexpr unsigned long kInfinite = 0xFFFFFFFFul;

// What a thread runs. The application derives from it; the thread does not own it.
class COMMON_INTERFACES_API Runnable {
 public:
  virtual ~Runnable();
  virtual void run() = 0;
};

// A thread of execution. It exists, suspended, from construction on and runs once, from start().
class COMMON_INTERFACES_API Thread {
 public:
  class COMMON_INTERFACES_API Error : public GenericError {
   public:
    explicit Error(const char* message) noexcept : GenericError("class Thread", message) {}
  };

  enum Priority : unsigned { kLowest, kBelowNormal, kNormal, kAboveNormal, kHighest, kTimeCritical };

  // Creates the suspended thread. `runnable` stays the caller's and may be null. On Windows the constructing
  // thread also initializes the component library for itself. Throws "Can't create thread.".
  explicit Thread(Runnable* runnable = nullptr);

  // Lets go of the thread without waiting for it; one that was never started is released. A thread that is
  // still running must have ended `run` of a derived class before that class is destroyed: call waitForEnd
  // first.
  virtual ~Thread();

  Thread(const Thread&) = delete;
  Thread& operator=(const Thread&) = delete;

  // Called on the new thread: runs the runnable, if there is one. Once it has returned, the thread no longer
  // touches this object. An exception that leaves it ends the process.
  virtual void run();

  // Before or after start. Throws "Illegal priority value." for 6 and more, and "Can't set priority." when
  // the system refuses; the priority then stays. Linux takes 0 to 5 as nice values 10, 5, 0, -5, -10, -20 of
  // the one thread. There every step up needs a privilege, so that without it a priority that was lowered
  // cannot be raised again, not even to normal; and a thread that has ended, or that is another process's
  // since a fork, is refused.
  void setPriority(Priority priority);
  Priority getPriority() const { return m_Priority; }

  // Throws "Thread can be started only once." and "Thread can not be started.".
  void start();

  // Waits without time limit for the end of the thread; again at once after the first time. On a thread that
  // is never started it waits for ever. Throws "Waiting for thread termination failed.", on the thread itself
  // too.
  void waitForEnd();

 private:
  Runnable* m_Runnable;
  bool m_Started = false;
  Priority m_Priority = kNormal;
  void* m_Handle = nullptr;
};
static_assert(sizeof(void*) != 4 || sizeof(Thread) == 20);

// A counting semaphore, count 0 to 0x7FFFFFFF.
class COMMON_INTERFACES_API Semaphore {
 public:
  class COMMON_INTERFACES_API Error : public GenericError {
   public:
    explicit Error(const char* message) noexcept : GenericError("class Semaphore", message) {}
  };

  // A new semaphore. Throws "Semaphore already exists." when the name is taken by one, and "Can't create
  // semaphore." otherwise: an initial count above the maximum, a name taken by an event, no memory.
  explicit Semaphore(unsigned long initialCount = 1, const char* name = nullptr);

  // The same for a count of any other integer type. One below 0 is past the maximum.
  template <std::integral Count>
  explicit Semaphore(Count initialCount, const char* name = nullptr)
      : Semaphore(Narrow(initialCount), name) {}

  // An existing named semaphore. Throws "Can't open existing semaphore.".
  explicit Semaphore(const char* name);

  virtual ~Semaphore();
  Semaphore(const Semaphore&) = delete;
  Semaphore& operator=(const Semaphore&) = delete;

  // Waits until the count is above 0 and takes one. The time-out is in milliseconds of a clock that nobody
  // sets. Both throw "Lock of the semaphore failed.".
  void lock();
  WaitResult lock(unsigned long milliseconds);

  // Gives back `count`, which must be above 0 and must not take the semaphore past its maximum: otherwise it
  // throws "Can't unlock semaphore." and changes nothing.
  void unlock(long count = 1);

 private:
  // Stays past the maximum what was, whatever the widths.
  template <class Count>
  static constexpr unsigned long Narrow(Count count) {
    const auto wide = static_cast<unsigned long long>(count);
    return wide < 0x80000000ull ? static_cast<unsigned long>(wide) : 0x80000000ul;
  }

  void* m_Handle = nullptr;
  const char* m_Name;
};
static_assert(sizeof(void*) != 4 || sizeof(Semaphore) == 12);

// A lock for the threads of one process, recursive: the thread that holds it may enter again and leaves as
// often as it entered.
class COMMON_INTERFACES_API CritSect {
 public:
  class COMMON_INTERFACES_API Error : public GenericError {
   public:
    explicit Error(const char* message) noexcept : GenericError("class CritSect", message) {}
  };

  CritSect();  // throws "Can't create critical section."
  ~CritSect();
  CritSect(const CritSect&) = delete;
  CritSect& operator=(const CritSect&) = delete;

  void lock();
  void unlock();

 private:
  void* m_Section;
};
static_assert(sizeof(void*) != 4 || sizeof(CritSect) == 4);

// An event. An automatic one releases one waiter for each set() and is then reset; a manual one releases
// every waiter and stays set until reset().
class COMMON_INTERFACES_API SyncEvent {
 public:
  class COMMON_INTERFACES_API Error : public GenericError {
   public:
    explicit Error(const char* message) noexcept : GenericError("class SyncEvent", message) {}
  };

  // A new event. Throws "Event already exists." when the name is taken by one, and "Can't create event."
  // otherwise.
  explicit SyncEvent(bool initiallySet = false, bool manualReset = false, const char* name = nullptr);

  // An existing named event. Throws "Can't open existing event.".
  explicit SyncEvent(const char* name);

  virtual ~SyncEvent();
  SyncEvent(const SyncEvent&) = delete;
  SyncEvent& operator=(const SyncEvent&) = delete;

  void set();    // throws "Can't set event."
  void reset();  // throws "Can't reset event."

  // Waits until the event is set. Both throw "Wait failed.".
  void wait();
  WaitResult wait(unsigned long milliseconds);

 private:
  void* m_Handle = nullptr;
  const char* m_Name;
};
static_assert(sizeof(void*) != 4 || sizeof(SyncEvent) == 12);

// Sleeps for at least that long, whatever signals arrive. Always true.
COMMON_INTERFACES_API bool sleep(unsigned long milliseconds);

// Gives the rest of the time slice to another thread that is ready.
COMMON_INTERFACES_API void yield();

}  // namespace thread
