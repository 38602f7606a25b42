// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The rounds of one process.
#include <algorithm>
#include <memory>

#include "common_interfaces/thread.h"
#include "thread/message_of.h"
#include "thread/stress/stress.h"

namespace stress {
namespace {

using thread::CritSect;
using thread::Semaphore;
using thread::SyncEvent;
using thread_tests::MessageOf;

// None, or a name that nobody has, of characters that are special elsewhere or long.
std::string SomeName(Chance& chance) {
  static const std::string s_Kinds[] = {
      "", "plain", "Global\\stress", "Local\\a%5Cb", "with / and : and \"", std::string(5000, 'n')};
  const std::string& kind = s_Kinds[chance.From(0, 5)];
  return kind.empty() ? kind : MakeName(kind);
}

// Never more inside than there are slots, and in the end all slots are free.
void ExcludeBySemaphore(Chance& chance, Tally& tally) {
  const int slots = chance.From(1, 4), turns = chance.From(20, 300);
  const std::string name = SomeName(chance);
  Semaphore semaphore(slots, name.c_str());
  std::atomic<int> inside = 0;
  const Work work = [&](Chance& own) {
    for (int i = 0; i < turns; ++i) {
      const bool timed = own.OneIn(3);
      const auto milliseconds = static_cast<unsigned long>(own.From(0, 3));
      tally.operations += 2;
      if (!timed) {
        semaphore.lock();
      } else if (semaphore.lock(milliseconds) == thread::kTimedOut) {
        continue;
      }
      Hold(++inside <= slots, "more threads hold a semaphore than it has slots");
      own.Dawdle();
      --inside;
      semaphore.unlock();
    }
  };
  RunTogether(chance, std::vector<Work>(static_cast<std::size_t>(chance.From(2, 8)), work));
  for (int i = 0; i < slots; ++i)
    Hold(semaphore.lock(0) == thread::kSignalled, "a slot of a semaphore was lost");
  Hold(semaphore.lock(0) == thread::kTimedOut, "a semaphore has a slot too many");
}

// Whatever is released reaches a waiter, however the releases are divided.
void WakeAllWaiters(Chance& chance, Tally& tally) {
  const int waiters = chance.From(1, 8), turns = chance.From(1, 100);
  const std::string name = SomeName(chance);
  Semaphore semaphore(0, name.c_str());
  std::vector<Work> works(static_cast<std::size_t>(waiters), [&](Chance&) {
    for (int i = 0; i < turns; ++i) {
      Hold(semaphore.lock(kPatience) == thread::kSignalled, "a waiter of a semaphore was never woken");
      ++tally.operations;
    }
  });
  works.push_back([&](Chance& own) {
    for (int left = waiters * turns; left > 0;) {
      const int count = own.From(1, std::min(left, 5));
      own.Dawdle();
      semaphore.unlock(count);
      ++tally.operations;
      left -= count;
    }
  });
  RunTogether(chance, works);
  Hold(semaphore.lock(0) == thread::kTimedOut, "a semaphore has more than was released and not taken");
}

// A sum that only the lock protects, entered again by who holds it.
void ExcludeByCritSect(Chance& chance, Tally& tally) {
  const int threads = chance.From(2, 8), turns = chance.From(50, 2000);
  CritSect section;
  int sum = 0;
  const Work work = [&](Chance& own) {
    for (int i = 0; i < turns; ++i) {
      const int depth = own.From(1, 4);
      for (int d = 0; d < depth; ++d) section.lock();
      const int before = sum;
      if (own.OneIn(50)) own.Dawdle();
      sum = before + 1;
      for (int d = 0; d < depth; ++d) section.unlock();
      tally.operations += static_cast<unsigned>(2 * depth);
    }
  };
  RunTogether(chance, std::vector<Work>(static_cast<std::size_t>(threads), work));
  Hold(sum == threads * turns, "two threads were in a critical section at once");
}

// Two threads that set each other's event: what stands between them needs no other lock.
void PassBetweenTwo(Chance& chance, Tally& tally) {
  const int turns = chance.From(20, 2000);
  const std::string nameThere = SomeName(chance), nameBack = SomeName(chance);
  SyncEvent there(false, false, nameThere.c_str()), back(false, false, nameBack.c_str());
  int ball = 0;
  const auto player = [&](SyncEvent& mine, SyncEvent& other, int parity) {
    return [&mine, &other, &ball, &tally, turns, parity](Chance& own) {
      for (int i = 0; i < turns; ++i) {
        Hold(mine.wait(kPatience) == thread::kSignalled, "a set event woke nobody");
        Hold(ball == 2 * i + parity, "an automatic event let a thread go twice");
        ++ball;
        if (own.OneIn(16)) own.Dawdle();
        other.set();
        tally.operations += 2;
      }
    };
  };
  there.set();
  RunTogether(chance, {player(there, back, 0), player(back, there, 1)});
  Hold(ball == 2 * turns && there.wait(0) == thread::kSignalled, "the last set of an event was lost");
}

// One sets or releases while the other is about to sleep, who must not miss that between its last look and
// its sleep. The sleeper announces itself, so that both are there within a few instructions.
void MeetBeforeSleep(Chance& chance, Tally& tally) {
  const int turns = chance.From(20, 300);
  const bool isEvent = chance.OneIn(2);
  SyncEvent event(false, false);
  Semaphore semaphore(0);
  std::atomic<int> announced = 0;
  const Work sleeper = [&](Chance& own) {
    for (int i = 1; i <= turns; ++i) {
      announced = i;
      own.Spin();
      const auto end = isEvent ? event.wait(kPatience) : semaphore.lock(kPatience);
      Hold(end == thread::kSignalled, "who was about to sleep was never woken");
      tally.operations += 2;
    }
  };
  const Work waker = [&](Chance& own) {
    for (int i = 1; i <= turns; ++i) {
      for (int looks = 0; announced != i; ++looks)
        if (looks > 1000) thread::yield();
      own.Spin();
      isEvent ? event.set() : semaphore.unlock();
    }
  };
  RunTogether(chance, {sleeper, waker});
}

// A manual event lets every waiter go, early or late, until it is reset.
void OpenGate(Chance& chance, Tally& tally) {
  const std::string name = SomeName(chance);
  SyncEvent gate(false, true, name.c_str());
  for (int i = chance.From(1, 10); i > 0; --i) {
    std::atomic<bool> opened = false;
    std::vector<Work> works(static_cast<std::size_t>(chance.From(1, 8)), [&](Chance& own) {
      own.Dawdle();
      Hold(gate.wait(kPatience) == thread::kSignalled, "a waiter of a manual event was never woken");
      Hold(opened, "a manual event let a thread go before it was set");
      ++tally.operations;
    });
    works.push_back([&](Chance& own) {
      own.Dawdle();
      opened = true;
      gate.set();
    });
    RunTogether(chance, works);
    Hold(gate.wait(0) == thread::kSignalled, "a manual event did not stay set");
    gate.reset();
    Hold(gate.wait(0) == thread::kTimedOut, "an event that was reset is set");
    tally.operations += 4;
  }
}

// An automatic event never lets more threads go than it was set.
void CountSets(Chance& chance, Tally& tally) {
  const int sets = chance.From(1, 500);
  const std::string name = SomeName(chance);
  SyncEvent event(false, false, name.c_str());
  std::atomic<bool> done = false;
  std::atomic<int> received = 0;
  std::vector<Work> works(static_cast<std::size_t>(chance.From(1, 6)), [&](Chance& own) {
    while (!done) {
      if (event.wait(static_cast<unsigned long>(own.From(0, 2))) == thread::kSignalled) ++received;
      ++tally.operations;
    }
  });
  works.push_back([&](Chance& own) {
    for (int i = 0; i < sets; ++i) {
      own.Dawdle();
      event.set();
      ++tally.operations;
    }
    done = true;
  });
  RunTogether(chance, works);
  if (event.wait(0) == thread::kSignalled) ++received;
  Hold(received >= 1 && received <= sets, "an automatic event let more threads go than it was set");
  Hold(event.wait(0) == thread::kTimedOut, "an automatic event stays set");
}

// Of all who make a name at once one has it.
void RaceForName(Chance& chance, Tally& tally) {
  const std::string name = MakeName("race");
  const int turns = chance.From(5, 40);
  std::atomic<int> owners = 0, made = 0;
  const Work work = [&](Chance& own) {
    for (int i = 0; i < turns; ++i) {
      const auto whileOwned = [&] {
        Hold(++owners == 1, "a name was made twice");
        ++made;
        own.Dawdle();
        --owners;
      };
      // A name that another kind has is another error than one that the same kind has.
      if (own.OneIn(2)) {
        const std::string failure = MessageOf<SyncEvent::Error>([&] {
          const SyncEvent event(false, false, name.c_str());
          whileOwned();
        });
        Hold(failure.empty() || failure == "Event already exists." || failure == "Can't create event.",
             "an odd error");
      } else {
        const std::string failure = MessageOf<Semaphore::Error>([&] {
          const Semaphore semaphore(1, name.c_str());
          whileOwned();
        });
        Hold(
            failure.empty() || failure == "Semaphore already exists." || failure == "Can't create semaphore.",
            "an odd error");
      }
      ++tally.operations;
    }
  };
  RunTogether(chance, std::vector<Work>(static_cast<std::size_t>(chance.From(2, 5)), work));
  Hold(made > 0, "nobody could make a name");
  const Semaphore free(1, name.c_str());
}

// Threads that are never started, that are waited for once or twice, and that nobody waits for.
void LiveAndDie(Chance& chance, Tally& tally) {
  struct Count : thread::Runnable {
    void run() override { ++runs; }
    std::atomic<int> runs = 0;
  };
  Count count;
  int started = 0;
  std::vector<std::unique_ptr<thread::Thread>> threads;
  for (int i = chance.From(1, 20); i > 0; --i) {
    threads.push_back(std::make_unique<thread::Thread>(&count));
    tally.operations += 3;
    if (chance.OneIn(4)) continue;
    threads.back()->start();
    ++started;
    for (int waits = chance.From(0, 2); waits > 0; --waits) threads.back()->waitForEnd();
  }
  for (unsigned long waited = 0; count.runs != started; ++waited) {
    Hold(waited < kPatience, "a thread that was started never ran");
    thread::sleep(1);
  }
}

}  // namespace

const std::vector<Round> kThreadRounds = {{"exclusion by a semaphore", ExcludeBySemaphore},
                                          {"waiters of a semaphore", WakeAllWaiters},
                                          {"exclusion by a critical section", ExcludeByCritSect},
                                          {"two events", PassBetweenTwo},
                                          {"a release before a sleep", MeetBeforeSleep},
                                          {"a manual event", OpenGate},
                                          {"sets of an automatic event", CountSets},
                                          {"race for a name", RaceForName},
                                          {"lives of threads", LiveAndDie}};

}  // namespace stress
