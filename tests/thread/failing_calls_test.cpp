// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Threads and the objects between them while the system refuses: every call of every operation fails once. A
// program of its own, because it replaces functions of the C library.
#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <set>
#include <string>
#include <thread>

#include "common_interfaces/thread.h"
#include "thread/failing_calls_linux.h"
#include "thread/message_of.h"
#include "thread/name_digest.h"
#include "thread/own_name.h"

namespace {

using thread_tests::FailingCall;
using thread_tests::MessageOf;
using thread_tests::Own;

using Names = std::set<std::string>;

const char* const kCalls[] = {"pthread_mutexattr_init",
                              "pthread_mutexattr_settype",
                              "pthread_mutexattr_setpshared",
                              "pthread_mutexattr_setrobust",
                              "pthread_mutex_init",
                              "socket",
                              "bind",
                              "opendir",
                              "open",
                              "memfd_create",
                              "ftruncate",
                              "mmap"};

// Runs `action` once for each of these calls that it makes, of which that one fails, and returns the names of
// those that made it throw an Error of that text. It throws nothing else; and when nothing fails, nothing.
// Each name by itself: how many folders are looked through changes with the processes of the system.
template <class Error, class Action>
Names FailEachCall(const char* message, int error, Action action) {
  constexpr int kFarTooMany = 5000;
  Names refusals;
  for (const char* const call : kCalls) {
    for (int index = 0; index < kFarTooMany; ++index) {
      FailingCall fault(index, error, call);
      const std::string thrown = MessageOf<Error>(action);
      fault.Stop();
      if (fault.GetCall().empty()) {
        EXPECT_EQ(thrown, "") << "when nothing fails";
        break;
      }
      if (thrown.empty()) continue;
      EXPECT_EQ(thrown, message) << call;
      refusals.insert(call);
    }
  }
  return refusals;
}

Names GetCallsOfACreation() {
  return {"pthread_mutexattr_init",
          "pthread_mutexattr_setpshared",
          "pthread_mutexattr_setrobust",
          "pthread_mutex_init",
          "socket",
          "bind",
          "opendir",
          "memfd_create",
          "ftruncate",
          "mmap"};
}

}  // namespace

TEST(FailingCalls, CriticalSectionIsNotCreated) {
  EXPECT_EQ(FailEachCall<thread::CritSect::Error>("Can't create critical section.", ENOMEM,
                                                  [] { thread::CritSect section; }),
            (Names{"pthread_mutexattr_init", "pthread_mutexattr_settype", "pthread_mutex_init"}));
}

TEST(FailingCalls, ObjectsWithoutANameAreNotCreated) {
  const Names calls = {"pthread_mutexattr_init", "pthread_mutexattr_setpshared",
                       "pthread_mutexattr_setrobust", "pthread_mutex_init"};
  EXPECT_EQ(FailEachCall<thread::Semaphore::Error>("Can't create semaphore.", ENOMEM,
                                                   [] { thread::Semaphore semaphore; }),
            calls);
  EXPECT_EQ(
      FailEachCall<thread::SyncEvent::Error>("Can't create event.", ENOMEM, [] { thread::SyncEvent event; }),
      calls);
}

// What was made before the failure is gone again: the name is free for the next one.
TEST(FailingCalls, NamedSemaphoreIsNotCreatedAndItsNameStaysFree) {
  const char* const name = Own("semaphore that the system refuses");
  const Names refusals = FailEachCall<thread::Semaphore::Error>(
      "Can't create semaphore.", EMFILE, [name] { thread::Semaphore semaphore(1, name); });
  EXPECT_EQ(refusals, GetCallsOfACreation());
}

TEST(FailingCalls, NamedEventIsNotCreatedAndItsNameStaysFree) {
  const char* const name = Own("event that the system refuses");
  const Names refusals = FailEachCall<thread::SyncEvent::Error>(
      "Can't create event.", EMFILE, [name] { thread::SyncEvent event(false, true, name); });
  EXPECT_EQ(refusals, GetCallsOfACreation());
}

// A process that has ended since, or another user's, has nothing that is looked for.
TEST(FailingCalls, ProcessesThatCannotBeLookedIntoHoldNothing) {
  const char* const name = Own("semaphore among strangers");
  const Names refusals = FailEachCall<thread::Semaphore::Error>(
      "Can't create semaphore.", EACCES, [name] { thread::Semaphore semaphore(1, name); });
  EXPECT_EQ(refusals.count("bind"), 1u);
  FailingCall fault(1, EACCES, "opendir");  // the first one is that of the list of processes
  EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore semaphore(1, name); }), "");
  EXPECT_EQ(fault.GetCall(), "opendir");
}

TEST(FailingCalls, NamedObjectsAreNotOpened) {
  const char *const semaphoreName = Own("semaphore to open"), *const eventName = Own("event to open");
  const thread::Semaphore semaphore(1, semaphoreName);
  const thread::SyncEvent event(false, true, eventName);
  const Names bySemaphore = FailEachCall<thread::Semaphore::Error>(
      "Can't open existing semaphore.", EMFILE, [semaphoreName] { thread::Semaphore opened(semaphoreName); });
  const Names byEvent = FailEachCall<thread::SyncEvent::Error>(
      "Can't open existing event.", EMFILE, [eventName] { thread::SyncEvent opened(eventName); });
  const Names calls = {"socket", "bind", "opendir", "open", "mmap"};
  EXPECT_EQ(bySemaphore, calls);
  EXPECT_EQ(byEvent, calls);
}

// Where the process or the system has no room for one more, nobody knows what would have been found.
TEST(FailingCalls, NamedObjectIsNotOpenedWithoutRoomToLook) {
  const char* const name = Own("semaphore without room to look");
  const thread::Semaphore semaphore(1, name);
  for (const int error : {EMFILE, ENFILE, ENOMEM}) {
    for (const char* const call : {"opendir", "open"}) {
      FailingCall fault(call == std::string("opendir") ? 1 : 0, error, call);
      EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore opened(name); }),
                "Can't open existing semaphore.");
      fault.Stop();
      EXPECT_EQ(fault.GetCall(), call);
      FailingCall again(call == std::string("opendir") ? 1 : 0, error, call);
      EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore second(1, name); }),
                "Can't create semaphore.");
    }
  }
}

// What cannot be opened or asked for, for any other reason, is gone: then there is no object of that name.
TEST(FailingCalls, MemoryThatCannotBeLookedIntoIsNoObject) {
  const char* const name = Own("semaphore that is out of reach");
  const thread::Semaphore semaphore(1, name);
  for (const char* const call : {"open", "fstat"}) {
    FailingCall fault(0, EACCES, call, true);
    EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore opened(name); }),
              "Can't open existing semaphore.");
    EXPECT_EQ(fault.GetCall(), call);
    EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore second(1, name); }), "");
  }
}

// Another process is in the middle of making a named object: it is waited for.
TEST(FailingCalls, LockOfTheNamesIsWaitedFor) {
  const char* const name = Own("semaphore in a queue");
  FailingCall fault(0, EADDRINUSE, "bind");
  EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore semaphore(1, name); }), "");
  EXPECT_EQ(fault.GetCall(), "bind");
}

// A process that stands in the middle of it for good: ten seconds are 10,000 looks after the first, with a
// pause before each. These fail too, so that they take no time; the socket, which comes first, does not.
TEST(FailingCalls, LockOfTheNamesIsWaitedForTenSeconds) {
  const char* const name = Own("semaphore behind a stopped process");
  FailingCall fault(1, EADDRINUSE, "", true);
  EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore semaphore(1, name); }),
            "Can't create semaphore.");
  fault.Stop();
  EXPECT_EQ(fault.GetCall(), "bind");
  EXPECT_EQ(fault.GetFailureCount(), 1 + 2 * 10'000);
  EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore semaphore(1, name); }), "");
}

// As a process would that is stopped in the middle of making the one: an abstract socket of the tag of its
// name.
TEST(FailingCalls, LockOfOneNameKeepsNoOtherNameBack) {
  const char *const held = Own("semaphore that another one makes"), *const other = Own("semaphore beside it");
  const std::string tag =
      "common_interfaces." + std::to_string(getuid()) + "." + thread::MakeNameDigest(held);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  tag.copy(address.sun_path + 1, tag.size());
  const int lock = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  ASSERT_EQ(bind(lock, reinterpret_cast<const sockaddr*>(&address),
                 static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + tag.size())),
            0);
  const auto make = [](const char* name) {
    const FailingCall inNoTime(0, EINTR, "nanosleep", true);
    return MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore semaphore(1, name); });
  };
  EXPECT_EQ(make(held), "Can't create semaphore.");
  EXPECT_EQ(make(other), "");
  close(lock);
  EXPECT_EQ(make(held), "");
}

TEST(FailingCalls, SemaphoreIsNeitherTakenNorGivenBack) {
  thread::Semaphore semaphore(1ul);
  {
    const FailingCall fault(0, EINVAL, "pthread_mutex_trylock");
    EXPECT_EQ(MessageOf<thread::Semaphore::Error>([&] { semaphore.lock(); }),
              "Lock of the semaphore failed.");
  }
  {
    const FailingCall fault(0, EINVAL, "pthread_mutex_trylock");
    EXPECT_EQ(MessageOf<thread::Semaphore::Error>([&] { semaphore.unlock(); }), "Can't unlock semaphore.");
  }
  EXPECT_EQ(semaphore.lock(0), thread::kSignalled) << "still the one that it had";
  EXPECT_EQ(semaphore.lock(0), thread::kTimedOut);
}

// Somebody else holds the lock: it is waited for, until it can be had or cannot.
TEST(FailingCalls, LockOfASemaphoreIsWaitedFor) {
  thread::Semaphore semaphore(1ul);
  FailingCall fault(0, EBUSY, "pthread_mutex_trylock");
  EXPECT_EQ(semaphore.lock(0), thread::kSignalled);
  EXPECT_EQ(fault.GetCall(), "pthread_mutex_trylock");
}

// The holder of the lock was killed, and the lock cannot be taken over.
TEST(FailingCalls, LockOfAKilledHolderThatCannotBeMendedIsAFailure) {
  thread::Semaphore semaphore(1ul);
  const FailingCall fault(0, EOWNERDEAD, "pthread_mutex_trylock");
  EXPECT_EQ(MessageOf<thread::Semaphore::Error>([&] { semaphore.lock(); }), "Lock of the semaphore failed.")
      << "nobody holds it, so the system refuses to mend it";
}

// A signal wakes a sleeper too early: it looks again and sleeps on. Anything else is told.
TEST(FailingCalls, SleepThatASignalEndsGoesOn) {
  thread::Semaphore semaphore(0ul);
  for (const int error : {EINTR, EAGAIN}) {
    FailingCall fault(0, error, "futex");
    EXPECT_EQ(semaphore.lock(5), thread::kTimedOut);
    EXPECT_EQ(fault.GetCall(), "futex");
  }
  const FailingCall fault(0, EINVAL, "futex");
  EXPECT_EQ(MessageOf<thread::Semaphore::Error>([&] { semaphore.lock(5); }), "Lock of the semaphore failed.");
}

// Between the look at the count and the sleep.
TEST(FailingCalls, ReleaseRightBeforeTheSleepIsSeen) {
  thread::Semaphore semaphore(0ul);
  const FailingCall meanwhile(
      0, [&semaphore] { semaphore.unlock(); }, "futex");
  EXPECT_EQ(semaphore.lock(2000), thread::kSignalled);
  EXPECT_EQ(meanwhile.GetCall(), "futex");
}

// Whoever used the memory before may wake who sleeps on it now. That hands nothing over, be it before or
// after something was.
TEST(FailingCalls, SleepThatEndsWithoutAReleaseGoesOn) {
  thread::Semaphore semaphore(0ul);
  const auto lockWokenForNothing = [&semaphore] {
    const FailingCall fault(0, FailingCall::kWoken, "futex");
    return semaphore.lock(5);
  };
  EXPECT_EQ(lockWokenForNothing(), thread::kTimedOut);
  std::thread waiter([&semaphore] { semaphore.lock(); });
  thread::sleep(20);  // time enough to fall asleep
  semaphore.unlock();
  waiter.join();
  EXPECT_EQ(lockWokenForNothing(), thread::kTimedOut);
}

TEST(FailingCalls, EventStaysAsItIs) {
  thread::SyncEvent event(false, true);
  {
    const FailingCall fault(0, EINVAL, "pthread_mutex_trylock");
    EXPECT_EQ(MessageOf<thread::SyncEvent::Error>([&] { event.set(); }), "Can't set event.");
  }
  EXPECT_EQ(event.wait(0), thread::kTimedOut);
  event.set();
  {
    const FailingCall fault(0, EINVAL, "pthread_mutex_trylock");
    EXPECT_EQ(MessageOf<thread::SyncEvent::Error>([&] { event.reset(); }), "Can't reset event.");
  }
  EXPECT_EQ(event.wait(0), thread::kSignalled);
}

TEST(FailingCalls, ThreadIsNotCreated) {
  const FailingCall fault(0, EAGAIN, "pthread_create");
  EXPECT_EQ(MessageOf<thread::Thread::Error>([] { thread::Thread worker; }), "Can't create thread.");
}

TEST(FailingCalls, PriorityStaysWhenItIsRefused) {
  thread::Thread worker;
  {
    const FailingCall fault(0, EACCES, "setpriority");
    EXPECT_EQ(MessageOf<thread::Thread::Error>([&] { worker.setPriority(thread::Thread::kLowest); }),
              "Can't set priority.");
  }
  EXPECT_EQ(worker.getPriority(), thread::Thread::kNormal);
  worker.setPriority(thread::Thread::kLowest);
  EXPECT_EQ(worker.getPriority(), thread::Thread::kLowest);
  worker.start();
  worker.waitForEnd();
}

TEST(FailingCalls, ThreadCanBeWaitedForAgain) {
  thread::Thread worker;
  worker.start();
  {
    const FailingCall fault(0, EINVAL, "pthread_join");
    EXPECT_EQ(MessageOf<thread::Thread::Error>([&] { worker.waitForEnd(); }),
              "Waiting for thread termination failed.");
  }
  EXPECT_EQ(MessageOf<thread::Thread::Error>([&] { worker.waitForEnd(); }), "");
}

// The system takes no time of a thousand million nanoseconds and more beside the seconds.
TEST(FailingCalls, TimeOutAcrossTheFullSecondIsAsLong) {
  timespec begin{};
  do {
    thread::sleep(1);
    clock_gettime(CLOCK_MONOTONIC, &begin);
  } while (begin.tv_nsec < 985'000'000);
  thread::SyncEvent event;
  EXPECT_EQ(event.wait(20), thread::kTimedOut);
  timespec end{};
  clock_gettime(CLOCK_MONOTONIC, &end);
  const double waited = static_cast<double>(end.tv_sec - begin.tv_sec) +
                        1e-9 * static_cast<double>(end.tv_nsec - begin.tv_nsec);
  EXPECT_GE(waited, 0.020);
  EXPECT_LT(waited, 5.0);
}

TEST(FailingCalls, NothingIsGivenBackPastTheMaximum) {
  thread::Semaphore semaphore(0ul);
  EXPECT_EQ(MessageOf<thread::Semaphore::Error>([&] { semaphore.unlock(0x80000000L); }),
            "Can't unlock semaphore.");
  EXPECT_EQ(semaphore.lock(0), thread::kTimedOut) << "nothing was";
}
