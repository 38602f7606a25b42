// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>

namespace thread {

// A piece of memory that processes of one user share under a name, for as long as one of them holds it.
//
// The memory is an anonymous file that lives in no folder, found again through the descriptors of the
// processes that hold it. So the kernel itself forgets the name with the last holder, however that process
// ended, and there is nothing that a crash could leave behind.
class NamedMemory {
 public:
  enum class Result { kDone, kExists, kFailed };

  // Makes the memory, zeroed, under a name that nobody holds; `init` fills it before anyone else can see it.
  template <class Init>
  static Result Create(const char* name, std::size_t size, std::unique_ptr<NamedMemory>& out, Init init) {
    const NameLock lock(name);
    if (!lock.Held()) return Result::kFailed;
    out = Find(name, size);
    if (out) return Result::kExists;
    out = Make(name, size);
    if (!out || !init(out->Data())) return Result::kFailed;
    return Result::kDone;
  }

  // The memory of that name and size, or null.
  static std::unique_ptr<NamedMemory> Open(const char* name, std::size_t size);

  ~NamedMemory();
  NamedMemory(const NamedMemory&) = delete;
  NamedMemory& operator=(const NamedMemory&) = delete;

  void* Data() const;

 private:
  // Keeps all other processes from creating or opening that name while it lives.
  class NameLock {
   public:
    explicit NameLock(const char* name);
    ~NameLock();
    NameLock(const NameLock&) = delete;
    NameLock& operator=(const NameLock&) = delete;
    bool Held() const { return m_Socket >= 0; }

   private:
    int m_Socket;
  };

  NamedMemory(int file, void* base, std::size_t size) : m_File(file), m_Base(base), m_Size(size) {}
  static std::unique_ptr<NamedMemory> Find(const char* name, std::size_t size);
  static std::unique_ptr<NamedMemory> Make(const char* name, std::size_t size);
  static std::unique_ptr<NamedMemory> Map(int file, const char* name, std::size_t size, bool fresh);

  int m_File;
  void* m_Base;
  std::size_t m_Size;
};

}  // namespace thread
