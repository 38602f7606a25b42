// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// thread_stress SECONDS SEED: random rounds until the time is over. The seed is that of the first round, the
// next one has the next seed, and so on: a round that fails is repeated by `thread_stress 0 ITS_SEED`.
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "common_interfaces/thread.h"
#include "thread/stress/stress.h"

namespace {

using std::chrono::steady_clock;

constexpr int kMinutesOfARound = 10;

// The round that runs.
std::atomic<const char*> s_Round = "";
std::atomic<unsigned> s_Seed = 0, s_Rounds = 1;

// Ends a process whose round hangs where no wait has a limit: a lost wake-up, most likely.
class Watch : public thread::Runnable {
 public:
  [[noreturn]] void run() override {
    for (unsigned seen = 0; seen != s_Rounds;) {
      seen = s_Rounds;
      for (int i = 0; i < kMinutesOfARound * 60 && seen == s_Rounds; ++i) thread::sleep(1000);
    }
    stress::Fail("hangs");
  }
};

// One round in three has several processes: starting them takes most of the time.
const stress::Round& Choose(stress::Chance& chance) {
  const auto& rounds = chance.OneIn(3) ? stress::kProcessRounds : stress::kThreadRounds;
  return rounds[static_cast<std::size_t>(chance.From(0, static_cast<int>(rounds.size()) - 1))];
}

}  // namespace

void stress::Fail(const char* what) {
  std::printf("seed %u: %s: %s\n", s_Seed.load(), s_Round.load(), what);
  std::fflush(stdout);
  std::_Exit(1);
}

int main(int count, char** words) {
  stress::g_Program = words[0];
  if (count > 1 && std::string(words[1]) == "peer") return stress::RunPeer({words + 2, words + count});
  if (count != 3) {
    std::puts("usage: thread_stress SECONDS SEED");
    return 2;
  }
  const auto seconds = std::chrono::seconds(std::atoi(words[1]));
  unsigned seed = static_cast<unsigned>(std::strtoul(words[2], nullptr, 10));
  std::printf("seed %u\n", seed);
  std::fflush(stdout);

  static Watch s_Watch;
  static thread::Thread s_WatchThread(&s_Watch);
  s_WatchThread.start();
  stress::Tally tally;
  unsigned rounds = 0;
  const auto begin = steady_clock::now();
  do {
    stress::Chance chance(seed);
    const stress::Round& round = Choose(chance);
    s_Round = round.name;
    s_Seed = seed;
    ++s_Rounds;
    try {
      round.run(chance, tally);
    } catch (const std::exception& error) {
      stress::Fail(error.what());
    }
    ++rounds;
    ++seed;
  } while (steady_clock::now() - begin < seconds);
  const auto took = std::chrono::duration_cast<std::chrono::seconds>(steady_clock::now() - begin).count();
  std::printf("%lld seconds, %u rounds, %llu operations, %u processes killed: nothing broken\n",
              static_cast<long long>(took), rounds, tally.operations.load(), tally.kills.load());
  std::fflush(stdout);
  std::_Exit(0);  // the watch never ends
}
