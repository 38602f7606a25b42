// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "common_interfaces/thread.h"
#include "thread/child_process.h"
#include "thread/message_of.h"
#include "thread/own_name.h"

namespace {

using thread::SyncEvent;
using thread_tests::MessageOf;
using thread_tests::Own;

template <class Action>
std::string Failure(Action action) {
  return MessageOf<SyncEvent::Error>(action);
}

TEST(SyncEvent, AutomaticOneIsResetByOneWait) {
  SyncEvent event(true);
  EXPECT_EQ(event.wait(0), thread::kSignalled);
  EXPECT_EQ(event.wait(0), thread::kTimedOut);
}

TEST(SyncEvent, ManualOneStaysSetUntilReset) {
  SyncEvent event(false, true);
  EXPECT_EQ(event.wait(0), thread::kTimedOut);
  event.set();
  EXPECT_EQ(event.wait(0), thread::kSignalled);
  EXPECT_EQ(event.wait(0), thread::kSignalled);
  event.reset();
  EXPECT_EQ(event.wait(0), thread::kTimedOut);
}

TEST(SyncEvent, SetTwiceWithoutAWaiterReleasesOne) {
  SyncEvent event;
  event.set();
  event.set();
  EXPECT_EQ(event.wait(0), thread::kSignalled);
  EXPECT_EQ(event.wait(0), thread::kTimedOut);
}

TEST(SyncEvent, SecondOfTheSameNameThrows) {
  SyncEvent first(false, false, Own("event twice"));
  EXPECT_EQ(Failure([] { SyncEvent second(false, false, Own("event twice")); }), "Event already exists.");
  EXPECT_EQ(Failure([] { SyncEvent second(false, true, Own("event twice")); }), "Event already exists.");
}

TEST(SyncEvent, NameTakenBySemaphoreCannotBeCreatedOrOpened) {
  thread::Semaphore semaphore(1, Own("taken by a semaphore"));
  EXPECT_EQ(Failure([] { SyncEvent event(false, false, Own("taken by a semaphore")); }),
            "Can't create event.");
  EXPECT_EQ(Failure([] { SyncEvent event(Own("taken by a semaphore")); }), "Can't open existing event.");
}

TEST(SyncEvent, EmptyNameIsNoName) {
  const SyncEvent one(false, false, "");
  EXPECT_EQ(Failure([] { SyncEvent other(false, false, ""); }), "");
  EXPECT_EQ(Failure([] { SyncEvent opened(""); }), "Can't open existing event.");
}

TEST(SyncEvent, OpeningAnUnknownNameThrows) {
  EXPECT_EQ(Failure([] { SyncEvent event(Own("no such event")); }), "Can't open existing event.");
}

// Each set lets one of the waiting threads go, also when no thread has run between two sets.
TEST(SyncEvent, EverySetOfAnAutomaticEventLetsOneWaiterGo) {
  constexpr int kWaiters = 4;
  for (int round = 0; round < 10; ++round) {
    SyncEvent event;
    std::atomic<int> waiting{0}, through{0};
    std::vector<std::thread> waiters;
    for (int i = 0; i < kWaiters; ++i) {
      waiters.emplace_back([&] {
        ++waiting;
        if (event.wait(20'000) == thread::kSignalled) ++through;
      });
    }
    while (waiting < kWaiters) std::this_thread::yield();
    thread::sleep(60);  // all of them are asleep in the wait now
    for (int i = 0; i < kWaiters; ++i) event.set();
    for (auto& waiter : waiters) waiter.join();
    ASSERT_EQ(through, kWaiters);
    ASSERT_EQ(event.wait(0), thread::kTimedOut);
  }
}

TEST(SyncEvent, ManualEventLetsEveryWaiterGoEvenWhenResetAtOnce) {
  constexpr int kWaiters = 4;
  for (int round = 0; round < 10; ++round) {
    SyncEvent event(false, true);
    std::atomic<int> waiting{0}, through{0};
    std::vector<std::thread> waiters;
    for (int i = 0; i < kWaiters; ++i) {
      waiters.emplace_back([&] {
        ++waiting;
        if (event.wait(20'000) == thread::kSignalled) ++through;
      });
    }
    while (waiting < kWaiters) std::this_thread::yield();
    thread::sleep(60);
    event.set();
    event.reset();
    for (auto& waiter : waiters) waiter.join();
    ASSERT_EQ(through, kWaiters);
  }
}

TEST(SyncEvent, ThousandRoundsOfPingPongDoNotHang) {
  SyncEvent ping, pong;
  int ball = 0;
  std::thread other([&] {
    for (int i = 0; i < 1000; ++i) {
      ping.wait();
      ++ball;
      pong.set();
    }
  });
  for (int i = 0; i < 1000; ++i) {
    ping.set();
    pong.wait();
  }
  other.join();
  EXPECT_EQ(ball, 1000);
}

// ThreadSanitizer sees whether one of them does it beside the others.
TEST(SyncEvent, MayBeSetResetAndAskedByAllAtOnce) {
  SyncEvent event(false, true);
  std::vector<std::thread> threads;
  for (int i = 0; i < 3; ++i) {
    threads.emplace_back([&event] {
      for (int round = 0; round < 300; ++round) {
        event.set();
        event.wait(0);
        event.reset();
      }
    });
  }
  for (auto& each : threads) each.join();
  EXPECT_EQ(event.wait(0), thread::kTimedOut) << "each has reset it last";
  event.set();
  EXPECT_EQ(event.wait(0), thread::kSignalled);
}

TEST(SyncEventBetweenProcesses, SetReachesTheOtherProcess) {
  SyncEvent event(false, false, Own("event to the other"));
  ChildProcess peer({THREAD_PEER, "wait-for-event", Own("event to the other")});
  EXPECT_EQ(peer.ReadLine(), "waiting");
  event.set();
  EXPECT_EQ(peer.ReadLine(), "got it");
}

TEST(SyncEventBetweenProcesses, KilledHolderLeavesNoName) {
  for (int round = 0; round < 10; ++round) {
    ChildProcess peer({THREAD_PEER, "hold-new-event", Own("killed event holder")});
    ASSERT_EQ(peer.ReadLine(), "holding");
    EXPECT_EQ(Failure([] { SyncEvent event(false, false, Own("killed event holder")); }),
              "Event already exists.");
    peer.Kill();
    EXPECT_EQ(Failure([] { SyncEvent event(false, false, Own("killed event holder")); }), "");
  }
}

TEST(SyncEventBetweenProcesses, KilledWaiterDoesNotSwallowTheSet) {
  SyncEvent event(false, false, Own("killed event waiter"));
  ChildProcess peer({THREAD_PEER, "wait-for-event", Own("killed event waiter")});
  ASSERT_EQ(peer.ReadLine(), "waiting");
  thread::sleep(50);
  peer.Kill();
  event.set();
  EXPECT_EQ(event.wait(1000), thread::kSignalled);
}

}  // namespace
