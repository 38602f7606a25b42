// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "thread/stress/stress.h"

#include <chrono>
#include <exception>
#include <memory>

#include "common_interfaces/thread.h"

namespace stress {
namespace {

class Worker : public thread::Runnable {
 public:
  Worker(const Work& work, unsigned seed) : m_Work(work), m_Chance(seed), m_Thread(this) {}

  void run() override {
    try {
      m_Work(m_Chance);
    } catch (const std::exception& error) {
      Fail(error.what());
    }
  }
  void Start() { m_Thread.start(); }
  void Wait() { m_Thread.waitForEnd(); }

 private:
  Work m_Work;
  Chance m_Chance;
  thread::Thread m_Thread;
};

}  // namespace

std::string g_Program;

void Chance::Dawdle() {
  const int kind = From(0, 63);
  if (kind < 8) thread::yield();
  if (kind == 8) thread::sleep(static_cast<unsigned long>(From(0, 2)));
}

void Chance::Spin() {
  volatile int steps = From(0, 400);
  while (steps > 0) steps = steps - 1;
}

std::string MakeName(const std::string& kind) {
  static const std::string s_Run =
      std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
  static int s_Names = 0;
  return "stress" + s_Run + "n" + std::to_string(++s_Names) + kind;
}

void RunTogether(Chance& chance, const std::vector<Work>& works) {
  std::vector<std::unique_ptr<Worker>> workers;
  for (const Work& work : works) workers.push_back(std::make_unique<Worker>(work, chance.Seed()));
  for (const auto& worker : workers) worker->Start();
  for (const auto& worker : workers) worker->Wait();
}

}  // namespace stress
