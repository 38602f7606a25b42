// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>

#include "thread/child_process.h"

struct ChildProcess::State {
  pid_t pid = -1;
  std::FILE* output = nullptr;
};

ChildProcess::ChildProcess(const std::vector<std::string>& arguments) : m_State(std::make_unique<State>()) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("pipe");
  std::vector<char*> words;
  for (const auto& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  m_State->pid = fork();
  if (m_State->pid < 0) throw std::runtime_error("fork");
  if (m_State->pid == 0) {
    dup2(ends[1], STDOUT_FILENO);
    // The second process must hold no object of this one.
    for (int descriptor = 3; descriptor < 1024; ++descriptor) close(descriptor);
    execv(words[0], words.data());
    _exit(127);
  }
  close(ends[1]);
  m_State->output = fdopen(ends[0], "r");
}

ChildProcess::~ChildProcess() {
  if (m_State->pid > 0) Kill();
  if (m_State->output) std::fclose(m_State->output);
}

std::string ChildProcess::ReadLine() {
  std::string line;
  for (int c; (c = std::fgetc(m_State->output)) != EOF && c != '\n';) line += static_cast<char>(c);
  return line;
}

void ChildProcess::Kill() {
  kill(m_State->pid, SIGKILL);
  Wait();
}

int ChildProcess::Wait() {
  int status = 0;
  waitpid(m_State->pid, &status, 0);
  m_State->pid = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
