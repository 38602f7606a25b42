// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Files that cannot be written, while there is no memory left either to say why.
#include <cerrno>

#include "injection/every_call.h"
#include "support/allocation_counter.h"
#include "utils/file.h"
#include "utils/replace_file.h"

namespace test_support {
namespace {

// No allocation succeeds until the end of the scope.
class NoMemory {
 public:
  NoMemory() { host_test::FailAllocationAfter(0); }
  ~NoMemory() { host_test::FailAllocationAfter(-1); }
  NoMemory(const NoMemory&) = delete;
  NoMemory& operator=(const NoMemory&) = delete;
};

TEST(NoMemoryLeft, ReasonThatNeedsSomeIsThatThereIsNone) {
  const TempDir dir;
  FileReplacement file;
  ASSERT_TRUE(file.Open(dir.Write("f", "old").c_str()));
  const FaultInjection fault(0, "fwrite");
  {
    const NoMemory none;
    EXPECT_FALSE(file.Write("new"));
  }
  EXPECT_EQ(fault.GetCall(), "fwrite");
  EXPECT_EQ(file.GetReason(), "no memory");
  EXPECT_FALSE(file.Commit());
  EXPECT_EQ(dir.Read("f"), "old");
}

TEST(NoMemoryLeft, ReasonOfTheCallersIsThatThereIsNone) {
  FileReplacement file;
  {
    const NoMemory none;
    EXPECT_FALSE(file.Fail("a reason that is too long to be kept without any"));
  }
  EXPECT_EQ(file.GetReason(), "no memory");
}

// It is made a second time, as long as it is.
TEST(NoMemoryLeft, LongTextSpoilsTheFile) {
  const TempDir dir;
  const DebugCapture debug;
  const std::string path = dir.Write("f", "old"), text(1000, 'x');
  MTextFile file(false, '!', '}', 100);
  ASSERT_TRUE(file.Open(path.c_str(), true));
  {
    const NoMemory none;
    EXPECT_TRUE(file.Write("%s", "short"));
  }
  {
    const NoMemory none;
    EXPECT_FALSE(file.Write("%s", text.c_str()));
  }
  EXPECT_FALSE(file.Write("%s", "short")) << "for good";
  EXPECT_FALSE(file.Close());
  EXPECT_EQ(dir.Read("f"), "old");
  EXPECT_EQ(debug.lines.size(), 1u);
}

}  // namespace
}  // namespace test_support
