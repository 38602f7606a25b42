// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Runs a program and kills it at one of its system calls that change a file or a folder.
//
// usage: kill_at_write INDEX before|within COMMAND...
//
// INDEX counts these calls from 0, of all processes and threads that the program starts: open for writing,
// write (not to standard output and error), truncate, sync, rename, link, unlink, make or remove a folder,
// change mode or owner. `before`: nothing of the call is done. `within`: of a write half of the bytes are
// written, any other call is done and does not come back. The last line on standard output is the name of
// the call and "killed"; or, when there are not that many calls, their number, "calls" and the exit status,
// which is this program's too.
#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

namespace {

constexpr int kOptions = PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL | PTRACE_O_TRACECLONE |
                         PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK | PTRACE_O_TRACEEXEC;
constexpr int kSyscallStop = SIGTRAP | 0x80;

[[noreturn]] void Die(const char* what) {
  std::perror(what);
  std::exit(125);
}

struct Call {
  const char* name = nullptr;  // null: it changes nothing
  bool writes = false;
};

bool IsForWriting(unsigned long long flags) {
  return (flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0;
}

Call Classify(const user_regs_struct& registers) {
  switch (registers.orig_rax) {
    case SYS_open:
      return {IsForWriting(registers.rsi) ? "open" : nullptr};
    case SYS_openat:
      return {IsForWriting(registers.rdx) ? "openat" : nullptr};
    case SYS_creat:
      return {"creat"};
    case SYS_write:
      return registers.rdi > 2 ? Call{"write", true} : Call{};
    case SYS_pwrite64:
      return {"pwrite", true};
    case SYS_writev:
      return {registers.rdi > 2 ? "writev" : nullptr};
    case SYS_truncate:
    case SYS_ftruncate:
      return {"truncate"};
    case SYS_fsync:
    case SYS_fdatasync:
      return {"sync"};
    case SYS_rename:
    case SYS_renameat:
    case SYS_renameat2:
      return {"rename"};
    case SYS_link:
    case SYS_linkat:
    case SYS_symlink:
    case SYS_symlinkat:
      return {"link"};
    case SYS_unlink:
    case SYS_unlinkat:
      return {"unlink"};
    case SYS_mkdir:
    case SYS_mkdirat:
    case SYS_rmdir:
      return {"folder"};
    case SYS_chmod:
    case SYS_fchmod:
    case SYS_fchmodat:
    case SYS_chown:
    case SYS_fchown:
    case SYS_fchownat:
      return {"mode"};
    default:
      return {};
  }
}

class Tracer {
 public:
  Tracer(long index, bool within) : m_Left(index), m_Within(within) {}

  int Run(char** command) {
    m_Child = fork();
    if (m_Child < 0) Die("fork");
    if (m_Child == 0) {
      ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
      std::raise(SIGSTOP);
      execvp(command[0], command);
      Die(command[0]);
    }
    int status = 0;
    if (waitpid(m_Child, &status, 0) != m_Child || ptrace(PTRACE_SETOPTIONS, m_Child, nullptr, kOptions) != 0)
      Die("ptrace");
    ptrace(PTRACE_SYSCALL, m_Child, nullptr, nullptr);
    for (;;) {
      const pid_t process = waitpid(-1, &status, __WALL);
      if (process < 0) Die("waitpid");
      if (WIFEXITED(status) || WIFSIGNALED(status)) {
        if (process == m_Child) return Report(status);
        m_Inside.erase(process);
        continue;
      }
      const int signal = WSTOPSIG(status);
      if (signal == kSyscallStop) StopAtCall(process);
      const bool isOurs = signal == kSyscallStop || signal == SIGTRAP || signal == SIGSTOP;
      ptrace(PTRACE_SYSCALL, process, nullptr, isOurs ? 0L : static_cast<long>(signal));
    }
  }

 private:
  // Each call stops its process twice.
  void StopAtCall(pid_t process) {
    bool& inside = m_Inside[process];
    inside = !inside;
    if (!inside) {
      if (m_KillAtEnd == process) Kill();
      return;
    }
    user_regs_struct registers;
    if (ptrace(PTRACE_GETREGS, process, nullptr, &registers) != 0) return;
    const Call call = Classify(registers);
    if (!call.name) return;
    ++m_Calls;
    if (m_Left-- != 0) return;
    m_Name = call.name;
    if (!m_Within) return Kill();
    m_KillAtEnd = process;
    if (!call.writes || registers.rdx < 2) return;
    registers.rdx /= 2;
    ptrace(PTRACE_SETREGS, process, nullptr, &registers);
  }

  void Kill() { kill(m_Child, SIGKILL); }

  int Report(int status) const {
    if (m_Name) {
      std::printf("%s killed\n", m_Name);
      return 0;
    }
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    std::printf("%ld calls %d\n", m_Calls, code);
    return code;
  }

  long m_Left, m_Calls = 0;
  const bool m_Within;
  pid_t m_Child = -1, m_KillAtEnd = -1;
  const char* m_Name = nullptr;
  std::map<pid_t, bool> m_Inside;  // whether it stands at the beginning of a call or at its end
};

}  // namespace

int main(int count, char** arguments) {
  const bool within = count > 3 && std::strcmp(arguments[2], "within") == 0;
  if (count < 4 || (!within && std::strcmp(arguments[2], "before") != 0)) {
    std::fprintf(stderr, "usage: kill_at_write INDEX before|within COMMAND...\n");
    return 125;
  }
  return Tracer(std::strtol(arguments[1], nullptr, 10), within).Run(arguments + 3);
}
