// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "programs/program_run.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace program_tests {
namespace {

constexpr unsigned kMostSeconds = 60;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

std::string ReadAgain(std::FILE* file) {
  std::string text;
  std::rewind(file);
  char block[1 << 14];
  for (std::size_t count; (count = std::fread(block, 1, sizeof block, file)) > 0;) text.append(block, count);
  return text;
}

// In the child: never returns.
void Execute(const std::string& path, const std::vector<std::string>& arguments, const RunSettings& settings,
             int output, int errors) {
  std::vector<char*> words = {const_cast<char*>(path.c_str())};
  for (const auto& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  for (const auto& entry : settings.environment) putenv(const_cast<char*>(entry.c_str()));
  dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
  dup2(settings.output >= 0 ? settings.output : output, STDOUT_FILENO);
  dup2(errors, STDERR_FILENO);
  std::signal(SIGPIPE, SIG_DFL);
  alarm(kMostSeconds);
  execv(path.c_str(), words.data());
  _exit(127);
}

}  // namespace

std::string ProgramRun::GetErrorLine() const {
  const bool isOne = std::count(errors.begin(), errors.end(), '\n') == 1 && errors.back() == '\n';
  return isOne ? errors.substr(0, errors.size() - 1) : "";
}

ProgramRun RunCommand(const std::string& program, const std::vector<std::string>& arguments,
                      const RunSettings& settings) {
  const File output(std::tmpfile(), std::fclose), errors(std::tmpfile(), std::fclose);
  const std::string path = std::string(CI_PROGRAM_FOLDER) + "/" + program;
  ProgramRun run;
  const pid_t child = fork();
  if (child == 0) Execute(path, arguments, settings, fileno(output.get()), fileno(errors.get()));
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child) return run;
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  run.mostMemory = usage.ru_maxrss;
  run.output = ReadAgain(output.get());
  run.errors = ReadAgain(errors.get());
  return run;
}

}  // namespace program_tests
