// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the rounds of the stress have in common. A round takes primitives of its own, uses them by several
// threads or processes in a random order, and throws when something does not hold that always must.
#pragma once

#include <atomic>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace stress {

// How long a wait may last that something is certain to end: far beyond what a loaded machine takes.
constexpr unsigned long kPatience = 60'000;

// Random numbers that a seed determines, the same on every platform.
class Chance {
 public:
  explicit Chance(unsigned seed) : m_Engine(seed) {}

  // From `least` to `most`, both included.
  int From(int least, int most) {
    return least + static_cast<int>(m_Engine() % static_cast<unsigned>(most - least + 1));
  }
  bool OneIn(int count) { return From(1, count) == 1; }
  unsigned Seed() { return static_cast<unsigned>(m_Engine()); }
  // Nothing, the rest of the time slice, or up to a few milliseconds.
  void Dawdle();
  // Up to a few hundred steps of the processor: what meets within a few instructions is met by this alone.
  void Spin();

 private:
  std::mt19937 m_Engine;
};

// What all rounds have done; any thread.
struct Tally {
  std::atomic<unsigned long long> operations = 0;  // calls of a primitive
  std::atomic<unsigned> kills = 0;                 // processes
};

class Broken : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

inline void Hold(bool condition, const char* what) {
  if (!condition) throw Broken(what);
}

// A name that no other run of the stress and no earlier call has.
std::string MakeName(const std::string& kind);

using Work = std::function<void(Chance& chance)>;

// Ends this process: the others of a round may wait for ever for the one that has failed.
[[noreturn]] void Fail(const char* what);  // stress_main.cpp

// Runs each of them on a thread::Thread, with chances of its own, until all have ended.
void RunTogether(Chance& chance, const std::vector<Work>& works);

struct Round {
  const char* name;
  void (*run)(Chance& chance, Tally& tally);
};

extern const std::vector<Round> kThreadRounds;   // thread_rounds.cpp
extern const std::vector<Round> kProcessRounds;  // process_rounds.cpp

// What a process does that a round has started; its exit status. Words: ROLE NAME PAGE SLOT SEED.
int RunPeer(const std::vector<std::string>& words);

// The file of this program.
extern std::string g_Program;

}  // namespace stress
