// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "thread/named_memory_linux.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <string>

#include "thread/name_digest.h"

namespace thread {
namespace {

// What lies at the start of the memory, before the caller's part; the name follows the caller's part. A
// process of another word size lays its objects out otherwise, so it finds the name taken but cannot open it.
struct Header {
  char magic[8];
  std::uint32_t wordSize;
  std::uint32_t callerSize;
};
constexpr Header kHeader{{'C', 'I', 'N', 'A', 'M', 'E', 'D', '1'}, sizeof(void*), 0};
constexpr std::size_t kDataOffset = 64;  // keeps the caller's part aligned for anything it may hold
static_assert(sizeof(Header) <= kDataOffset);

constexpr long kLockRetryNanoseconds = 1'000'000;
constexpr int kLockRetries = 10'000;  // ten seconds: only a process stopped in the middle holds it that long

// A short tag for a name of any length and any characters. Two names with one tag are told apart by the full
// name in the memory.
std::string TagOf(const char* name) {
  return "common_interfaces." + std::to_string(getuid()) + "." + MakeNameDigest(name);
}

struct FolderCloser {
  void operator()(DIR* folder) const { closedir(folder); }
};
using Folder = std::unique_ptr<DIR, FolderCloser>;

// Opens the first descriptor of process `pid` that is an anonymous file called `link` and that `use` accepts.
template <class Use>
bool TryProcess(const char* pid, const std::string& link, Use use) {
  const std::string path = std::string("/proc/") + pid + "/fd";
  const Folder descriptors(opendir(path.c_str()));
  if (!descriptors) return false;  // gone meanwhile, or another user's
  while (const dirent* entry = readdir(descriptors.get())) {
    char target[256];
    const std::string descriptor = path + "/" + entry->d_name;
    const ssize_t length = readlink(descriptor.c_str(), target, sizeof target);
    if (length != static_cast<ssize_t>(link.size()) || std::memcmp(target, link.data(), link.size()) != 0)
      continue;
    const int file = open(descriptor.c_str(), O_RDWR);
    if (file >= 0 && use(file)) return true;
  }
  return false;
}

}  // namespace

// An abstract socket address can be bound once; it is free again when its process ends.
NamedMemory::NameLock::NameLock(const char* name) : m_Socket(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
  if (m_Socket < 0) return;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string tag = TagOf(name);
  std::memcpy(address.sun_path + 1, tag.data(), tag.size());  // the leading zero makes it abstract
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + tag.size());
  for (int attempt = 0; bind(m_Socket, reinterpret_cast<const sockaddr*>(&address), length) != 0; ++attempt) {
    if (errno != EADDRINUSE || attempt == kLockRetries) {
      close(m_Socket);
      m_Socket = -1;
      return;
    }
    const timespec pause{0, kLockRetryNanoseconds};
    nanosleep(&pause, nullptr);
  }
}

NamedMemory::NameLock::~NameLock() {
  if (m_Socket >= 0) close(m_Socket);
}

std::unique_ptr<NamedMemory> NamedMemory::Open(const char* name, std::size_t size) {
  const NameLock lock(name);
  return lock.Held() ? Find(name, size) : nullptr;
}

std::unique_ptr<NamedMemory> NamedMemory::Find(const char* name, std::size_t size) {
  const std::string link = "/memfd:" + TagOf(name) + " (deleted)";
  const Folder processes(opendir("/proc"));
  std::unique_ptr<NamedMemory> found;
  while (const dirent* entry = processes ? readdir(processes.get()) : nullptr) {
    if (entry->d_name[0] < '0' || entry->d_name[0] > '9') continue;
    const bool done = TryProcess(entry->d_name, link, [&](int file) {
      found = Map(file, name, size, false);
      return found != nullptr;
    });
    if (done) break;
  }
  return found;
}

std::unique_ptr<NamedMemory> NamedMemory::Make(const char* name, std::size_t size) {
  const int file = memfd_create(TagOf(name).c_str(), 0);  // inherited by child processes
  if (file < 0) return nullptr;
  const std::size_t total = kDataOffset + size + std::strlen(name) + 1;
  if (ftruncate(file, static_cast<off_t>(total)) != 0) {
    close(file);
    return nullptr;
  }
  return Map(file, name, size, true);
}

// Takes `file` over in every case.
std::unique_ptr<NamedMemory> NamedMemory::Map(int file, const char* name, std::size_t size, bool fresh) {
  const std::size_t total = kDataOffset + size + std::strlen(name) + 1;
  struct stat status {};
  void* base = MAP_FAILED;
  if (fstat(file, &status) == 0 && status.st_size == static_cast<off_t>(total)) {
    base = mmap(nullptr, total, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  }
  if (base == MAP_FAILED) {
    close(file);
    return nullptr;
  }
  auto memory = std::unique_ptr<NamedMemory>(new NamedMemory(file, base, total));
  char* nameInside = static_cast<char*>(base) + kDataOffset + size;
  Header header = kHeader;
  header.callerSize = static_cast<std::uint32_t>(size);
  if (fresh) {
    std::memcpy(base, &header, sizeof header);
    std::memcpy(nameInside, name, std::strlen(name) + 1);
    return memory;
  }
  const bool same = std::memcmp(base, &header, sizeof header) == 0 && std::strcmp(nameInside, name) == 0;
  return same ? std::move(memory) : nullptr;
}

NamedMemory::~NamedMemory() {
  munmap(m_Base, m_Size);
  close(m_File);
}

void* NamedMemory::Data() const { return static_cast<char*>(m_Base) + kDataOffset; }

}  // namespace thread
