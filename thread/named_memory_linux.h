// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>

#include "thread/descriptor_posix.h"

namespace thread {

// A piece of memory that processes of one user share under a name, for as long as one of them holds it.
//
// The memory is an anonymous file that lives in no folder, found again through the descriptors of the
// processes that hold it. So the kernel itself forgets the name with the last holder, however that process
// ended, and there is nothing that a crash could leave behind.
//
// A process of another word size lays its part out otherwise: here its name is taken, and only the first
// kCommonSize bytes of the memory mean the same.
class NamedMemory {
 public:
  enum class Result { kDone, kExists, kFailed };

  static constexpr std::size_t kCommonSize = 4;

  // Makes the memory, zeroed, under a name that nobody holds; `init` fills it before anyone else can see it.
  // Where somebody does, `out` is that memory, of whichever layout. kFailed also where the system has no room
  // to look for it. Throws std::bad_alloc and leaves no name behind then.
  template <class Init>
  static Result Create(const char* name, std::size_t size, std::unique_ptr<NamedMemory>& out, Init init) {
    const NameLock lock(name);
    if (!lock.Held() || Find(name, out) == Search::kFailed) return Result::kFailed;
    if (out) return Result::kExists;
    out = Make(name, size);
    if (!out || !init(out->Data())) return Result::kFailed;
    return Result::kDone;
  }

  // The memory of that name, size and layout, or null.
  static std::unique_ptr<NamedMemory> Open(const char* name, std::size_t size);

  ~NamedMemory();
  NamedMemory(const NamedMemory&) = delete;
  NamedMemory& operator=(const NamedMemory&) = delete;

  void* Data() const;

 private:
  enum class Search { kFound, kNothing, kFailed };

  // Keeps all other processes from creating or opening that name while it lives.
  class NameLock {
   public:
    explicit NameLock(const char* name);
    bool Held() const { return m_Socket.IsOpen(); }

   private:
    Descriptor m_Socket;
  };

  explicit NamedMemory(Descriptor file) : m_File(std::move(file)) {}
  static Search Find(const char* name, std::unique_ptr<NamedMemory>& out);
  static Search FindIn(const std::string& folder, const std::string& link, const char* name,
                       std::unique_ptr<NamedMemory>& out);
  static Search Recognise(const std::string& path, const char* name, std::unique_ptr<NamedMemory>& out);
  static std::unique_ptr<NamedMemory> Make(const char* name, std::size_t size);
  bool Map(std::size_t total);
  bool IsCalled(const char* name) const;
  bool HasLayout(std::size_t size) const;

  Descriptor m_File;
  void* m_Base = nullptr;
  std::size_t m_Total = 0;
};

}  // namespace thread
