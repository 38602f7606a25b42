// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/thread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include "thread/message_of.h"

namespace {

using thread_tests::MessageOf;

class Counter : public thread::Runnable {
 public:
  void run() override { ++runs; }
  std::atomic<int> runs{0};
};

TEST(Thread, IsSuspendedUntilItIsStarted) {
  Counter counter;
  thread::Thread worker(&counter);
  thread::sleep(20);
  EXPECT_EQ(counter.runs, 0);
  worker.start();
  worker.waitForEnd();
  EXPECT_EQ(counter.runs, 1);
}

TEST(Thread, StartingTwiceThrows) {
  Counter counter;
  thread::Thread worker(&counter);
  worker.start();
  EXPECT_EQ(MessageOf<thread::Thread::Error>([&] { worker.start(); }), "Thread can be started only once.");
  worker.waitForEnd();
  EXPECT_EQ(counter.runs, 1);
}

TEST(Thread, WithoutRunnableRunsAndEndsAtOnce) {
  thread::Thread worker;
  worker.start();
  worker.waitForEnd();
}

TEST(Thread, DestroyedWithoutStartNeverRuns) {
  Counter counter;
  for (int i = 0; i < 100; ++i) thread::Thread worker(&counter);
  thread::sleep(20);
  EXPECT_EQ(counter.runs, 0);
}

TEST(Thread, WaitingAgainReturnsAtOnce) {
  thread::Thread worker;
  worker.start();
  worker.waitForEnd();
  worker.waitForEnd();
}

TEST(Thread, DerivedClassMayOverrideRun) {
  class Own : public thread::Thread {
   public:
    void run() override { ran = true; }
    std::atomic<bool> ran{false};
  };
  Own worker;
  worker.start();
  worker.waitForEnd();
  EXPECT_TRUE(worker.ran);
}

TEST(Thread, WaitingForItselfThrows) {
  class Self : public thread::Thread {
   public:
    void run() override {
      message = MessageOf<Error>([this] { waitForEnd(); });
    }
    std::string message;
  };
  Self worker;
  worker.start();
  worker.waitForEnd();
  EXPECT_EQ(worker.message, "Waiting for thread termination failed.");
}

TEST(Thread, PriorityOfSixIsIllegalAndChangesNothing) {
  thread::Thread worker;
  EXPECT_EQ(
      MessageOf<thread::Thread::Error>([&] { worker.setPriority(static_cast<thread::Thread::Priority>(6)); }),
      "Illegal priority value.");
  EXPECT_EQ(worker.getPriority(), thread::Thread::kNormal);
}

TEST(Thread, PriorityCanBeLoweredBeforeAndAfterStart) {
  thread::SyncEvent finish;
  class Waiter : public thread::Runnable {
   public:
    explicit Waiter(thread::SyncEvent& event) : m_Event(event) {}
    void run() override { m_Event.wait(); }

   private:
    thread::SyncEvent& m_Event;
  } waiter(finish);
  thread::Thread worker(&waiter);
  worker.setPriority(thread::Thread::kBelowNormal);
  EXPECT_EQ(worker.getPriority(), thread::Thread::kBelowNormal);
  worker.start();
  worker.setPriority(thread::Thread::kLowest);
  EXPECT_EQ(worker.getPriority(), thread::Thread::kLowest);
  finish.set();
  worker.waitForEnd();
}

TEST(Thread, ErrorsNameTheirClass) {
  thread::Thread worker;
  worker.start();
  try {
    worker.start();
    FAIL() << "the second start did not throw";
  } catch (const thread::GenericError& error) {
    EXPECT_STREQ(error.GetClassText(), "class Thread");
    EXPECT_STREQ(error.what(), "Thread can be started only once.");
  }
  worker.waitForEnd();
}

// A thread object on the stack goes out of scope the moment run has returned: the thread may not touch it
// after that.
TEST(Thread, ObjectMayBeDestroyedAsSoonAsRunHasReturned) {
  for (int round = 0; round < 1000; ++round) {
    thread::SyncEvent done;
    class Signaller : public thread::Runnable {
     public:
      explicit Signaller(thread::SyncEvent& event) : m_Event(event) {}
      void run() override { m_Event.set(); }

     private:
      thread::SyncEvent& m_Event;
    } signaller(done);
    thread::Thread worker(&signaller);
    worker.start();
    worker.waitForEnd();
    ASSERT_EQ(done.wait(0), thread::kSignalled);
  }
}

TEST(CriticalSection, IsRecursiveAndKeepsOthersOut) {
  thread::CritSect section;
  long counter = 0;
  class Adder : public thread::Runnable {
   public:
    Adder(thread::CritSect& section, long& counter) : m_Section(section), m_Counter(counter) {}
    void run() override {
      for (int i = 0; i < 10000; ++i) {
        m_Section.lock();
        m_Section.lock();
        ++m_Counter;
        m_Section.unlock();
        m_Section.unlock();
      }
    }

   private:
    thread::CritSect& m_Section;
    long& m_Counter;
  } adder(section, counter);
  thread::Thread one(&adder), two(&adder), three(&adder);
  for (auto* worker : {&one, &two, &three}) worker->start();
  for (auto* worker : {&one, &two, &three}) worker->waitForEnd();
  EXPECT_EQ(counter, 30000);
}

TEST(Sleep, LastsAtLeastAsLongAsAskedAndAnswersTrue) {
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(thread::sleep(30));
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(29));
  thread::yield();
}

}  // namespace
