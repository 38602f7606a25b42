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

// Ends a process whose round hangs where no wait has a limit: a lost wake-up, most likely.
class Watch : public thread::Runnable {
 public:
  void Begin(const char* round, unsigned seed) {
    m_Round = round;
    m_Seed = seed;
    ++m_Rounds;
  }
  [[noreturn]] void run() override {
    for (unsigned seen = 0;;) {
      for (int i = 0; i < kMinutesOfARound * 60 && seen == m_Rounds; ++i) thread::sleep(1000);
      if (seen == m_Rounds) {
        std::printf("seed %u: %s: hangs for %d minutes\n", m_Seed.load(), m_Round.load(), kMinutesOfARound);
        std::fflush(stdout);
        std::_Exit(1);
      }
      seen = m_Rounds;
    }
  }

 private:
  std::atomic<const char*> m_Round = "";
  std::atomic<unsigned> m_Seed = 0, m_Rounds = 1;
};

// One round in three has several processes: starting them takes most of the time.
const stress::Round& Choose(stress::Chance& chance) {
  const auto& rounds = chance.OneIn(3) ? stress::kProcessRounds : stress::kThreadRounds;
  return rounds[static_cast<std::size_t>(chance.From(0, static_cast<int>(rounds.size()) - 1))];
}

}  // namespace

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
    s_Watch.Begin(round.name, seed);
    try {
      round.run(chance, tally);
    } catch (const std::exception& error) {
      std::printf("seed %u: %s: %s\n", seed, round.name, error.what());
      std::fflush(stdout);
      std::_Exit(1);
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
