// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The second process of the thread tests: thread_peer COMMAND NAME
#include <cstdio>
#include <cstring>

#include "common_interfaces/thread.h"

namespace {

int Say(const char* what) {
  std::puts(what);
  std::fflush(stdout);
  return 0;
}

int StayUntilKilled() {
  thread::sleep(600'000);
  return 1;
}

int Run(const char* command, const char* name) {
  if (std::strcmp(command, "hold-new-semaphore") == 0) {
    thread::Semaphore semaphore(1, name);
    semaphore.lock();
    Say("holding");
    return StayUntilKilled();
  }
  if (std::strcmp(command, "hold-new-event") == 0) {
    thread::SyncEvent event(true, true, name);
    Say("holding");
    return StayUntilKilled();
  }
  if (std::strcmp(command, "wait-for-semaphore") == 0) {
    thread::Semaphore semaphore(name);
    Say("waiting");
    semaphore.lock();
    return Say("got it");
  }
  if (std::strcmp(command, "wait-for-event") == 0) {
    thread::SyncEvent event(name);
    Say("waiting");
    event.wait();
    return Say("got it");
  }
  if (std::strcmp(command, "unlock-semaphore") == 0) {
    thread::Semaphore semaphore(name);
    semaphore.unlock();
    return Say("unlocked");
  }
  if (std::strcmp(command, "create-semaphore") == 0) {
    thread::Semaphore semaphore(0, name);
    return Say("created");
  }
  return 2;
}

}  // namespace

int main(int count, char** words) {
  if (count != 3) return 2;
  try {
    return Run(words[1], words[2]);
  } catch (const thread::GenericError& error) {
    return Say(error.what());
  }
}
