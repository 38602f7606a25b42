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

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using thread::Semaphore;
using thread_tests::MessageOf;
using thread_tests::Own;

template <class Action>
std::string Failure(Action action) {
  return MessageOf<Semaphore::Error>(action);
}

ChildProcess Peer(const char* command, const char* name) {
  return ChildProcess({THREAD_PEER, command, name});
}

TEST(Semaphore, DefaultCountIsOne) {
  Semaphore semaphore;
  EXPECT_EQ(semaphore.lock(0), thread::kSignalled);
  EXPECT_EQ(semaphore.lock(0), thread::kTimedOut);
}

TEST(Semaphore, LockWithZeroTimeOutOnCountZeroReturnsAtOnce) {
  Semaphore semaphore(0);
  const auto start = steady_clock::now();
  EXPECT_EQ(semaphore.lock(0), thread::kTimedOut);
  EXPECT_LT(steady_clock::now() - start, milliseconds(500));
}

TEST(Semaphore, TimeOutLastsAsLongAsAsked) {
  Semaphore semaphore(0);
  const auto start = steady_clock::now();
  EXPECT_EQ(semaphore.lock(50), thread::kTimedOut);
  EXPECT_GE(steady_clock::now() - start, milliseconds(49));
}

TEST(Semaphore, UnlockOfZeroNegativeOrPastTheMaximumFailsAndChangesNothing) {
  Semaphore semaphore(0x7FFFFFFE);
  EXPECT_EQ(Failure([&] { semaphore.unlock(0); }), "Can't unlock semaphore.");
  EXPECT_EQ(Failure([&] { semaphore.unlock(-1); }), "Can't unlock semaphore.");
  EXPECT_EQ(Failure([&] { semaphore.unlock(2); }), "Can't unlock semaphore.");
  EXPECT_EQ(Failure([&] { semaphore.unlock(1); }), "");
  EXPECT_EQ(Failure([&] { semaphore.unlock(1); }), "Can't unlock semaphore.");
}

TEST(Semaphore, InitialCountPastTheMaximumIsRefused) {
  EXPECT_EQ(Failure([] { Semaphore semaphore(0x80000000ul); }), "Can't create semaphore.");
  EXPECT_EQ(Failure([] { Semaphore semaphore(0x7FFFFFFFul); }), "");
}

// How often a semaphore made from `count` can be locked at once; -1 where it is refused as it should be.
template <class Count>
int SlotsOf(Count count) {
  int slots = -1;
  const std::string failure = Failure([&] {
    Semaphore semaphore(count);
    for (slots = 0; slots < 10 && semaphore.lock(0) == thread::kSignalled;) ++slots;
  });
  EXPECT_EQ(failure, slots < 0 ? "Can't create semaphore." : "");
  return slots;
}

TEST(Semaphore, InitialCountMayHaveAnyIntegerType) {
  EXPECT_EQ(SlotsOf<signed char>(2), 2);
  EXPECT_EQ(SlotsOf<unsigned char>(2), 2);
  EXPECT_EQ(SlotsOf<short>(2), 2);
  EXPECT_EQ(SlotsOf<unsigned short>(2), 2);
  EXPECT_EQ(SlotsOf<int>(0), 0);
  EXPECT_EQ(SlotsOf<unsigned>(2), 2);
  EXPECT_EQ(SlotsOf<long>(2), 2);
  EXPECT_EQ(SlotsOf<unsigned long>(2), 2);
  EXPECT_EQ(SlotsOf<long long>(2), 2);
  EXPECT_EQ(SlotsOf<unsigned long long>(2), 2);
  EXPECT_EQ(SlotsOf<bool>(true), 1);
}

// 2^32 + 1 and 2^64 - 2^32 + 1 would be 1 when cut to 32 bits.
TEST(Semaphore, InitialCountOutOfRangeIsRefusedInEveryIntegerType) {
  EXPECT_EQ(SlotsOf<signed char>(-1), -1);
  EXPECT_EQ(SlotsOf<short>(-1), -1);
  EXPECT_EQ(SlotsOf<int>(-1), -1);
  EXPECT_EQ(SlotsOf<unsigned>(0x80000000u), -1);
  EXPECT_EQ(SlotsOf<long>(-1), -1);
  EXPECT_EQ(SlotsOf<long long>(-1), -1);
  EXPECT_EQ(SlotsOf<long long>(0x100000001), -1);
  EXPECT_EQ(SlotsOf<long long>(-0xFFFFFFFFLL), -1);
  EXPECT_EQ(SlotsOf<unsigned long long>(0x100000001), -1);
  EXPECT_EQ(SlotsOf<unsigned long long>(0xFFFFFFFF00000001), -1);
}

TEST(Semaphore, CountOfAnyIntegerTypeMayHaveAName) {
  const Semaphore made(3LL, Own("counted in long long"));
  EXPECT_EQ(Failure([] { Semaphore again(short{1}, Own("counted in long long")); }),
            "Semaphore already exists.");
  EXPECT_EQ(Failure([] { Semaphore refused(-1, Own("refused count")); }), "Can't create semaphore.");
}

TEST(Semaphore, EmptyNameIsNoName) {
  const Semaphore one(1, "");
  EXPECT_EQ(Failure([] { Semaphore other(1, ""); }), "");
  EXPECT_EQ(Failure([] { Semaphore opened(""); }), "Can't open existing semaphore.");
}

TEST(Semaphore, PrefixesOfNamesArePlainCharacters) {
  const std::string plain = Own("under one name only"), prefixed = "Global\\" + plain;
  const Semaphore first(1, plain.c_str());
  const Semaphore second(1, prefixed.c_str());
  EXPECT_EQ(Failure([&] { Semaphore again(1, prefixed.c_str()); }), "Semaphore already exists.");
}

TEST(Semaphore, SecondOfTheSameNameThrows) {
  Semaphore first(1, Own("semaphore twice"));
  EXPECT_EQ(Failure([] { Semaphore second(1, Own("semaphore twice")); }), "Semaphore already exists.");
}

TEST(Semaphore, NameTakenByAnEventCannotBeCreatedOrOpened) {
  thread::SyncEvent event(false, false, Own("taken by an event"));
  EXPECT_EQ(Failure([] { Semaphore semaphore(1, Own("taken by an event")); }), "Can't create semaphore.");
  EXPECT_EQ(Failure([] { Semaphore semaphore(Own("taken by an event")); }), "Can't open existing semaphore.");
}

TEST(Semaphore, OpeningAnUnknownNameThrows) {
  EXPECT_EQ(Failure([] { Semaphore semaphore(Own("nobody made this")); }), "Can't open existing semaphore.");
  EXPECT_EQ(Failure([] { Semaphore semaphore(static_cast<const char*>(nullptr)); }),
            "Can't open existing semaphore.");
}

TEST(Semaphore, OpenedOneSharesTheCount) {
  Semaphore made(0, Own("shared count"));
  Semaphore opened(Own("shared count"));
  opened.unlock(2);
  EXPECT_EQ(made.lock(0), thread::kSignalled);
  EXPECT_EQ(opened.lock(0), thread::kSignalled);
  EXPECT_EQ(made.lock(0), thread::kTimedOut);
}

TEST(Semaphore, NameIsFreeOnceTheLastHolderIsGone) {
  for (int i = 0; i < 3; ++i) {
    auto made = std::make_unique<Semaphore>(1, Own("last holder"));
    const Semaphore opened(Own("last holder"));
    made.reset();
    EXPECT_EQ(Failure([] { Semaphore again(1, Own("last holder")); }), "Semaphore already exists.");
  }
  EXPECT_EQ(Failure([] { Semaphore again(1, Own("last holder")); }), "");
}

TEST(Semaphore, NameMayHoldAnyCharacterAndAnyLength) {
  const std::string lengthy(1000, 'x');
  for (const std::string& plain : {std::string("a/b"), std::string("a\\b"), std::string("a%5Cb"),
                                   std::string("50 % \xC3\xA4\x01\n"), lengthy}) {
    const char* name = Own(plain);
    Semaphore made(1, name);
    Semaphore opened(name);
    EXPECT_EQ(Failure([&] { Semaphore again(1, name); }), "Semaphore already exists.") << name;
  }
  Semaphore one(1, Own("a\\b")), other(1, Own("a%5Cb"));
  Semaphore longer(1, Own(lengthy + "y")), longest(1, Own(lengthy + "z"));
}

TEST(Semaphore, EveryUnlockLetsOneWaiterGo) {
  constexpr int kWaiters = 8;
  for (int round = 0; round < 1000 / kWaiters; ++round) {
    Semaphore semaphore(0);
    std::atomic<int> through{0};
    std::vector<std::thread> waiters;
    for (int i = 0; i < kWaiters; ++i) {
      waiters.emplace_back([&] {
        semaphore.lock();
        ++through;
      });
    }
    for (int i = 0; i < kWaiters; ++i) semaphore.unlock();
    for (auto& waiter : waiters) waiter.join();
    ASSERT_EQ(through, kWaiters);
    ASSERT_EQ(semaphore.lock(0), thread::kTimedOut);
  }
}

TEST(Semaphore, OrdersTheMemoryOfThoseItPassesBetween) {
  Semaphore mine(0), yours(0);
  int ball = 0;
  std::thread other([&] {
    for (int i = 0; i < 1000; ++i) {
      yours.lock();
      ++ball;
      mine.unlock();
    }
  });
  for (int i = 0; i < 1000; ++i) {
    ++ball;
    yours.unlock();
    mine.lock();
  }
  other.join();
  EXPECT_EQ(ball, 2000);
}

TEST(SemaphoreBetweenProcesses, UnlockReachesTheOtherProcess) {
  Semaphore semaphore(0, Own("to the other process"));
  auto peer = Peer("wait-for-semaphore", Own("to the other process"));
  EXPECT_EQ(peer.ReadLine(), "waiting");
  semaphore.unlock();
  EXPECT_EQ(peer.ReadLine(), "got it");
  EXPECT_EQ(peer.Wait(), 0);
}

TEST(SemaphoreBetweenProcesses, OtherProcessUnlocksThisOne) {
  Semaphore semaphore(0, Own("from the other process"));
  auto peer = Peer("unlock-semaphore", Own("from the other process"));
  semaphore.lock();
  EXPECT_EQ(peer.ReadLine(), "unlocked");
}

TEST(SemaphoreBetweenProcesses, NameTakenThereIsTakenHere) {
  auto peer = Peer("hold-new-semaphore", Own("held there"));
  ASSERT_EQ(peer.ReadLine(), "holding");
  EXPECT_EQ(Failure([] { Semaphore semaphore(1, Own("held there")); }), "Semaphore already exists.");
  Semaphore opened(Own("held there"));
  EXPECT_EQ(opened.lock(0), thread::kTimedOut);
}

TEST(SemaphoreBetweenProcesses, KilledHolderLeavesNoName) {
  for (int round = 0; round < 10; ++round) {
    auto peer = Peer("hold-new-semaphore", Own("killed holder"));
    ASSERT_EQ(peer.ReadLine(), "holding");
    peer.Kill();
    EXPECT_EQ(Failure([] { Semaphore semaphore(1, Own("killed holder")); }), "");
  }
}

TEST(SemaphoreBetweenProcesses, NameLivesOnWithAnotherHolderWhenItsMakerIsKilled) {
  auto peer = Peer("hold-new-semaphore", Own("maker killed"));
  ASSERT_EQ(peer.ReadLine(), "holding");
  Semaphore opened(Own("maker killed"));
  peer.Kill();
  EXPECT_EQ(Failure([] { Semaphore semaphore(1, Own("maker killed")); }), "Semaphore already exists.");
  opened.unlock();
  EXPECT_EQ(opened.lock(0), thread::kSignalled);
}

TEST(SemaphoreBetweenProcesses, KilledWaiterTakesNothingWithIt) {
  Semaphore semaphore(0, Own("killed waiter"));
  auto peer = Peer("wait-for-semaphore", Own("killed waiter"));
  ASSERT_EQ(peer.ReadLine(), "waiting");
  thread::sleep(50);
  peer.Kill();
  semaphore.unlock();
  EXPECT_EQ(semaphore.lock(1000), thread::kSignalled);
}

}  // namespace
