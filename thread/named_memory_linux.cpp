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

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <ctime>

#include "thread/name_digest.h"

namespace thread {
namespace {

// What lies at the start of the memory, the same for every word size. The caller's part comes after it, at
// kDataOffset, and then the name with its final zero.
struct Header {
  char magic[8];
  std::uint32_t wordSize;
  std::uint32_t callerSize;
};
constexpr char kMagic[8] = {'C', 'I', 'N', 'A', 'M', 'E', 'D', '2'};
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

// After a failure to open something under /proc: whatever else it was, the thing is gone or another user's.
bool RanOutOfRoom() { return errno == EMFILE || errno == ENFILE || errno == ENOMEM; }

bool LinksTo(const std::string& path, const std::string& expected) {
  char target[256];
  const ssize_t length = readlink(path.c_str(), target, sizeof target);
  return length >= 0 && expected.compare(0, expected.npos, target, static_cast<std::size_t>(length)) == 0;
}

}  // namespace

// An abstract socket address can be bound once; it is free again when its process ends.
NamedMemory::NameLock::NameLock(const char* name) : m_Socket(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string tag = TagOf(name);
  std::memcpy(address.sun_path + 1, tag.data(), tag.size());  // the leading zero makes it abstract
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + tag.size());
  const auto* anyAddress = reinterpret_cast<const sockaddr*>(&address);
  for (int attempt = 0; bind(m_Socket.Get(), anyAddress, length) != 0; ++attempt) {
    if (errno != EADDRINUSE || attempt == kLockRetries) {
      m_Socket.Close();
      return;
    }
    const timespec pause{0, kLockRetryNanoseconds};
    nanosleep(&pause, nullptr);
  }
}

std::unique_ptr<NamedMemory> NamedMemory::Open(const char* name, std::size_t size) {
  const NameLock lock(name);
  std::unique_ptr<NamedMemory> found;
  const bool usable = lock.Held() && Find(name, found) == Search::kFound && found->HasLayout(size);
  return usable ? std::move(found) : nullptr;
}

// Looks through the descriptors of every process.
NamedMemory::Search NamedMemory::Find(const char* name, std::unique_ptr<NamedMemory>& out) {
  const std::string link = "/memfd:" + TagOf(name) + " (deleted)";
  const Folder processes(opendir("/proc"));
  if (!processes) return Search::kFailed;
  while (const dirent* process = readdir(processes.get())) {
    if (process->d_name[0] < '0' || process->d_name[0] > '9') continue;
    const Search search = FindIn(std::string("/proc/") + process->d_name + "/fd", link, name, out);
    if (search != Search::kNothing) return search;
  }
  return Search::kNothing;
}

NamedMemory::Search NamedMemory::FindIn(const std::string& folder, const std::string& link, const char* name,
                                        std::unique_ptr<NamedMemory>& out) {
  const Folder descriptors(opendir(folder.c_str()));
  if (!descriptors) return RanOutOfRoom() ? Search::kFailed : Search::kNothing;
  while (const dirent* entry = readdir(descriptors.get())) {
    const std::string path = folder + "/" + entry->d_name;
    if (!LinksTo(path, link)) continue;
    const Search search = Recognise(path, name, out);
    if (search != Search::kNothing) return search;
  }
  return Search::kNothing;
}

NamedMemory::Search NamedMemory::Recognise(const std::string& path, const char* name,
                                           std::unique_ptr<NamedMemory>& out) {
  Descriptor file(open(path.c_str(), O_RDWR));  // inherited by child processes
  if (!file.IsOpen()) return RanOutOfRoom() ? Search::kFailed : Search::kNothing;
  struct stat status {};
  if (fstat(file.Get(), &status) != 0 || status.st_size <= static_cast<off_t>(kDataOffset)) {
    return Search::kNothing;
  }
  auto memory = std::unique_ptr<NamedMemory>(new NamedMemory(std::move(file)));
  if (!memory->Map(static_cast<std::size_t>(status.st_size))) return Search::kFailed;
  if (!memory->IsCalled(name)) return Search::kNothing;
  out = std::move(memory);
  return Search::kFound;
}

std::unique_ptr<NamedMemory> NamedMemory::Make(const char* name, std::size_t size) {
  Descriptor file(memfd_create(TagOf(name).c_str(), 0));  // inherited by child processes
  const std::size_t total = kDataOffset + size + std::strlen(name) + 1;
  if (!file.IsOpen() || ftruncate(file.Get(), static_cast<off_t>(total)) != 0) return nullptr;
  auto memory = std::unique_ptr<NamedMemory>(new NamedMemory(std::move(file)));
  if (!memory->Map(total)) return nullptr;
  Header header{{}, sizeof(void*), static_cast<std::uint32_t>(size)};
  std::memcpy(header.magic, kMagic, sizeof kMagic);
  std::memcpy(memory->m_Base, &header, sizeof header);
  std::memcpy(static_cast<char*>(memory->Data()) + size, name, std::strlen(name) + 1);
  return memory;
}

bool NamedMemory::Map(std::size_t total) {
  void* const base = mmap(nullptr, total, PROT_READ | PROT_WRITE, MAP_SHARED, m_File.Get(), 0);
  if (base == MAP_FAILED) return false;
  m_Base = base;
  m_Total = total;
  return true;
}

NamedMemory::~NamedMemory() {
  if (m_Base) munmap(m_Base, m_Total);
}

// Whichever process made it.
bool NamedMemory::IsCalled(const char* name) const {
  Header header;
  std::memcpy(&header, m_Base, sizeof header);
  const std::size_t rest = m_Total - kDataOffset;
  const std::size_t nameSize = std::strlen(name) + 1;
  return std::memcmp(header.magic, kMagic, sizeof kMagic) == 0 && header.callerSize >= kCommonSize &&
         std::uint64_t{header.callerSize} + nameSize == rest &&
         std::memcmp(static_cast<const char*>(Data()) + header.callerSize, name, nameSize) == 0;
}

bool NamedMemory::HasLayout(std::size_t size) const {
  Header header;
  std::memcpy(&header, m_Base, sizeof header);
  return header.wordSize == sizeof(void*) && header.callerSize == size;
}

void* NamedMemory::Data() const { return static_cast<char*>(m_Base) + kDataOffset; }

}  // namespace thread
