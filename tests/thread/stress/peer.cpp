// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the processes do that a round has started.
#include <cstdio>
#include <cstdlib>

#include "common_interfaces/thread.h"
#include "thread/stress/shared_page.h"
#include "thread/stress/stress.h"

namespace stress {
namespace {

using thread::Semaphore;
using thread::SyncEvent;

struct Peer {
  const char* name;
  Page& page;
  Page::Peer& self;
  Chance chance;

  // Hasty ones are in the middle of an operation most of the time, and so most likely killed there.
  bool isHasty = false;

  bool GoesOn() const { return page.stop == 0; }
  unsigned long Patience() { return isHasty ? 0 : static_cast<unsigned long>(chance.From(0, 20)); }
  void Dawdle() {
    if (!isHasty) chance.Dawdle();
  }
};

void HoldSlots(Peer& peer) {
  Semaphore semaphore(peer.name);
  while (peer.GoesOn()) {
    peer.self.state = kTaking;
    const bool taken = semaphore.lock(peer.Patience()) == thread::kSignalled;
    ++peer.self.operations;
    if (taken) {
      peer.self.state = kHolding;
      peer.Dawdle();
      peer.self.state = kGiving;
      semaphore.unlock();
      ++peer.self.operations;
    }
    peer.self.state = kIdle;
  }
}

void WaitOnce(Peer& peer) {
  Semaphore semaphore(peer.name);
  peer.self.state = kTaking;
  semaphore.lock();
  ++peer.self.operations;
  peer.self.state = kDone;
}

void ListenOnce(Peer& peer) {
  SyncEvent event(peer.name);
  peer.self.state = kTaking;
  event.wait();
  ++peer.self.operations;
  peer.self.state = kDone;
}

// An owner that is killed keeps its state, but was doomed before its name became free.
bool IsOwnedByAnother(const Peer& peer) {
  for (const Page::Peer& other : peer.page.peers)
    if (&other != &peer.self && other.state == kHolding && other.doomed == 0) return true;
  return false;
}

void MakeAndOwn(Peer& peer) {
  while (peer.GoesOn()) {
    try {
      const Semaphore semaphore(1, peer.name);
      peer.self.state = kHolding;
      Hold(!IsOwnedByAnother(peer), "a name was made by two processes");
      peer.Dawdle();
      peer.self.state = kIdle;
    } catch (const Semaphore::Error& error) {
      Hold(std::string("Semaphore already exists.") == error.what(), error.what());
      peer.Dawdle();
    }
    ++peer.self.operations;
  }
}

}  // namespace

int RunPeer(const std::vector<std::string>& words) {
  if (words.size() != 5) return 2;
  const struct {
    const char* name;
    void (*run)(Peer& peer);
  } kRoles[] = {{"hold", HoldSlots}, {"wait", WaitOnce}, {"listen", ListenOnce}, {"make", MakeAndOwn}};
  const SharedPage page(words[2], false);
  const auto seed = static_cast<unsigned>(std::strtoul(words[4].c_str(), nullptr, 10));
  Page::Peer& self = page->peers[std::atoi(words[3].c_str()) % Page::kSlots];
  Peer peer{words[1].c_str(), *page, self, Chance(seed)};
  peer.isHasty = !peer.chance.OneIn(4);
  try {
    for (const auto& role : kRoles)
      if (words[0] == role.name) role.run(peer);
    return 0;
  } catch (const std::exception& error) {
    std::puts(error.what());
    self.state = kFailed;
    return 1;
  }
}

}  // namespace stress
