// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// skyview as whole programs, from their start to their end: one answer, one picture. The time is that of the
// processor, in the program and in the system for it; the limit is a program that does nothing.
#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "bench/scratch_file.h"
#include "utils/program.h"

namespace bench {
namespace {

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
}

// Runs the program without its output; the seconds it took, negative when it failed.
double RunProgram(std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t quiet;
  posix_spawn_file_actions_init(&quiet);
  posix_spawn_file_actions_addopen(&quiet, 1, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error = posix_spawn(&child, arguments[0], &quiet, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&quiet);
  int status = 0;
  rusage usage{};
  if (error != 0 || wait4(child, &status, 0, &usage) != child || status != 0) return -1.0;
  return Seconds(usage.ru_utime) + Seconds(usage.ru_stime);
}

void Measure(benchmark::State& state, const std::vector<std::string>& words) {
  for (auto _ : state) {
    const double seconds = RunProgram(words);
    if (seconds < 0.0) return state.SkipWithError("skyview fails: build it and data_root");
    state.SetIterationTime(seconds);
  }
  state.SetItemsProcessed(state.iterations());
}

std::vector<std::string> Skyview(std::vector<std::string> words) {
  const auto program = std::filesystem::path(GetProgramFolder()) / "skyview";
  words.insert(words.begin(), program.string());
  words.insert(words.end(), {"--time", "2026-03-20T20:00"});
  return words;
}

void SkyviewAnswer(benchmark::State& state) { Measure(state, Skyview({"where", "Jupiter"})); }
// Orion and the winter Milky Way in a dark sky.
std::vector<std::string> Draw(const char* file) {
  return Skyview({"draw", "--size", "1600x1000", "--place", "52.5,13.4", "--zone", "UTC", "--look", "210,35",
                  "--out", ScratchPath(file)});
}
void SkyviewPng(benchmark::State& state) { Measure(state, Draw("sky.png")); }
void SkyviewSvg(benchmark::State& state) { Measure(state, Draw("sky.svg")); }
void Nothing(benchmark::State& state) { Measure(state, {"/bin/true"}); }

BENCHMARK(SkyviewAnswer)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(SkyviewPng)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(SkyviewSvg)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Nothing)->Name("SkyviewAnswerLimit")->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace bench
