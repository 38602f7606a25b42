// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Memory that carries the tag of a name and is no named object of that name: another program's, one of
// another version, or of another name with the same digest.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <string>

#include "common_interfaces/thread.h"
#include "thread/message_of.h"
#include "thread/name_digest.h"
#include "thread/own_name.h"

namespace {

using thread_tests::MessageOf;
using thread_tests::Own;

// A memory of that content, as long as this lives.
class ForeignMemory {
 public:
  ForeignMemory(const char* name, const std::string& content)
      : m_File(memfd_create(
            ("common_interfaces." + std::to_string(getuid()) + "." + thread::MakeNameDigest(name)).c_str(),
            0)) {
    EXPECT_GE(m_File, 0);
    EXPECT_EQ(write(m_File, content.data(), content.size()), static_cast<ssize_t>(content.size()));
  }
  ~ForeignMemory() { close(m_File); }
  ForeignMemory(const ForeignMemory&) = delete;
  ForeignMemory& operator=(const ForeignMemory&) = delete;

 private:
  int m_File;
};

// As thread/named_memory_linux.cpp lays it out: the mark, the size of a word and of the caller's part, which
// begins at 64, and behind it the name.
std::string Layout(const char* mark, std::uint32_t callerSize, std::size_t room, const std::string& name) {
  std::string content(mark, 8);
  const std::uint32_t sizes[2] = {sizeof(void*), callerSize};
  content.append(reinterpret_cast<const char*>(sizes), sizeof sizes);
  content.resize(64 + room);
  return content + name + std::string(1, '\0');
}

class ForeignMemoryTest : public testing::TestWithParam<int> {
 protected:
  static std::string ContentOf(int kind, const std::string& name) {
    switch (kind) {
      case 0:
        return "short";
      case 1:
        return std::string(300, '\0');
      case 2:
        return Layout("CINAMED1", 64, 64, name);  // another version
      case 3:
        return Layout("CINAMED2", 0, 0, name);  // no room for anything
      case 4:
        return Layout("CINAMED2", 100'000, 64, name);  // more room than there is
      case 5:
        return Layout("CINAMED2", 64, 64, name + "longer");
      case 6:
        return Layout("CINAMED2", 64, 64, std::string(name.size(), 'x'));  // the same digest, say
      default:
        return "";  // of which nothing can be mapped
    }
  }
};

}  // namespace

TEST_P(ForeignMemoryTest, IsPassedOver) {
  const char* const name = Own("semaphore beside foreign memory " + std::to_string(GetParam()));
  const ForeignMemory foreign(name, ContentOf(GetParam(), name));
  EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] { thread::Semaphore opened(name); }),
            "Can't open existing semaphore.");
  EXPECT_EQ(MessageOf<thread::Semaphore::Error>([name] {
              thread::Semaphore made(3, name);
              thread::Semaphore opened(name);
              opened.lock();
              EXPECT_EQ(made.lock(0), thread::kSignalled);
            }),
            "");
}

INSTANTIATE_TEST_SUITE_P(Each, ForeignMemoryTest, testing::Range(0, 8));
