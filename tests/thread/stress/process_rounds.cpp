// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The rounds of several processes, some of which are killed wherever they are.
#include <algorithm>
#include <deque>

#include "common_interfaces/thread.h"
#include "thread/child_process.h"
#include "thread/stress/shared_page.h"
#include "thread/stress/stress.h"

namespace stress {
namespace {

using thread::Semaphore;
using thread::SyncEvent;

// The processes of a round.
class Peers {
 public:
  Peers(const char* role, const std::string& name) : m_Role(role), m_Name(name) {}

  void Start(Chance& chance, int count) {
    for (; count > 0; --count)
      m_Processes.emplace_back(std::vector<std::string>{g_Program, "peer", m_Role, m_Name, m_Page,
                                                        std::to_string(m_Processes.size()),
                                                        std::to_string(chance.Seed())});
  }

  // One that still lives, at once and wherever it is; returns the state in which it was.
  unsigned KillOne(Chance& chance, Tally& tally) {
    std::size_t which;
    do which = static_cast<std::size_t>(chance.From(0, GetCount() - 1));
    while (page->peers[which].doomed != 0);
    page->peers[which].doomed = 1;
    m_Processes[which].Kill();
    ++tally.kills;
    return page->peers[which].state;
  }

  int CountIn(unsigned state) const {
    int count = 0;
    for (int i = 0; i < GetCount(); ++i)
      if (page->peers[i].doomed == 0 && page->peers[i].state == state) ++count;
    return count;
  }

  // Until so many of those that live are in that state.
  void Await(unsigned state, int count, const char* otherwise) const {
    for (unsigned long waited = 0; CountIn(state) != count; ++waited) {
      Hold(CountIn(kFailed) == 0, "a process found something broken, or failed");
      Hold(waited < kPatience, otherwise);
      thread::sleep(1);
    }
  }

  // Asks those that live to end, and sees that they end well.
  void Finish(Tally& tally) {
    page->stop = 1;
    for (int i = 0; i < GetCount(); ++i) {
      tally.operations += page->peers[i].operations;
      if (page->peers[i].doomed != 0) continue;
      std::string said;
      for (std::string line; !(line = m_Processes[static_cast<std::size_t>(i)].ReadLine()).empty();)
        said += line;
      const int status = m_Processes[static_cast<std::size_t>(i)].Wait();
      Hold(status == 0, ("a process ended with " + std::to_string(status) + ": " + said).c_str());
    }
  }

  int GetCount() const { return static_cast<int>(m_Processes.size()); }

 private:
  std::string m_Role, m_Name, m_Page = MakeName("page");

 public:
  SharedPage page{m_Page, true};

 private:
  std::deque<ChildProcess> m_Processes;
};

// What is left of a semaphore, which is then empty.
int TakeRest(Semaphore& semaphore) {
  int rest = 0;
  while (semaphore.lock(0) == thread::kSignalled) ++rest;
  return rest;
}

// Nobody holds the name any more: it can be made anew, and is new.
void MakeAgain(const std::string& name, Tally& tally) {
  Semaphore again(2, name.c_str());
  Hold(TakeRest(again) == 2, "a semaphore that is made anew has something of the old one");
  tally.operations += 4;
}

// What a killed process held stays taken and nothing else is lost; never more inside than there are slots.
void KillHolders(Chance& chance, Tally& tally) {
  const std::string name = MakeName("holders");
  const int slots = chance.From(1, 4), kills = chance.From(1, 4);
  Peers peers("hold", name);
  {
    Semaphore semaphore(slots, name.c_str());
    peers.Start(chance, kills + chance.From(1, 3));
    int held = 0, unsure = 0;
    for (int i = 0; i < kills; ++i) {
      thread::sleep(static_cast<unsigned long>(chance.From(0, 40)));
      const unsigned state = peers.KillOne(chance, tally);
      if (state == kHolding) ++held;
      if (state == kTaking || state == kGiving) ++unsure;
    }
    thread::sleep(static_cast<unsigned long>(chance.From(0, 20)));
    peers.Finish(tally);
    const int rest = TakeRest(semaphore);
    Hold(rest <= slots - held, "a slot that a killed process held came back");
    Hold(rest >= slots - held - unsure, "a slot was lost that nobody held");
  }
  MakeAgain(name, tally);
}

// Whatever is released after waiters were killed reaches those that are left.
void KillWaiters(Chance& chance, Tally& tally) {
  const std::string name = MakeName("waiters");
  const int kills = chance.From(1, 3), rest = chance.From(1, 4);
  const bool atOnce = chance.OneIn(2);
  Peers peers("wait", name);
  {
    Semaphore semaphore(0, name.c_str());
    peers.Start(chance, kills + rest);
    peers.Await(kTaking, kills + rest, "a process did not come to wait");
    if (chance.OneIn(2)) thread::sleep(static_cast<unsigned long>(chance.From(0, 10)));
    // With as much for the killed ones, who may or may not have got it before.
    if (atOnce) semaphore.unlock(kills + rest);
    for (int i = 0; i < kills; ++i) peers.KillOne(chance, tally);
    if (!atOnce) semaphore.unlock(rest);
    tally.operations += 1;
    peers.Await(kDone, rest, "a killed waiter took a wake-up with it");
    peers.Finish(tally);
    Hold(TakeRest(semaphore) <= (atOnce ? kills : 0), "a semaphore has more than was released and not taken");
  }
  MakeAgain(name, tally);
}

// Every set of an automatic event lets one of those go that are left, and one only.
void KillListeners(Chance& chance, Tally& tally) {
  const std::string name = MakeName("listeners");
  const int kills = chance.From(1, 3), rest = chance.From(1, 4);
  Peers peers("listen", name);
  {
    SyncEvent event(false, false, name.c_str());
    peers.Start(chance, kills + rest);
    peers.Await(kTaking, kills + rest, "a process did not come to listen");
    for (int i = 0; i < kills; ++i) peers.KillOne(chance, tally);
    for (int done = 1; done <= rest; ++done) {
      event.set();
      ++tally.operations;
      peers.Await(kDone, done, "a set event woke nobody, or more than one");
    }
    peers.Finish(tally);
    Hold(event.wait(0) == thread::kTimedOut, "an automatic event that was received stays set");
  }
  MakeAgain(name, tally);
}

// However those end that have made a name: it is never made twice, and it is free afterwards.
void KillMakers(Chance& chance, Tally& tally) {
  const std::string name = MakeName("makers");
  const int kills = chance.From(1, 4);
  Peers peers("make", name);
  peers.Start(chance, kills + chance.From(1, 3));
  for (int i = 0; i < kills; ++i) {
    thread::sleep(static_cast<unsigned long>(chance.From(0, 40)));
    peers.KillOne(chance, tally);
  }
  peers.Finish(tally);
  MakeAgain(name, tally);
}

}  // namespace

const std::vector<Round> kProcessRounds = {{"killed holders of a semaphore", KillHolders},
                                           {"killed waiters of a semaphore", KillWaiters},
                                           {"killed waiters of an event", KillListeners},
                                           {"killed makers of a name", KillMakers}};

}  // namespace stress
