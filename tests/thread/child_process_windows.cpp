// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <stdexcept>

#include "thread/child_process.h"

struct ChildProcess::State {
  HANDLE process = nullptr;
  HANDLE output = nullptr;
};

ChildProcess::ChildProcess(const std::vector<std::string>& arguments) : m_State(std::make_unique<State>()) {
  SECURITY_ATTRIBUTES inherit{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  HANDLE writeEnd = nullptr;
  if (!CreatePipe(&m_State->output, &writeEnd, &inherit, 0)) throw std::runtime_error("CreatePipe");
  SetHandleInformation(m_State->output, HANDLE_FLAG_INHERIT, 0);
  std::string command;
  for (const auto& argument : arguments) command += (command.empty() ? "\"" : " \"") + argument + "\"";

  // Only the pipe is inherited: the second process must hold no object of this one.
  SIZE_T size = 0;
  InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
  std::string storage(size, '\0');
  STARTUPINFOEXA startup{};
  startup.StartupInfo.cb = sizeof startup;
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  startup.StartupInfo.hStdOutput = writeEnd;
  startup.lpAttributeList = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(storage.data());
  InitializeProcThreadAttributeList(startup.lpAttributeList, 1, 0, &size);
  UpdateProcThreadAttribute(startup.lpAttributeList, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, &writeEnd,
                            sizeof writeEnd, nullptr, nullptr);
  PROCESS_INFORMATION process{};
  const bool started =
      CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, EXTENDED_STARTUPINFO_PRESENT, nullptr,
                     nullptr, &startup.StartupInfo, &process);
  DeleteProcThreadAttributeList(startup.lpAttributeList);
  CloseHandle(writeEnd);
  if (!started) throw std::runtime_error("CreateProcess");
  CloseHandle(process.hThread);
  m_State->process = process.hProcess;
}

ChildProcess::~ChildProcess() {
  if (m_State->process) Kill();
  CloseHandle(m_State->output);
}

std::string ChildProcess::ReadLine() {
  std::string line;
  char c = 0;
  DWORD got = 0;
  while (ReadFile(m_State->output, &c, 1, &got, nullptr) && got == 1 && c != '\n') {
    if (c != '\r') line += c;
  }
  return line;
}

void ChildProcess::Kill() {
  TerminateProcess(m_State->process, 1);
  Wait();
}

int ChildProcess::Wait() {
  WaitForSingleObject(m_State->process, INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(m_State->process, &status);
  CloseHandle(m_State->process);
  m_State->process = nullptr;
  return static_cast<int>(status);
}
